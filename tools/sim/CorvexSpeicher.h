#pragma once

#include <QByteArray>
#include <QString>

namespace vemo::sim {

// The layout of a Corvex printout, for the simulator and its tests.
namespace corvex {
inline const QString Titel = "RUVO GmbH 0100 Corvex";
inline const QString Lineal = "------------------------";
inline const QString Leerzeile = QString(24, ' ');
inline const QString Gerätetyp = "4470";
inline const QString Seriennummer = "47110815001";
constexpr int Seriennummerlänge = 11;
constexpr int StromkreiseJeVerteiler = 8;
} // namespace corvex

// A memory as a Corvex instrument prints it: title, ruler, the device line with its four-digit type
// and eleven-character serial number, then one block a circuit, numbered board by board. Each
// block is its header "S: 001    P: 002", the ruler, the blank line of 24 characters, an empty
// line, measured values as "name = value unit", and an empty line. Lines end with CR LF.
QByteArray corvexSpeicher(int blöcke, const QString& seriennummer = corvex::Seriennummer);

} // namespace vemo::sim
