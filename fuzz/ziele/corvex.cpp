// The printed dump of the Multitester and Corvex instruments, read as the working file the way a
// file read or a transfer reads it; a Multitester's goes on into its table.
#include "Fuzzumgebung.h"

#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "parsers/EinlesenVonDatei.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    auto& umgebung = vemo::fuzz::Fuzzumgebung::instanz();
    umgebung.frischerLauf();
    vemo::modul().Selektor() = vemo::selektor::Deutsch;
    umgebung.dateiAblegen(vemo::datei::Ruvo, daten, größe);
    vemo::EinlesenVonDatei();
    umgebung.keinInternerFehler();
    return 0;
}
