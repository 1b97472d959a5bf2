#pragma once

#include "store/Recordset.h"

#include <QString>
#include <QVariant>

// Picking apart the printer lines of instrument dumps, and the normal form of measured values.
// Values stay text from read-in to take-over ("o.r.", "<0,1", "AC 180°"); positions are 1-based.
namespace vemo {

// The line up to, not including, its first "!": the rest is a comment.
QString DelZeichen(const QString& zeile);

// A number as three digits ("5" gives "005", "1234" gives "234"); empty when its numeric prefix is 0.
QString SetNull(const QString& text);

// The number found in the trimmed line from position start on: "o.r." for an over-range mark or
// "OL", a phase mark "AC 180°" where "AC", "DC" or "PL" stands before it. rest receives the unit
// that follows (empty when the next word is a number), and start moves behind it.
QString GetZahl(const QString& zeile, int& start, QString& rest);

// The name of the value on a report line "name = value unit"; funktion carries the current main
// function from line to line.
QString GetFunktion(const QString& zeile, QString& funktion, const QString& einheit);

// The name of the value on a table line "key: value unit". An insulation key such as "R500V" also
// gives its test voltage: funktion2 becomes "Riso V" and wert2 the voltage.
QString GetFunktionMul(const QString& zeile, QString& funktion2, QString& wert2);

// The value converted between units by their first letters; the decimal mark stays as it came.
// An unknown pair of units is reported and leaves the value as it is.
QString WertEinheit(const QVariant& wert, const QString& einheitVon, const QString& einheitNach);

// The normal form of a value: numbers in the number locale without trailing zeros, a sign kept in
// front; anything else as it stands.
QString WertText(const QString& wert);

// Whether the new value is the greater (the smaller) one; a value with ">" or "<" wins by its sign.
bool IstGrösser(const QString& alt, const QString& neu);
bool IstKleiner(const QString& alt, const QString& neu);

// The column and unit of a function name; true when the table has no such name (the outputs are
// then left as they were).
bool TeilFunktionSuchen(const QString& name, QString& spaltenname, QString& einheit);

// While it lives, TeilFunktionSuchen reads each name from the table once and answers it again from
// memory: a take-over asks for the same names for every read-in row. A look-up that fails is not
// kept, and nothing is kept beyond its life.
class TeilFunktionenMerken {
public:
    TeilFunktionenMerken();
    ~TeilFunktionenMerken();
    TeilFunktionenMerken(const TeilFunktionenMerken&) = delete;
    TeilFunktionenMerken& operator=(const TeilFunktionenMerken&) = delete;

private:
    bool m_äußeres;
};

Recordset TeilFunktionUKSuchen(const QString& zertifikat, const QString& name);

} // namespace vemo
