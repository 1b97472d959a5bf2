#include "logger/DateiVorbereiten.h"

#include "conversion/DumpUmschreiben.h"
#include "conversion/Schluesseltexte.h"
#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "core/Sanduhr.h"
#include "logger/DatenLogger.h"
#include "logger/Loggerdatei.h"
#include "logger/Zuordnen.h"
#include "platform/Textdatei.h"
#include "platform/Ui.h"
#include "platform/Zahlformat.h"

#include <map>

namespace vemo {
namespace {

const QString Varitron = "Multitester = 0100-Varitron";
constexpr int Zeilenbreite = 24;

enum class Art { Keine, Analyse, Logger, Einfach };

struct Befund {
    Art art = Art::Keine;
    QString zeile; // the line that told
};

// Where the number of a board line begins: behind "S: " in the report form, further on in the
// rewritten coded dump, whose board line names the place.
int nummernspalte() {
    return modul().Selektor() == Varitron ? 14 : 4;
}

// The board word of the key texts: entry 4 cut to 24 characters and trimmed, then ": ".
QString verteilerwort() {
    return modul().mulTexte.value(4).left(Zeilenbreite).trimmed() + ": ";
}

// What the dump holds, by the first line that tells.
Befund artErkennen() {
    Textdatei datei(arbeitsdatei(datei::RuvoSav));
    const QString analyse = modul().mulTexte.value(7).left(Zeilenbreite);
    const QString wort = verteilerwort();
    while (!datei.eof()) {
        const QString zeile = datei.zeileLesen();
        if (zeile == analyse)
            return {Art::Analyse, zeile};
        if (istLoggerMarke(zeile))
            return {Art::Logger, zeile};
        if (zeile.startsWith(wort))
            return {Art::Einfach, zeile};
    }
    return {};
}

void vorbereiten(bool neu) {
    if (neu && modul().Selektor() == Varitron) {
        ZeilenPräfixeSetzen();
        DumpUmschreiben();
    }
    SchlüsselTexteSetzen();
    modul().datenpoolModus = "Voreinstellung";
    modul().loggerPrüfungID = 0;
    modul().loggerIDDATLOG = 0;
    modul().arbeitsquelle = arbeitsdatei(datei::Ruvo);
    dateiKopieren(arbeitsdatei(datei::Ruvo), arbeitsdatei(datei::RuvoSav));
}

void einrichten(Zuordnen& pool, const Befund& befund) {
    const Art art = befund.art;
    static const std::map<Art, QString> modi{
        {Art::Analyse, "Fi-Analyse"}, {Art::Logger, "DATEN LOGGER"}, {Art::Einfach, QString()}};
    modul().datenpoolModus = modi.at(art);
    pool.zuordnungZeigen(art == Art::Einfach);
    if (art == Art::Einfach) {
        const double nummer = zahlformat::val(befund.zeile.mid(nummernspalte() - 1));
        pool.text9Verlassen(QString::number(qint64(nummer)));
        if (modul().Selektor() == selektor::Kontalex)
            pool.listeFüllen();
        return;
    }
    pool.diagrammFüllen();
}

// The command line has no window: with a start moment it stores the series at once.
void ohneDialog(Zuordnen& pool) {
    if (pool.modus() != "DATEN LOGGER" || !modul().loggerStart.isValid())
        return;
    DatenLogger logger(pool);
    logger.startSetzen(modul().loggerStart);
    logger.command1();
    pool.command5();
}

void zeigen(Zuordnen& pool) {
    if (modul().datenpoolOhneDialog)
        return ohneDialog(pool);
    if (pool.modus() == "DATEN LOGGER")
        pool.startzeitFragen();
    ui().zeigeModal(pool);
}

} // namespace

void DateiVorbereiten(bool neu) {
    Befund befund;
    const bool gelesen = mitFalle([&] {
        const Sanduhr sanduhr;
        vorbereiten(neu);
        befund = artErkennen();
    });
    if (!gelesen)
        return;
    if (befund.art == Art::Keine) {
        ui().MsgBox(xText("Messdaten Kopf fehlt"), modul().anwendungstitel);
        modul().Abbruchmerker = 1;
        return;
    }
    Zuordnen pool;
    einrichten(pool, befund);
    zeigen(pool);
}

} // namespace vemo
