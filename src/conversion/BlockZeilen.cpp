#include "conversion/BlockZeilen.h"

#include "conversion/Berichtsdatei.h"
#include "conversion/Druckbloecke.h"
#include "conversion/FesteBreite.h"
#include "core/ModulState.h"
#include "core/NormWert.h"
#include "core/Worttabelle.h"

namespace vemo {
namespace {

constexpr int Markenbreite = 13;
constexpr int Wertbreite = 11;
constexpr int Namensbreite = Markenbreite - 2; // the general label before its " ="

int wortDerArt(const QString& art) {
    if (art == "M")
        return 406;
    if (art == "G")
        return 405;
    if (art == "E")
        return 404;
    return 0;
}

QString allgemeineMarke(const QString& art, const QString& wertname) {
    const int wort = wortDerArt(art);
    const QString modus = wort > 0 ? xText(mnuText(wort)) : QString();
    return (" " + modus + " " + wertname).left(Namensbreite) + " =";
}

bool istMarke(const QString& a1) {
    return a1 == kontalexsatz::Blockmarke || a1 == kontalexsatz::Endemarke;
}

} // namespace

void BlockZeilen(Berichtsdatei& datei, Satzleser& leser, Satz& satz, const Druckblock& block,
                 const QString& ort, const QString& zeit, const QString& datum) {
    datei.zeile(" ");
    datei.zeile(QString(46, '*'));
    datei.zeile(ort + "-- " + zeit + "  /  " + datum);
    datei.zeile(block.kopf);
    while (!istMarke(satz.a1())) {
        const QString& art = satz.a[1];
        const QString& wertname = satz.a[2];
        const QString& einheit = satz.a[4];
        QString marke = block.marke(art, wertname);
        if (marke.isEmpty())
            marke = allgemeineMarke(art, wertname);
        const QString wert = block.wert(NormWert(satz.a[3], einheit, "s4"), einheit);
        datei.zeile(FesteBreite(marke, Markenbreite) + FesteBreite(wert, Wertbreite));
        leser.lesen(satz);
    }
}

} // namespace vemo
