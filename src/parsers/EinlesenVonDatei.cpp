#include "parsers/EinlesenVonDatei.h"

#include "core/ModulState.h"
#include "core/Sanduhr.h"
#include "parsers/Corvex.h"
#include "parsers/Kontalex.h"
#include "parsers/MultitesterTabelle.h"
#include "parsers/Sorelin.h"
#include "parsers/Zemak.h"
#include "platform/Ui.h"

#include <QHash>

namespace vemo {
namespace {

using Parser = void (*)();

// The parser of each Selektor; any selector not listed reads the Multitester report format.
const QHash<QString, Parser>& parserDerSelektoren() {
    static const QHash<QString, Parser> tabelle{
        {"Multitester = Kontalex", Kontalex},     {"Multitester = Sorelin", Sorelin},
        {"Multitester = ZEMAK", ZEMAK},           {"Multitester = ZEMAK 3710B", ZEMAK3710B},
        {"Multitester = ZEMAK 3720", ZEMAK3720},  {"Multitester = ZEMAK 3740", ZEMAK3740},
        {"Multitester = Quentavoir", Quentavoir},
    };
    return tabelle;
}

} // namespace

void EinlesenVonDatei() {
    const Sanduhr sanduhr;
    MultitesterGefunden() = false;
    const bool ohneFehler = mitFalle([] {
        parserDerSelektoren().value(modul().Selektor(), Corvex)();
        if (MultitesterGefunden())
            Multitester0100Tabelle();
    });
    if (!ohneFehler) {
        // The run goes no further: no data pool, no numbered copy.
        modul().Abbruchmerker = 1;
        return;
    }
    modul().PrüfgerätID = modul().aktuellesPrüfgerät;
}

} // namespace vemo
