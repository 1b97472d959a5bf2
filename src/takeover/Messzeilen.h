#pragma once

#include "store/Recordset.h"

#include <QString>
#include <QVariant>

namespace vemo {

// Rows of 0100_Messung as the value mapping adds them: each with its own MessID and the circuit
// of the run keys.

// Adds a row, writes it and makes it the current one.
void NewMessung(Recordset& rsMessung);

// Begins a further row with its keys; the caller sets its values and writes it.
void weitereZeile(Recordset& rsMessung);

// Prepares the row that takes a value of the column: the current one, edited, while the column
// is empty there, else a further row. So a repeated value spreads over rows instead of
// overwriting the one before.
void zeileFürSpalte(Recordset& rsMessung, const QString& spalte);

// Writes one column of the current row by itself.
void feldSchreiben(Recordset& rs, const QString& spalte, const QVariant& wert);

// Makes the row written last the current one.
void zurLetztenÄnderung(Recordset& rs);

} // namespace vemo
