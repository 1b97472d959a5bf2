#pragma once

#include "store/Recordset.h"

#include <QString>
#include <QVariant>

namespace vemo {

// The state of one value mapping that its handlers share: the source rows of the read-in block,
// the measurement rows of the circuit, the limit row once it is needed, the target column and
// unit of the last function name the table knew, and the flag that ends the mapping early.
struct Wertlauf {
    Recordset rsMess;
    Recordset rsMessung;
    Recordset rsGrenzwert;
    QString spaltenname;
    QString einheit;
    bool stop = false;

    // The fields of the current source row.
    QString funktion() const { return rsMess.Text("Funktion"); }
    QVariant wert() const { return rsMess.Field("wert"); }
    QString wertText() const { return rsMess.Text("wert"); }
    QString zeileneinheit() const { return rsMess.Text("Einheit"); }
    // The value of the current source row in the target unit.
    QString umgerechnet() const;

    // The next source row; a block that is cut short fails on its first read behind the end.
    void weiter() { rsMess.MoveNext(); }
    // Looks the current source row's name up; column and unit change only when it is found.
    void nachschlagen();
    // Makes sure of the limit row of the current measurement row.
    void grenzwertHolen();
};

} // namespace vemo
