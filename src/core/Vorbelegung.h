#pragma once

#include <QString>
#include <QVariant>

namespace vemo {

class Recordset;

// Whether a new plant, board or circuit gets the first free code as its default, or the caller
// writes a code of its own over it at once: the first free code reads the code of every sibling.
enum class Vorgabecode { Erster, VomAufrufer };

// Fills a row begun with AddNew with the defaults of its kind ("Kunde", "Anlage", "Prüfung",
// "Verteiler", "Stromkreis"); the caller has written the key.
void NeueZeileVorbelegen(const QString& art, Recordset& rs, const QVariant& elternSchlüssel,
                         Vorgabecode code = Vorgabecode::Erster);

// Copies the equipment template of the current language into the inspection.
void BetriebsmittelAnlegen(const QVariant& prüfungID);

} // namespace vemo
