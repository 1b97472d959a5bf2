#include "import/Messtext.h"

#include "core/ModulState.h"

#include <QRegularExpression>

namespace vemo {

namespace {

const QString Startzeile = "**** START ****";
constexpr QChar Satzanfang('!');
constexpr QChar Satzende('#');
constexpr QChar Endmarker('@');
const QString Satztrenner = "###";
const QString Verteilerzeile = "UV";

// The fields of a record before its values; an empty field stands behind the place number, the
// fuse and each of the two RCD fields, and an old version of the text put something there.
enum Feld { Platz, NachPlatz, Name, Kabel, Sicherung, NachSicherung, Fi1, NachFi1, Fi2, NachFi2, Werte };

struct Leerfeld {
    Feld feld;
    const char* meldung;
};
constexpr std::array<Leerfeld, 4> leerfelder{{
    {NachPlatz, "Feld hinter PlatzNr ist nicht leer, enthält "},
    {NachSicherung, "Feld hinter Sicherung ist nicht leer, enthält "},
    {NachFi1, "Feld hinter FI 1 ist nicht leer, enthält "},
    {NachFi2, "Feld hinter FI 2 ist nicht leer, enthält "},
}};

QString dreistellig(const QString& nummer) {
    return nummer.rightJustified(3, '0');
}

class Leser {
public:
    Messtext ergebnis;

    void satz(const QStringList& felder, const QString& verteilername);

private:
    bool platzLesen(const QString& platz, Messkreis& k);
};

bool Leser::platzLesen(const QString& platz, Messkreis& k) {
    static const QRegularExpression form("^(\\d{1,3})/(\\d{1,3})$");
    const auto treffer = form.match(platz.trimmed());
    if (!treffer.hasMatch()) {
        ergebnis.fehler << xText("Stromkreis / Platznummer Format ist fehlerhaft oder alteversion") + " " +
                               platz;
        return false;
    }
    k.verteilerCode = dreistellig(treffer.captured(1));
    k.stromkreisCode = dreistellig(treffer.captured(2));
    return true;
}

void Leser::satz(const QStringList& felder, const QString& verteilername) {
    const auto feld = [&felder](int i) { return felder.value(i).trimmed(); };
    Messkreis k;
    bool gut = platzLesen(feld(Platz), k);
    for (const Leerfeld& l : leerfelder)
        if (!feld(l.feld).isEmpty()) {
            ergebnis.fehler << xText(l.meldung) + feld(l.feld);
            gut = false;
        }
    if (!gut)
        return;
    k.name = feld(Name);
    k.kabel = feld(Kabel);
    k.sicherung = feld(Sicherung);
    k.fiStrom = feld(Fi1);
    k.fiArt = feld(Fi2);
    for (size_t i = 0; i < k.werte.size(); ++i)
        k.werte[i] = feld(Werte + int(i));
    if (!verteilername.isEmpty() && !ergebnis.verteilernamen.contains(k.verteilerCode))
        ergebnis.verteilernamen.insert(k.verteilerCode, verteilername);
    ergebnis.kreise << k;
}

// "!record#!record#...@": the fields of a record separated by ";".
void gepacktLesen(const QString& text, Leser& leser) {
    const qsizetype ende = text.indexOf(Endmarker);
    if (ende < 0) {
        leser.ergebnis.fehler << xText("Endmarker @ nicht gefunden");
        return;
    }
    qsizetype pos = text.indexOf(Satzanfang);
    while (pos >= 0 && pos < ende) {
        qsizetype schluss = text.indexOf(Satzende, pos + 1);
        if (schluss < 0 || schluss > ende)
            schluss = ende;
        leser.satz(text.mid(pos + 1, schluss - pos - 1).split(';'), {});
        pos = text.indexOf(Satzanfang, schluss);
    }
}

// "**** START ****", then one field a line; a line "###" ends a record, a line "UV name" opens the
// next board and gives the boards of its records their name.
void ausführlichLesen(const QString& text, Leser& leser) {
    QStringList zeilen = text.split(QRegularExpression("\r\n|\n|\r"));
    zeilen.removeFirst();
    QString verteilername;
    QStringList felder;
    const auto satzAbschließen = [&] {
        if (!felder.join("").trimmed().isEmpty())
            leser.satz(felder, verteilername);
        felder.clear();
    };
    for (const QString& zeile : zeilen) {
        const QString z = zeile.trimmed();
        if (z == Satztrenner) {
            satzAbschließen();
        } else if (z == Verteilerzeile || z.startsWith(Verteilerzeile + " ")) {
            satzAbschließen();
            verteilername = z.mid(Verteilerzeile.size()).trimmed();
        } else {
            felder << zeile;
        }
    }
    satzAbschließen();
}

} // namespace

Messtext messtextLesen(const QString& text) {
    Leser leser;
    const QString t = text.trimmed();
    if (t.isEmpty())
        return {};
    const bool ausführlich = t.startsWith(Startzeile);
    const bool gepackt = !ausführlich && (t.startsWith(Satzanfang) || t.contains(Endmarker));
    if (ausführlich)
        ausführlichLesen(t, leser);
    else if (gepackt)
        gepacktLesen(t, leser);
    // A text of neither form, and one with faults, is refused whole: half a board would be worse.
    if (!(ausführlich || gepackt) || !leser.ergebnis.fehler.isEmpty()) {
        leser.ergebnis.fehler << xText(" Datei enthält Fehler, kann nicht Importiert werden.");
        leser.ergebnis.kreise.clear();
    }
    return leser.ergebnis;
}

} // namespace vemo
