#pragma once

#include <QString>
#include <QVariant>

namespace vemo {

class Recordset;

// Fills a row begun with AddNew with the defaults of its kind ("Kunde", "Anlage", "Prüfung",
// "Verteiler", "Stromkreis"); the caller has written the key.
void NeueZeileVorbelegen(const QString& art, Recordset& rs, const QVariant& elternSchlüssel);

// Copies the equipment template of the current language into the inspection.
void BetriebsmittelAnlegen(const QVariant& prüfungID);

} // namespace vemo
