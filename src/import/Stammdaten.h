#pragma once

#include "import/Quelltabelle.h"
#include "store/Recordset.h"

#include <QVariant>

namespace vemo {

// The customers and plants of the import: a source row's customer and plant are found again by
// their columns, or added. Running the import twice finds them again.
class Stammdaten {
public:
    Stammdaten();

    QVariant kunde(const Quellzeile& zeile);
    QVariant anlage(const Quellzeile& zeile, const QVariant& kundeID);

private:
    QVariant gleicherKunde(const QString& abfrage, const Quellzeile& zeile) const;
    QVariant neuerKunde(const Quellzeile& zeile);
    QVariant neueAnlage(const Quellzeile& zeile, const QVariant& kundeID);

    Recordset m_kunden, m_anlagen;
};

} // namespace vemo
