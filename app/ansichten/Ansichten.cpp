#include "ansichten/Ansichten.h"

#include "grid/EinleseDatenAnsicht.h"
#include "grid/SammelzuordnungAnsicht.h"
#include "import/FormImportAnsicht.h"
#include "links/Form2Ansicht.h"
#include "links/KontalexAnsicht.h"
#include "links/SorelinAnsicht.h"
#include "links/ZemakAnsicht.h"
#include "links/ZemakEinstellungAnsicht.h"
#include "logger/DatenLoggerAnsicht.h"
#include "logger/ZuordnenAnsicht.h"
#include "takeover/TeilFunktionAnsicht.h"
#include "takeover/TeilFunktionDialog.h"

namespace vemo {

// One line a dialog: the controller's class name and how its view is made.
const Ansichtstabelle& ansichten() {
    static const Ansichtstabelle tabelle{
        {"vemo::EinleseDatenController", einleseDatenAnsicht},
        {"vemo::Form2", &Form2Ansicht::erstellen},
        {"vemo::frmZEMAK", &ZemakAnsicht::erstellen},
        {"vemo::frmTeilFunktion",
         [](DialogController& c, QWidget* p) {
             return new TeilFunktionAnsicht(static_cast<frmTeilFunktion&>(c), p);
         }},
        {"vemo::frmSorelin", &SorelinAnsicht::erstellen},
        {"vemo::Kontalex", &KontalexAnsicht::erstellen},
        {"vemo::frmSettingZEMAK3710", &ZemakEinstellungAnsicht::erstellen},
        {"vemo::Zuordnen", &ZuordnenAnsicht::erstellen},
        {"vemo::DatenLogger", &DatenLoggerAnsicht::erstellen},
        {"vemo::FormImport", &FormImportAnsicht::erstellen},
        {"vemo::frmZuordnen", &SammelzuordnungAnsicht::erstellen},
    };
    return tabelle;
}

} // namespace vemo
