#include "parsers/MultitesterTabelle.h"

#include "core/Arbeitsdateien.h"
#include "parsers/Dumpkopf.h"
#include "parsers/Einlesebloecke.h"
#include "parsers/GeraetAnmelden.h"
#include "parsers/Primitive.h"
#include "platform/Textdatei.h"

namespace vemo {
namespace {

bool leer(const QString& zeile) {
    return zeile.trimmed().isEmpty();
}

// A circuit number begins a block; so does any other line that begins with a digit.
bool beginntMitZiffer(const QString& zeile) {
    const QString t = zeile.trimmed();
    return !t.isEmpty() && t.at(0) >= '0' && t.at(0) <= '9';
}

// False when the dump ends before its ruler: a read-in with an instrument and no blocks.
bool zumLineal(Textdatei& datei) {
    while (!datei.eof())
        if (datei.zeileLesen().trimmed().startsWith("---"))
            return true;
    return false;
}

// The values of one line from start on. An insulation key such as "R500V:" gives a second row,
// the test voltage.
void werteDerZeile(Einleseblöcke& blöcke, qint32 messungID, const QString& zeile, int start) {
    const int länge = int(zeile.trimmed().size());
    while (länge >= start) {
        QString einheit;
        QString wert = GetZahl(zeile, start, einheit);
        if (wert.isEmpty())
            continue;
        const QString wertText = WertText(wert);
        QString funktion2;
        const QString funktion = GetFunktionMul(zeile, funktion2, wert);
        blöcke.neuerWert(messungID, funktion, wertText, einheit);
        if (!funktion2.isEmpty() && !wert.isEmpty())
            blöcke.neuerWert(messungID, funktion2, WertText(wert), "V");
    }
}

// Reads the lines of a block up to an empty line or the next line that begins with a digit, and
// returns that line. The dump's last line is not read for values: a dump ends with empty lines.
QString blockLesen(Textdatei& datei, Einleseblöcke& blöcke, qint32 messungID, QString zeile, int start) {
    do {
        if (!datei.eof())
            werteDerZeile(blöcke, messungID, zeile, start);
        zeile = datei.zeileLesen();
        start = 1;
    } while (!leer(zeile) && !beginntMitZiffer(zeile));
    return zeile;
}

} // namespace

void Multitester0100Tabelle() {
    Textdatei datei(arbeitsdatei(datei::Ruvo));
    const QString geräteZeile = geräteZeileLesen(datei);
    const auto geräteID =
        GerätAnmelden(familie::Multitester, {{}, {}, seriennummerDerGeräteZeile(geräteZeile)});
    if (!geräteID || !zumLineal(datei))
        return;
    Einleseblöcke blöcke;
    QString zeile = datei.zeileLesen();
    while (!datei.eof()) {
        int start = 1;
        QString rest;
        const QString stromkreis = GetZahl(zeile, start, rest);
        const qint32 messungID = blöcke.neuerBlock(*geräteID, "0001", vierstellig(stromkreis));
        zeile = blockLesen(datei, blöcke, messungID, zeile, start);
        if (leer(zeile))
            while (!beginntMitZiffer(zeile) && !datei.eof())
                zeile = datei.zeileLesen();
    }
}

} // namespace vemo
