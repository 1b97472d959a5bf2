// The cost of a translation: every caption of every dialog passes xText on load, and a text the
// language database does not know yet is added to it, which reads the whole table once.

#include "core/Sprachen.h"
#include "language/SprachDatenbank.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

struct Sprachdatei {
    QTemporaryDir dir;
    vemo::Sprachen sprachen;

    Sprachdatei() {
        vemo::spracheDatenbankAnlegen(dir.path());
        sprachen.setVerzeichnisDatenbank(dir.path());
        sprachen.setNameDatenbank(vemo::sprachdatenbank::DateiName);
        sprachen.DatenbankZuweisen();
        sprachen.setSprache("English (United Kingdom)");
    }
};

void bekannterText(benchmark::State& state) {
    Sprachdatei s;
    for (auto _ : state)
        benchmark::DoNotOptimize(s.sprachen.xText("Datenübertragung läuft..."));
}
BENCHMARK(bekannterText);

void neuerText(benchmark::State& state) {
    Sprachdatei s;
    long n = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(s.sprachen.xText("Neuer Text " + QString::number(n++)));
    state.counters["Zeilen danach"] = double(n);
}
BENCHMARK(neuerText)->Iterations(500);

} // namespace

BENCHMARK_MAIN();
