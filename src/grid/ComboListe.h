#pragma once

#include "store/Recordset.h"

#include <QList>
#include <QString>
#include <QVariant>

namespace vemo {

// An entry of the combo box laid over a grid cell: the text shown and, as item data, the key of
// its record.
struct ComboEintrag {
    QString text;
    QVariant schlüssel;
};

// The key field of the read-in row that a grid column (1 customer to 5 circuit) assigns.
QString schlüsselfeld(int spalte);

// The records that can be chosen for a cell of the read-in row einlesezeile, in the order shown:
// the customers by name, or the plants, inspections, boards or circuits under the row's parent.
QList<ComboEintrag> comboEinträge(int spalte, const Recordset& einlesezeile);

// The position of the entry whose key is the given one; -1 when none is.
int eintragMitSchlüssel(const QList<ComboEintrag>& einträge, const QVariant& schlüssel);

} // namespace vemo
