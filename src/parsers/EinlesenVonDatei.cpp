#include "parsers/EinlesenVonDatei.h"

#include "core/ModulState.h"
#include "parsers/Corvex.h"
#include "parsers/Kontalex.h"
#include "parsers/MultitesterTabelle.h"
#include "platform/Ui.h"

#include <QHash>

namespace vemo {
namespace {

using Parser = void (*)();

// Families whose parser is still to come say so, and the run ends there.
void nochNichtMöglich() {
    ui().MsgBox(xText("Das Einlesen dieses Gerätetyps ist noch nicht möglich"), modul().anwendungstitel);
    modul().Abbruchmerker = 1;
}

// The parser of each Selektor; any selector not listed reads the Multitester report format.
const QHash<QString, Parser>& parserDerSelektoren() {
    static const QHash<QString, Parser> tabelle{
        {"Multitester = Kontalex", Kontalex},
        {"Multitester = Sorelin", nochNichtMöglich},
        {"Multitester = ZEMAK 3710B", nochNichtMöglich},
        {"Multitester = ZEMAK 3720", nochNichtMöglich},
        {"Multitester = ZEMAK 3740", nochNichtMöglich},
        {"Multitester = Quentavoir", nochNichtMöglich},
        {"Multitester = ZEMAK", nochNichtMöglich},
    };
    return tabelle;
}

class Sanduhr {
public:
    Sanduhr() { ui().sanduhr(true); }
    ~Sanduhr() { ui().sanduhr(false); }
    Sanduhr(const Sanduhr&) = delete;
    Sanduhr& operator=(const Sanduhr&) = delete;
};

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
