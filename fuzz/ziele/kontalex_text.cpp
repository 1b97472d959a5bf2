// The record file RS232.TXT of the Kontalex instruments, read into the read-in tables.
#include "Fuzzumgebung.h"

#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "parsers/EinlesenVonDatei.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    auto& umgebung = vemo::fuzz::Fuzzumgebung::instanz();
    umgebung.frischerLauf();
    vemo::modul().Selektor() = vemo::selektor::Kontalex;
    umgebung.dateiAblegen(vemo::datei::Rs232Txt, daten, größe);
    vemo::EinlesenVonDatei();
    umgebung.keinInternerFehler();
    return 0;
}
