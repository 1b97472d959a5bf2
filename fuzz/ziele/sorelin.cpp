// The memory image of the Sorelin instruments as the raw working file, decoded by the driver
// tables of the host data.
#include "Fuzzumgebung.h"

#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "parsers/EinlesenVonDatei.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    auto& umgebung = vemo::fuzz::Fuzzumgebung::instanz();
    umgebung.frischerLauf();
    vemo::modul().Selektor() = vemo::selektor::Sorelin;
    umgebung.dateiAblegen(vemo::datei::Rs232Sep, daten, größe);
    vemo::EinlesenVonDatei();
    umgebung.keinInternerFehler();
    return 0;
}
