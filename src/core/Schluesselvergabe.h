#pragma once

#include <QString>
#include <QVariant>

namespace vemo {

// A new key for the table from the allocator of the module: the table comes from Quelle (the Name
// of the record set that has just begun a row) when given, else from Tabelle. Both empty resets
// the allocator. Errors are shown by the standard trap and give 0.
qint32 NeueID(const QString& tabelle, const QString& quelle);

// The lowest free three-digit code among the siblings of a plant ("Anlage"), board ("Verteiler")
// or circuit ("Stromkreis"); empty when 998 are taken. An unknown kind raises an error.
QString NeuerCode(const QString& art, const QVariant& elternSchlüssel);

// The next report number over all inspections, at least eight digits; empty after an error.
QString NächsteProtokollNr();

} // namespace vemo
