// A saved raw file of the Kontalex instruments, chosen for reading through the public class: its
// blocks are decoded into the record file, the list of boards and the report are written, and the
// record file is read in.
#include "Fuzzumgebung.h"

#include "host/Modul15a.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    auto& umgebung = vemo::fuzz::Fuzzumgebung::instanz();
    umgebung.frischerLauf();
    vemo0100Modul15a komponente(umgebung.ui, umgebung.settings);
    komponente.EinlesenAusDateiName(umgebung.dateiAblegen("gewaehlt.sep", daten, größe));
    umgebung.keinInternerFehler();
    return 0;
}
