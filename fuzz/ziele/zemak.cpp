// The working file of the 37xx instruments. The model is told by the first line, as for a chosen
// file; a line that names none of them reads as the plain 37xx, so that every input reaches the
// family's reader.
#include "Fuzzumgebung.h"

#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "host/DateiEinlesen.h"
#include "parsers/EinlesenVonDatei.h"

namespace {

bool istZemak(const QString& s) {
    using namespace vemo::selektor;
    return s == Zemak || s == Zemak3710B || s == Zemak3720 || s == Zemak3740 || s == Quentavoir;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    auto& umgebung = vemo::fuzz::Fuzzumgebung::instanz();
    umgebung.frischerLauf();
    const QString pfad = umgebung.dateiAblegen(vemo::datei::Ruvo, daten, größe);
    vemo::GeräteErkennen(pfad);
    if (!istZemak(vemo::modul().Selektor()))
        vemo::modul().Selektor() = vemo::selektor::Zemak;
    vemo::EinlesenVonDatei();
    umgebung.keinInternerFehler();
    return 0;
}
