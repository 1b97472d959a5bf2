// The refresh of the read-in grid over many rows: once with every key already settled (the
// refresh after an edit or a partial take-over), once from typed numbers only, where the refresh
// writes the customer and plant keys over several passes. Beside it the cost of the commits the
// first refresh made, each row's keys committing by themselves. The same on a database server,
// beside as many bare one-row transactions there.
#include "Commitkosten.h"
#include "Server.h"
#include "core/ModulState.h"
#include "grid/EinleseDatenController.h"
#include "platform/AufzeichnungsUi.h"
#include "platform/SettingsStore.h"
#include "store/Schema.h"
#include "store/Transaktion.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <map>

using namespace vemo;
using test::Motor;

namespace {

// The commits of the last measured run on the server, by its argument.
std::map<long, qint64>& commitsAufDemServer() {
    static std::map<long, qint64> commits;
    return commits;
}

// A database with n read-in rows of two instruments, all typed as customer 12, plant 001,
// board 001 and circuit 001 or 002 of the demo data.
class Bestand {
public:
    Bestand(long n, Motor motor, benchmark::State& state) {
        modul().ui = &m_ui;
        modul().settings = &m_settings;
        QString pfad = m_dir.filePath("bench.db");
        if (motor == Motor::Server)
            pfad = bench::serverdatenbank(state, true);
        else
            datenbankAnlegen(pfad, true);
        modul().db = Datenbank::OpenDatabase(pfad);
        Transaktion alle(modul().db);
        modul().db.Execute("INSERT INTO 0100_EinleseGeräteDaten (GeräteID, PrüfgerätName) "
                           "VALUES (1, 'ZEMAK 3710'), (2, '0100-Corvex')");
        for (long i = 1; i <= n; ++i)
            modul().db.Execute(
                "INSERT INTO 0100_EinleseDaten (MessungID, GeräteID, KundeNr, AnlageNr, VerteilerNr, "
                "StromkreisNr, Datum, Uhrzeit) "
                "VALUES (?, ?, '12', '001', '001', ?, '14.06.2022', '10:00:00')",
                {qlonglong(i), i <= n / 2 ? 1 : 2, i % 2 ? "002" : "001"});
        alle.commit();
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

void BM_RefreshSettled(benchmark::State& state, Motor motor) {
    const long n = state.range(0);
    Bestand bestand(n, motor, state);
    bestand.schlüsselZurücksetzen();
    EinleseDatenController formular; // the first refresh settles the keys
    for (auto _ : state)
        formular.EinleseGridRefresh(1, n);
    state.SetComplexityN(n);
}

void BM_RefreshResolving(benchmark::State& state, Motor motor) {
    const long n = state.range(0);
    Bestand bestand(n, motor, state);
    bestand.schlüsselZurücksetzen();
    EinleseDatenController formular;
    for (auto _ : state) {
        state.PauseTiming();
        bestand.schlüsselZurücksetzen();
        const qint64 commitsVorher = modul().db.commits();
        state.ResumeTiming();
        formular.EinleseGridRefresh(1, n);
        state.PauseTiming();
        (motor == Motor::Server ? commitsAufDemServer() : bench::commitsDerLäufe())[n] =
            modul().db.commits() - commitsVorher;
        state.ResumeTiming();
    }
    state.SetComplexityN(n);
}

// As many one-row transactions as the resolving refresh committed on the server, by bare libpq:
// half add a measurement row, half count a key on.
void CommitsServer(benchmark::State& state) {
    const auto lauf = commitsAufDemServer().find(long(state.range(0)));
    if (lauf == commitsAufDemServer().end()) {
        state.SkipWithError("the run with this argument has not been measured");
        return;
    }
    for (auto _ : state) {
        state.PauseTiming();
        const bench::Roh roh(bench::serverdatenbank(state, false));
        roh.ausführen("INSERT INTO idincrement VALUES (1, 0, '0100_Messung', 10000)");
        roh.vorbereiten("messung", "INSERT INTO \"0100_messung\" (stromkreisid, riso) VALUES ($1, '245')");
        roh.vorbereiten("zaehler", "UPDATE idincrement SET lastid = lastid + 1 WHERE idincrementid = 1");
        state.ResumeTiming();
        for (qint64 i = 0; i < lauf->second; ++i)
            i % 2 ? roh.schritt("zaehler") : roh.schritt("messung", QByteArray::number(i));
    }
    state.counters["commits"] = double(lauf->second);
}

} // namespace

BENCHMARK_CAPTURE(BM_RefreshSettled, Datei, Motor::Sqlite)
    ->Arg(5000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK_CAPTURE(BM_RefreshResolving, Datei, Motor::Sqlite)
    ->Arg(5000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(bench::Commits)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_RefreshSettled, Server, Motor::Server)
    ->Arg(1000)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_RefreshResolving, Server, Motor::Server)
    ->Arg(1000)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(CommitsServer)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
