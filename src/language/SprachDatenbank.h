#pragma once

#include <QString>

namespace vemo {

// The language database: the file Language.MDB beside the host's database.
namespace sprachdatenbank {
inline const QString DateiName = "Language.MDB";
inline const QString Passwort = "lumo";
} // namespace sprachdatenbank

// Writes the language database into the folder: the table Sprache with every fixed text of the
// component and of the host program, German and English (data/language-*.sql), and the query
// Suchen. An existing file is replaced.
void spracheDatenbankAnlegen(const QString& verzeichnis);

// Writing the host's property Sprache: opens the language database beside the host's database
// file, or a server's database itself, for the shared Sprachen and chooses the language, with its check. When the
// file cannot be opened, the error is shown, the name is kept as it is and the texts stay German.
void spracheEinstellen(const QString& sprache);

} // namespace vemo
