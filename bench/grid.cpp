// The refresh of the read-in grid over many rows: once with every key already settled (the
// refresh after an edit or a partial take-over), once from typed numbers only, where the refresh
// writes the customer and plant keys over several passes. Beside it the cost of the commits the
// first refresh made, each row's keys committing by themselves.
#include "Commitkosten.h"
#include "core/ModulState.h"
#include "grid/EinleseDatenController.h"
#include "platform/AufzeichnungsUi.h"
#include "platform/SettingsStore.h"
#include "store/Schema.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace vemo;

namespace {

// A database with n read-in rows of two instruments, all typed as customer 12, plant 001,
// board 001 and circuit 001 or 002 of the demo data.
class Bestand {
public:
    explicit Bestand(long n) {
        modul().ui = &m_ui;
        modul().settings = &m_settings;
        const QString pfad = m_dir.filePath("bench.db");
        datenbankAnlegen(pfad, true);
        modul().db = Datenbank::OpenDatabase(pfad);
        modul().db.Execute("BEGIN");
        modul().db.Execute("INSERT INTO 0100_EinleseGeräteDaten (GeräteID, PrüfgerätName) "
                           "VALUES (1, 'ZEMAK 3710'), (2, '0100-Corvex')");
        for (long i = 1; i <= n; ++i)
            modul().db.Execute(
                "INSERT INTO 0100_EinleseDaten (MessungID, GeräteID, KundeNr, AnlageNr, VerteilerNr, "
                "StromkreisNr, Datum, Uhrzeit) "
                "VALUES (?, ?, '12', '001', '001', ?, '14.06.2022', '10:00:00')",
                {qlonglong(i), i <= n / 2 ? 1 : 2, i % 2 ? "002" : "001"});
        modul().db.Execute("COMMIT");
    }
    ~Bestand() {
        modul().db.Close();
        modul().ui = nullptr;
        modul().settings = nullptr;
    }

    // Back to typed numbers only, as a parser leaves the rows: the first pass finds the customer,
    // the second the plant; inspection, board and circuit are to be created.
    void schlüsselZurücksetzen() const {
        modul().db.skriptAusführen(
            "UPDATE \"0100_EinleseDaten\" SET KundeID = 0, AnlageID = 0, \"PrüfungID\" = 0, "
            "VerteilerID = 0, StromkreisID = 0;");
    }

private:
    QTemporaryDir m_dir;
    AufzeichnungsUi m_ui;
    SpeicherSettingsStore m_settings;
};

void BM_RefreshSettled(benchmark::State& state) {
    const long n = state.range(0);
    Bestand bestand(n);
    bestand.schlüsselZurücksetzen();
    EinleseDatenController formular; // the first refresh settles the keys
    for (auto _ : state)
        formular.EinleseGridRefresh(1, n);
    state.SetComplexityN(n);
}

void BM_RefreshResolving(benchmark::State& state) {
    const long n = state.range(0);
    Bestand bestand(n);
    bestand.schlüsselZurücksetzen();
    EinleseDatenController formular;
    for (auto _ : state) {
        state.PauseTiming();
        bestand.schlüsselZurücksetzen();
        const qint64 commitsVorher = modul().db.commits();
        state.ResumeTiming();
        formular.EinleseGridRefresh(1, n);
        state.PauseTiming();
        bench::commitsDerLäufe()[n] = modul().db.commits() - commitsVorher;
        state.ResumeTiming();
    }
    state.SetComplexityN(n);
}

} // namespace

BENCHMARK(BM_RefreshSettled)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(BM_RefreshResolving)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(bench::Commits)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
