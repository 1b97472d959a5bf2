// Any file the user chooses to read, through the public class: the instrument is told by the file
// itself, the file becomes its family's working file and is read in.
#include "Fuzzumgebung.h"

#include "host/Modul15a.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    auto& umgebung = vemo::fuzz::Fuzzumgebung::instanz();
    umgebung.frischerLauf();
    vemo0100Modul15a komponente(umgebung.ui, umgebung.settings);
    komponente.EinlesenAusDateiName(umgebung.dateiAblegen("gewaehlt.ser", daten, größe));
    umgebung.keinInternerFehler();
    return 0;
}
