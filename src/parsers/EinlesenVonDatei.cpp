#include "parsers/EinlesenVonDatei.h"

#include "core/ModulState.h"
#include "parsers/Corvex.h"
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

// The 37xx instruments are received, but their records are not read yet: the user is told, and
// the run goes on, so that the working file gets its numbered copy and nothing received is lost.
void zemakNochNichtLesbar() {
    ui().MsgBox(xText("Diese Version kann die Messungen dieses Prüfgeräts noch nicht einlesen. "
                      "Die übertragenen Daten bleiben in der Datei erhalten."),
                modul().anwendungstitel);
}

// The parser of each Selektor; any selector not listed reads the Multitester report format.
const QHash<QString, Parser>& parserDerSelektoren() {
    static const QHash<QString, Parser> tabelle{
        {"Multitester = Kontalex", nochNichtMöglich},
        {"Multitester = Sorelin", nochNichtMöglich},
        {"Multitester = ZEMAK 3710B", zemakNochNichtLesbar},
        {"Multitester = ZEMAK 3720", zemakNochNichtLesbar},
        {"Multitester = ZEMAK 3740", zemakNochNichtLesbar},
        {"Multitester = Quentavoir", zemakNochNichtLesbar},
        {"Multitester = ZEMAK", zemakNochNichtLesbar},
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
