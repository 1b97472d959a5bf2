#include "Instrumentbefehl.h"

#include "core/ModulState.h"
#include "links/ZemakEinstellung.h"

#include <QElapsedTimer>
#include <QThread>
#include <algorithm>

using namespace vemo;

namespace {

constexpr int Abfragen = 4; // polls an instrument has to answer in

// A digit count of 1 to 3, as the dialog's combos offer them.
bool stellenLesen(const Optionen& o, const QString& name, std::optional<int>& ziel, QString& fehler) {
    const auto wert = o.option(name);
    if (!wert)
        return true;
    bool ok = false;
    const int stellen = wert->toInt(&ok);
    if (!ok || stellen < 1 || stellen > 3) {
        fehler = "instrument: " + name + " takes 1, 2 or 3, not " + *wert;
        return false;
    }
    ziel = stellen;
    return true;
}

// Polls at the dialog's pace until the instrument answers, for a few polls.
bool gerätSuchen(frmSettingZEMAK3710& form) {
    for (int i = 0; i < Abfragen; ++i) {
        QElapsedTimer takt;
        takt.start();
        form.Timer1();
        if (form.verbunden())
            return true;
        if (i + 1 < Abfragen)
            QThread::msleep(std::max<qint64>(0, frmSettingZEMAK3710::Taktzeit - takt.elapsed()));
    }
    return false;
}

void befehleGeben(frmSettingZEMAK3710& form, const Instrumentauftrag& auftrag) {
    if (auftrag.kennung) {
        form.setKennungstext(*auftrag.kennung);
        form.ComSend();
    }
    if (auftrag.uhrStellen)
        form.ComSync();
    if (auftrag.speicherLöschen)
        form.ComMesLöschen();
}

int mitGerät(frmSettingZEMAK3710& form, const Instrumentauftrag& auftrag, QTextStream& aus) {
    if (!form.verbinden())
        return 1;
    if (gerätSuchen(form) && auftrag.sprichtMitGerät()) {
        befehleGeben(form, auftrag);
        form.Timer1();
    }
    aus << "instrument: " << form.gerät() << "\n";
    if (!form.verbunden())
        return 1;
    aus << "serial: " << form.serienNr() << "\n";
    aus << "clock: " << form.prüfgerätZeit() << "\n";
    return 0;
}

} // namespace

std::optional<Instrumentauftrag> instrumentauftragLesen(const Optionen& o, QString& fehler) {
    Instrumentauftrag a;
    a.kennung = o.option("--set-id");
    a.uhrStellen = o.schalter("--sync-clock");
    a.speicherLöschen = o.schalter("--clear-memory");
    if (const auto an = o.option("--code-splitting")) {
        if (*an != "on" && *an != "off") {
            fehler = "instrument: --code-splitting takes on or off, not " + *an;
            return std::nullopt;
        }
        a.codeSplitting = *an == "on";
    }
    if (!stellenLesen(o, "--customer-digits", a.kundenstellen, fehler) ||
        !stellenLesen(o, "--board-digits", a.verteilerstellen, fehler))
        return std::nullopt;
    return a;
}

int instrumentBefehl(const Instrumentauftrag& auftrag, QTextStream& aus) {
    frmSettingZEMAK3710 form(einstellungsvariante(modul().PrüfgeräteTypID));
    form.laden();
    if (auftrag.codeSplitting)
        form.setCodeSplitting(*auftrag.codeSplitting);
    if (auftrag.kundenstellen)
        form.setKundenstellenIndex(*auftrag.kundenstellen - 1);
    if (auftrag.verteilerstellen)
        form.setVerteilerstellenIndex(*auftrag.verteilerstellen - 1);
    const int status = auftrag.brauchtGerät() ? mitGerät(form, auftrag, aus) : 0;
    form.ComSchließen();
    return status;
}
