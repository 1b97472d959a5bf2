#pragma once

#include "import/Quelltabelle.h"
#include "store/Recordset.h"

#include <QVariant>

namespace vemo {

// The inspection of a source row: a new row of 0100_Prüfung with the columns of the old masks,
// its test instruments and inspector, and the equipment rows.
class Pruefungsdaten {
public:
    Pruefungsdaten();

    // Adds the inspection under the plant; gives its key.
    QVariant prüfung(const Quellzeile& zeile, const QVariant& anlageID);
    void betriebsmittel(const Quellzeile& zeile, const QVariant& prüfungID);

private:
    Recordset m_prüfungen, m_betriebsmittel;
};

// The date of the inspection as the old mask held it: a date, or a text "dd.mm.yyyy"; Null when
// it is neither.
QVariant prüfdatum(const Quellzeile& zeile);

} // namespace vemo
