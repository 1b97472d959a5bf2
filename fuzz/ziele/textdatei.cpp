// The line and field input every dump reader stands on. The first byte says in which order lines
// and fields are read, the rest is the file. Each read takes at least one byte, and a read past the
// end raises error 62 and nothing else.
#include "Fuzzumgebung.h"

#include "platform/Fehler.h"
#include "platform/Textdatei.h"

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void befund(const char* was) {
    std::fprintf(stderr, "fuzz: %s\n", was);
    std::abort();
}

void lesen(vemo::Textdatei& datei, bool feld) {
    if (feld)
        datei.feldLesen();
    else
        datei.zeileLesen();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    if (größe == 0)
        return 0;
    auto& umgebung = vemo::fuzz::Fuzzumgebung::instanz();
    const unsigned folge = daten[0];
    const QString pfad = umgebung.dateiAblegen("text.ser", daten + 1, größe - 1);
    vemo::Textdatei datei(pfad);
    std::size_t lesungen = 0;
    while (!datei.eof()) {
        if (++lesungen > größe)
            befund("a read that took nothing: the file never ends");
        lesen(datei, (folge >> (lesungen % 8)) & 1);
    }
    try {
        lesen(datei, folge & 1);
    } catch (const vemo::Fehler& f) {
        if (f.nummer() != vemo::fehler::HinterDateiende)
            befund("a read past the end raised another error than 62");
        return 0;
    }
    befund("a read past the end gave a text");
}
