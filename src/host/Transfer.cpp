#include "host/Transfer.h"

#include "core/Arbeitsdateisperre.h"
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "host/Dateinummern.h"
#include "host/KontalexTransfer.h"
#include "links/DumpEmpfang.h"
#include "links/SorelinUebertragung.h"
#include "links/ZemakDialog.h"
#include "logger/DateiVorbereiten.h"
#include "parsers/EinlesenVonDatei.h"
#include "platform/Ui.h"
#include "store/Variant.h"

#include <functional>
#include <map>

namespace vemo {
namespace {

// The block transfer of the Sorelin instruments: its dialog leaves the image and Abbruchmerker.
Ausgang sorelinÜbertragung() {
    frmSorelin form;
    form.zeigen();
    return Ausgang::Weiter;
}

// The query dialog of the 37xx instrument of the selector; Abbruchmerker tells the outcome.
Ausgang zemakAbfrage() {
    const Zemakvariante* variante = zemakVariante(modul().Selektor());
    Q_ASSERT(variante);
    zemakÜbertragen(*variante);
    return Ausgang::Weiter;
}

// The link of each selector that has a dialog of its own; every other selector is received as a
// printed dump.
const std::map<QString, std::function<Ausgang()>>& verbindungen() {
    static const std::map<QString, std::function<Ausgang()>> tabelle{
        {selektor::Kontalex, kontalexÜbertragen}, {selektor::Sorelin, sorelinÜbertragung},
        {selektor::Zemak, zemakAbfrage},          {selektor::Zemak3710B, zemakAbfrage},
        {selektor::Zemak3720, zemakAbfrage},      {selektor::Zemak3740, zemakAbfrage},
        {selektor::Quentavoir, zemakAbfrage},
    };
    return tabelle;
}

// The printed dump of the Multitester and Corvex instruments.
Ausgang dumpEmpfang() {
    return dumpEmpfangen() == EmpfangsErgebnis::StillVerlassen ? Ausgang::Verlassen : Ausgang::Weiter;
}

} // namespace

Ausgang TransferStarten() {
    modul().Empfangsende = 0;
    modul().Abbruchmerker = 0;
    const auto it = verbindungen().find(modul().Selektor());
    return it != verbindungen().end() ? it->second() : dumpEmpfang();
}

bool backupVerzeichnisDa() {
    if (mitFalle(backupVerzeichnisPrüfen))
        return true;
    modul().Abbruchmerker = 1;
    return false;
}

bool arbeitsdateienFrei(const Arbeitsdateisperre& sperre) {
    if (sperre.gehalten())
        return true;
    ui().MsgBox(xText("Die Arbeitsdateien werden von einer anderen Übertragung benutzt."),
                modul().anwendungstitel);
    modul().Abbruchmerker = 1;
    return false;
}

void datenpoolVorbereiten() {
    DateiVorbereiten(false);
}

void DatenEmpfangen() {
    ModulState& m = modul();
    ui().DoEvents();
    m.aktuellesPrüfgerät = zahl(m.PrüfgerätID);
    m.Abbruchmerker = 0;
    m.dateinameGewählt.clear();
    ui().DoEvents();
    const auto code = istLeer(m.PrüfgeräteTypID) ? 0 : ganzzahl(m.PrüfgeräteTypID);
    if (const auto s = selektorFür(int(code)))
        m.Selektor() = *s; // any other code leaves the selector of the run before in force
    if (!backupVerzeichnisDa())
        return;
    const Arbeitsdateisperre sperre;
    if (!arbeitsdateienFrei(sperre))
        return;
    if (TransferStarten() == Ausgang::Verlassen)
        return;
    if (m.Abbruchmerker == 1) {
        ui().MsgBox(xText("Datenübertragung abgebrochen"), m.anwendungstitel);
        return;
    }
    m.DatenloggerMode = false;
    EinlesenVonDatei();
    if (m.Abbruchmerker == 1)
        return; // the parser has told the user
    if (m.DatenloggerMode)
        datenpoolVorbereiten();
    nummerierteKopieAnlegen(m.Selektor());
}

} // namespace vemo
