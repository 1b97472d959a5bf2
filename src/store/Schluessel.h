#pragma once

#include "store/Recordset.h"

#include <QString>
#include <QVariant>

namespace vemo {

// Key allocation across replicas: each replica owns the keys from OffsetFaktor x 100000000 + 10000
// on, and each table counts in a row of IDIncrement. The table comes from Quelle (the Name of the
// record set that has just begun a row) when given, else from Tabelle. Both empty resets the cache.
// Errors are shown by the standard trap and give 0.
qint32 NeueID(const QString& tabelle, const QString& quelle);

// The lowest free three-digit code among the siblings of a plant ("Anlage"), board ("Verteiler")
// or circuit ("Stromkreis"); empty when 998 are taken. An unknown kind raises an error.
QString NeuerCode(const QString& art, const QVariant& elternSchlüssel);

// The next report number over all inspections, at least eight digits; empty after an error.
QString NächsteProtokollNr();

// Fills a row begun with AddNew with the defaults of its kind ("Kunde", "Anlage", "Prüfung",
// "Verteiler", "Stromkreis"); the caller has written the key.
void NeueZeileVorbelegen(const QString& art, Recordset& rs, const QVariant& elternSchlüssel);

// Copies the equipment template of the current language into the inspection.
void BetriebsmittelAnlegen(const QVariant& prüfungID);

} // namespace vemo
