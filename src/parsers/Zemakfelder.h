#pragma once

#include <QString>
#include <QStringList>

// The fields of the 37xx records: a record is a line of hexadecimal numbers separated by commas,
// and every text the read-in stores is made from these numbers.
namespace vemo {

// The n-th comma-separated field of a line, counted from 1; a field with no comma behind it reaches
// to the end of the line. Where no comma is left, the count starts again at the beginning of the
// line, so that of k fields field n is field ((n - 1) modulo k) + 1: it never fails.
QString GetFeld(const QString& zeile, int n);

// A field of hexadecimal digits without "&H", read as an unsigned number: "8123" is 33059.
// Anything that is not hexadecimal raises 13, more than 64 bits 6.
quint64 hexZahl(const QString& feld);

// A location code: the last four characters of "0000" and the decimal text of the number, so
// "04D2" gives "1234", "7" gives "0007" and "186A0" gives "0000".
QString codeText(const QString& feld);

// A measured value from its value field and attribute field. The attribute's low two bits count
// the decimals (with milli three more, the value then being in the next smaller unit); bit 6 marks
// no value ("---"), bit 3 over range (">" and the value), bit 7 an error ("ERR" and the plain
// value). The decimal mark is the number locale's.
QString GetWertTextMilli(const QString& wert, const QString& attribut, bool milli);

// One record line as a model reads it: the older models take each field with GetFeld, the newer
// split the line, and then a field beyond its end raises 9.
class Datensatz {
public:
    Datensatz(const QString& zeile, bool umlaufend);

    QString feld(int n) const;
    quint64 zahl(int n) const { return hexZahl(feld(n)); }

private:
    QString m_zeile;
    QStringList m_felder;
    bool m_umlaufend;
};

// The function code of the older models: bits 10 to 12 (GetCode3) or 10 to 13 (GetCode4) of the
// mode word in field 8.
quint64 GetCode3(const Datensatz& satz);
quint64 GetCode4(const Datensatz& satz);

} // namespace vemo
