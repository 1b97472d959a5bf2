#pragma once

#include <QString>
#include <QVariant>

namespace vemo {

// Maps the values of one read-in block (0100_EinleseMessDaten of MessungID) into new rows of
// 0100_Messung on the circuit of the run keys, and their limits into 0100_Grenzwert. A block
// without values adds nothing. A run-time error ends the mapping without a word: the values
// taken so far stay, and the caller goes on.
void MesswertÜbernehmen(const QVariant& messungID, const QVariant& datum, const QVariant& uhrzeit);

// Whether a function name is a block of text lines rather than values of columns.
bool istTextblock(const QString& funktion);

} // namespace vemo
