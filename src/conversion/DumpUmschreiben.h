#pragma once

#include <QString>
#include <QStringList>

namespace vemo {

// The value text of a coded dump with its first decimal comma turned into a point; a text without
// a comma stays as it is.
QString KommaZuPunkt(const QString& text);

// The circuit head of the report form: the board in three digits, or "---" where the dump names no
// board, then the place; the ruler and the blank line of 24 characters follow.
QStringList StromkreisKopf(const QString& verteiler, const QString& platz);

// The block of an RCD analysis: the analysis line of the key texts (entry 7), then one line a step
// with its fault current and trip time.
QStringList FiAnalyse(const QList<QStringList>& schritte);

// Rewrites the coded dump in Ruvo.ser into the report form the report parser reads, through
// Trans.ser, which then takes the place of Ruvo.ser. The coded lines are looked for by the prefixes
// of the shared key table (ZeilenPräfixeSetzen), so those must be set. A failure is shown by the
// standard trap and leaves Ruvo.ser as it was, with Trans.ser beside it; false then.
bool DumpUmschreiben();

} // namespace vemo
