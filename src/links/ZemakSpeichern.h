#pragma once

#include <QByteArray>
#include <QList>

namespace vemo {

// The lines of the working file made from what a 37xx instrument said: one line a piece ended by
// CR (a piece behind the last CR is dropped), except the memory reply, which is split into its
// "QD 2," head up to the comma behind the count, one line a record ended at its kommas-th comma,
// and the last record without its comma as a line of its own (empty when there is none).
QList<QByteArray> zemakZeilen(const QByteArray& empfangen, int kommas);

// Writes those lines, each ended by CR LF, as the working file Ruvo.ser beside the database,
// replacing what it held. A file that cannot be written raises Fehler.
void SaveZEMAKMessungen(const QByteArray& empfangen, int kommas);

} // namespace vemo
