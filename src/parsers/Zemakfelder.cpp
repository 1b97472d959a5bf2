#include "parsers/Zemakfelder.h"

#include "platform/Blanks.h"
#include "platform/Fehler.h"
#include "platform/Zahlformat.h"

namespace vemo {
namespace {

quint64 zehnHoch(int n) {
    quint64 z = 1;
    while (n-- > 0)
        z *= 10;
    return z;
}

// n / 10^stellen with a fixed number of decimals (no more than stellen), as the format "0", "0.0" ...
// writes it: the digits it has no room for are rounded off, half up.
QString festkomma(quint64 n, int stellen, int nachkomma) {
    const quint64 teiler = zehnHoch(stellen - nachkomma);
    const quint64 gerundet = n / teiler + (n % teiler * 2 >= teiler ? 1 : 0);
    const QString ziffern = QString::number(gerundet).rightJustified(nachkomma + 1, '0');
    if (nachkomma == 0)
        return ziffern;
    return ziffern.left(ziffern.size() - nachkomma) + zahlformat::locale().decimalPoint() +
           ziffern.right(nachkomma);
}

bool istHexziffer(QChar c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

} // namespace

QString GetFeld(const QString& zeile, int n) {
    qsizetype komma = -1; // the comma before the field; -1 is the start of the line
    for (int i = 1; i < n; ++i)
        komma = zeile.indexOf(',', komma + 1);
    const qsizetype ende = zeile.indexOf(',', komma + 1);
    return ende < 0 ? zeile.mid(komma + 1) : zeile.mid(komma + 1, ende - komma - 1);
}

quint64 hexZahl(const QString& feld) {
    const QString ziffern = ohneRandblanks(feld);
    if (ziffern.isEmpty())
        throw fehler::mit(fehler::TypenUnverträglich, "\"" + feld + "\"");
    for (const QChar c : ziffern)
        if (!istHexziffer(c))
            throw fehler::mit(fehler::TypenUnverträglich, "\"" + feld + "\"");
    bool ok = false;
    const quint64 zahl = ziffern.toULongLong(&ok, 16);
    if (!ok)
        throw fehler::mit(fehler::Überlauf, "\"" + feld + "\"");
    return zahl;
}

QString codeText(const QString& feld) {
    return ("0000" + QString::number(hexZahl(feld))).right(4);
}

QString GetWertTextMilli(const QString& wert, const QString& attribut, bool milli) {
    const quint64 a = hexZahl(attribut);
    const int p = int(a & 3);
    const quint64 n = hexZahl(wert);
    const int stellen = milli ? p + 3 : p;
    // The format has two decimals at most, so three decimals lose one; with milli it has three.
    const int nachkomma = milli ? 3 : std::min(p, 2);
    if (a & 64)
        return "---";
    if (a & 8)
        return ">" + festkomma(n, stellen, nachkomma);
    if (a & 128)
        return "ERR" + zahlformat::text(double(n) / double(zehnHoch(stellen)));
    return festkomma(n, stellen, nachkomma);
}

Datensatz::Datensatz(const QString& zeile, bool umlaufend)
    : m_zeile(zeile), m_felder(umlaufend ? QStringList() : zeile.split(',')), m_umlaufend(umlaufend) {}

QString Datensatz::feld(int n) const {
    if (m_umlaufend)
        return GetFeld(m_zeile, n);
    if (n < 1 || n > m_felder.size())
        throw fehler::mit(fehler::IndexAußerhalb, QString("Feld %1").arg(n));
    return m_felder[n - 1];
}

quint64 GetCode3(const Datensatz& satz) {
    return (satz.zahl(8) & 0x1C00) / 1024;
}

quint64 GetCode4(const Datensatz& satz) {
    return (satz.zahl(8) & 0x3C00) / 1024;
}

} // namespace vemo
