#pragma once

#include <QString>

namespace vemo {

// Writes a new host database: the schema, the saved queries and the default host data
// (data/host-*.sql); with demo, customers, plants and instruments to play with (data/demo-*.sql).
// An existing file is replaced; a server's database (a connection URI) must be empty, and takes the
// language table too, as the office's one. Beside a file, the word tables \Ruvo.MNU and \Ruvo.MUL of the
// host's installation are written beside it.
void datenbankAnlegen(const QString& pfad, bool demo);

// Writes the host's word tables \Ruvo.MNU and \Ruvo.MUL into the folder; tables already there
// are kept unless they are to be replaced.
void worttabellenAnlegen(const QString& ordner, bool ersetzen);

// Copies a whole database into a new one, from one engine to the other: the new one is made as
// datenbankAnlegen makes it, then every table of the source replaces its rows there, keys unchanged;
// a table the new one lacks is made with the source's columns. Counters of keys follow on.
void datenbankKopieren(const QString& von, const QString& nach);

// Runs the scripts of the resources whose names match the pattern, in the order of their names.
class Datenbank;
void skripteAusführen(const Datenbank& db, const QString& muster);

} // namespace vemo
