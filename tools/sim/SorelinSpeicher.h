#pragma once

#include <QByteArray>
#include <QString>

namespace vemo {
class Datenbank;
}

namespace vemo::sim {

namespace sorelin {
constexpr int StandardInstrument = 4120;
// The most the data block holds: the transfer works its length out in 16-bit arithmetic.
constexpr int HöchsteDatenlänge = 32767;
} // namespace sorelin

// The memory image a Sorelin instrument of the type sends, built from its driver table in the
// database: a byte the line holds before, the start mark, the start block (type, serial number, the
// firmware version the driver knows), a block of kind 10, the data block and the end mark. Each
// circuit holds every measurement block of the table once, in the table's order, with plausible
// values coded as the table says; a start block opens each circuit after the first. Circuits that
// would not fit into the data block are left out. Raises 3078 when there is no driver table.
QByteArray sorelinSpeicher(const Datenbank& db, int instrument, int stromkreise,
                           const QString& seriennummer = {});

// The instrument type the simulator program makes images for, and the database whose driver
// tables it reads: the one given, else the tables the component ships, in memory.
void sorelinWählen(int instrument, const QString& datenbank);
QByteArray sorelinSpeicherDerWahl(int stromkreise);

} // namespace vemo::sim
