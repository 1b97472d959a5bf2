#include "parsers/Primitive.h"

#include "core/ModulState.h"
#include "platform/Ui.h"
#include "platform/Zahlformat.h"
#include "store/Datenbank.h"
#include "store/Literal.h"
#include "store/Variant.h"

namespace vemo {
namespace {

// Characters that make up a number on a dump line: ( ) * + , - . / digits : ; < = >
bool istZahlzeichen(QChar c) {
    return c.unicode() >= 40 && c.unicode() <= 62;
}

// 1-based access as the dump lines are read.
QChar zeichen(const QString& s, int pos) {
    return s.at(pos - 1);
}

// InStr without regard to case: 1-based position, 0 when not found.
int suche(int ab, const QString& text, const QString& muster) {
    if (ab < 1 || ab > text.size() + 1)
        return 0;
    return int(text.indexOf(muster, ab - 1, Qt::CaseInsensitive)) + 1;
}

QString erstesWort(const QString& s) {
    return s.left(s.indexOf(' ') < 0 ? s.size() : s.indexOf(' '));
}

// A number written with "." as the decimal mark, as the conversion of units writes it.
QString punktText(double wert) {
    return zahlformat::text(wert).replace(zahlformat::locale().decimalPoint(), ".");
}

} // namespace

QString DelZeichen(const QString& zeile) {
    const int p = int(zeile.indexOf('!'));
    return p < 0 ? zeile : zeile.left(p);
}

QString SetNull(const QString& text) {
    if (zahlformat::val(text) == 0)
        return {};
    return QString("000" + text).right(3);
}

QString GetZahl(const QString& eingabe, int& start, QString& rest) {
    const QString l = eingabe.trimmed();
    const int länge = int(l.size());
    QString zahl;
    int q;
    if (const int p = suche(start, l, "o.r."); p > 0) {
        zahl = "o.r.";
        q = p + 4;
    } else {
        q = std::max(start, 1);
        while (q <= länge) {
            const ushort c = zeichen(l, q).unicode();
            if (!(c < 40 || c > 62 || c == '=' || c == ':'))
                break;
            ++q;
        }
        const int a = q;
        while (q <= länge && istZahlzeichen(zeichen(l, q)))
            ++q;
        zahl = l.mid(a - 1, q - a);
        if (a > 3) {
            const QString marke = l.mid(a - 4, 2);
            if (marke == "AC" || marke == "DC" || marke == "PL")
                zahl = l.mid(a - 4, q - a + 3) + "°"; // the phase of an RCD test: "AC 180°"
        }
        if (zahl.startsWith('.') || zahl.startsWith(','))
            zahl = "0" + zahl;
        if (zahl.isEmpty()) {
            if (const int p = suche(start, l, "OL"); p > 0) {
                zahl = "o.r.";
                q = p + 4; // four on, although the mark has two letters
            }
        }
    }
    const QString nachher = l.mid(q - 1);
    const QString getrimmt = nachher.trimmed();
    const int blanks = int(nachher.size() - getrimmt.size());
    rest = erstesWort(getrimmt);
    if (!rest.isEmpty() && istZahlzeichen(rest.at(0)))
        rest.clear(); // not a unit but the next number
    start = q + blanks + int(rest.size());
    return zahl;
}

QString GetFunktion(const QString& zeile, QString& funktion, const QString& einheit) {
    const QString l = zeile.trimmed();
    const int p = int(l.indexOf('='));
    QString ergebnis;
    if (p < 0) {
        if (einheit == "mA" && l.contains(" S  ", Qt::CaseInsensitive))
            ergebnis = erstesWort(l) + " S " + einheit; // the selective mark
        else
            ergebnis = (erstesWort(l) + " " + einheit).trimmed();
    } else {
        const QString vorher = l.left(p).trimmed();
        ergebnis =
            vorher.startsWith(funktion, Qt::CaseInsensitive) ? vorher : (funktion + " " + vorher).trimmed();
        if (vorher.endsWith('V', Qt::CaseInsensitive))
            ergebnis = (erstesWort(l) + " " + einheit).trimmed();
    }
    if (funktion.isEmpty())
        funktion = erstesWort(ergebnis);
    return ergebnis;
}

QString GetFunktionMul(const QString& zeile, QString& funktion2, QString& wert2) {
    const QString l = zeile.trimmed();
    funktion2.clear();
    const int p = int(l.indexOf(':'));
    if (p < 0)
        return {};
    const int blank = int(l.left(p).lastIndexOf(' '));
    const QString schlüssel = l.mid(blank + 1, p - blank - 1).trimmed();
    if (schlüssel.endsWith('V', Qt::CaseInsensitive) && schlüssel.startsWith('R', Qt::CaseInsensitive)) {
        // An insulation test carries its test voltage in the key: "R500V".
        int start = 1;
        QString rest;
        wert2 = GetZahl(schlüssel, start, rest);
        funktion2 = "Riso V";
        return "Riso MOhm";
    }
    if (schlüssel == "R")
        return "LOW Ohm";
    if (schlüssel.startsWith("ZS", Qt::CaseInsensitive) || schlüssel.startsWith("RS", Qt::CaseInsensitive))
        return schlüssel.left(2);
    return schlüssel;
}

QString WertEinheit(const QVariant& wert, const QString& einheitVon, const QString& einheitNach) {
    const QString original = text(wert);
    if (einheitVon.isEmpty() || einheitNach.isEmpty())
        return original;
    const bool komma = original.contains(',');
    QString w = QString(original).replace(',', '.').trimmed();
    QString zeichen;
    if (w.startsWith('>') || w.startsWith('<')) {
        zeichen = w.left(1);
        w = w.mid(1).trimmed();
    }
    const QChar c1 = einheitVon.at(0);
    const QChar c2 = einheitNach.at(0);
    double faktor = 1;
    if (c1 == c2)
        faktor = 1;
    else if (c1 == 'K' || c1 == 'k' || c1 == 'G' || c1 == 'g')
        faktor = 1000; // "G" to "M" and "k" to the base are the same step
    else if (c1 == 'm')
        faktor = 0.001;
    else if (c2 == 'm')
        faktor = 1000;
    else {
        ui().MsgBox("Unbekannte Einheit " + original + " " + einheitVon + " " + einheitNach,
                    modul().anwendungstitel);
        return original;
    }
    const auto zahl = zahlformat::zahl(w);
    if (!zahl || faktor == 1)
        return original;
    QString ergebnis = zeichen + punktText(*zahl * faktor);
    if (komma)
        ergebnis.replace('.', ',');
    return ergebnis;
}

QString WertText(const QString& wert) {
    if (wert.isEmpty())
        return {};
    if (wert.count('.') < 2) {
        if (const auto z = zahlformat::zahl(wert))
            return zahlformat::text(*z);
        if (wert.startsWith('<') || wert.startsWith('>'))
            if (const auto r = zahlformat::zahl(wert.mid(1)))
                return wert.left(1) + zahlformat::text(*r);
    }
    return wert;
}

namespace {
QChar klasse(const QString& wert) {
    if (wert.startsWith('<') || wert.startsWith('>'))
        return wert.at(0);
    return '=';
}
double vergleichszahl(const QString& wert) {
    return zahlformat::val(QString(wert).replace(',', '.'));
}
} // namespace

bool IstGrösser(const QString& alt, const QString& neu) {
    if (klasse(alt) == '=' && klasse(neu) == '=')
        return vergleichszahl(alt) < vergleichszahl(neu);
    return klasse(neu) == '>';
}

bool IstKleiner(const QString& alt, const QString& neu) {
    if (klasse(alt) == '=' && klasse(neu) == '=')
        return vergleichszahl(alt) > vergleichszahl(neu);
    return klasse(neu) == '<';
}

namespace {
TeilFunktionsantwort teilFunktionLesen(const QString& name) {
    // The function name comes from the dump: a literal, whatever it holds.
    Recordset rs =
        db().OpenRecordset("SELECT * FROM 0100_TeilFunktion WHERE TeilFunktion = " + literal(name));
    if (rs.Eof())
        return {};
    return {false, rs.Text("spaltenname"), rs.Text("Einheit")};
}
} // namespace

bool TeilFunktionSuchen(const QString& name, QString& spaltenname, QString& einheit) {
    ModulState& m = modul();
    TeilFunktionsantwort antwort;
    if (const auto gemerkt = m.teilFunktionen.constFind(name); gemerkt != m.teilFunktionen.cend()) {
        antwort = *gemerkt;
    } else {
        antwort = teilFunktionLesen(name);
        if (m.teilFunktionenMerken)
            m.teilFunktionen.insert(name, antwort);
    }
    if (antwort.fehlt)
        return true;
    spaltenname = antwort.spaltenname;
    einheit = antwort.einheit;
    return false;
}

TeilFunktionenMerken::TeilFunktionenMerken() : m_äußeres(!modul().teilFunktionenMerken) {
    modul().teilFunktionenMerken = true;
}

TeilFunktionenMerken::~TeilFunktionenMerken() {
    if (!m_äußeres)
        return;
    modul().teilFunktionenMerken = false;
    modul().teilFunktionen.clear();
}

Recordset TeilFunktionUKSuchen(const QString& zertifikat, const QString& name) {
    return db().OpenRecordset("SELECT * FROM 0100_TeilFunktionUK WHERE Zertifikat=" + literal(zertifikat) +
                              " AND TeilFunktion = " + literal(name));
}

} // namespace vemo
