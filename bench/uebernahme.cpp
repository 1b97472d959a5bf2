// The take-over of read-in rows with seven values each into the inspection records, for 5,000 and
// 10,000 rows: the rows spread over boards of ten circuits, as a dump of a building does. Beside it
// the cost of the commits the run made, each Update committing by itself.
#include "takeover/Uebernahme.h"
#include "Commitkosten.h"
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "grid/EinleseDatenController.h"
#include "platform/KonsolenUi.h"
#include "platform/SettingsStore.h"
#include "store/Datenbank.h"
#include "store/Schema.h"

#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace vemo;

namespace {

QString vierstellig(int n) {
    return QString("%1").arg(n, 4, 10, QChar('0'));
}

void einleseZeilenSchreiben(int anzahl) {
    db().Execute("BEGIN");
    db().Execute("INSERT INTO 0100_EinleseGeräteDaten VALUES (1, '0100-Corvex', '  C12345678', 1, '')");
    for (int i = 1; i <= anzahl; ++i) {
        db().Execute("INSERT INTO 0100_EinleseDaten (MessungID, GeräteID, KundeID, AnlageID, VerteilerNr, "
                     "StromkreisNr) VALUES (?, 1, 1, 1, ?, ?)",
                     {i, vierstellig(1 + i / 10), vierstellig(1 + i % 10)});
        db().Execute(
            "INSERT INTO 0100_EinleseMessDaten VALUES (?1, 'Riso V', '500', 'V'), (?1, 'Riso MOhm', "
            "'245', 'MOhm'), (?1, 'LOW Ohm', '0,12', 'Ohm'), (?1, 'Zs', '0,35', 'Ohm'), (?1, 'Zs Ik', "
            "'657', 'A'), (?1, 'Ri', '0,28', 'Ohm'), (?1, 'Ri Ik', '0,82', 'kA')",
            {i});
    }
    db().Execute("COMMIT");
}

void Uebernahme(benchmark::State& state) {
    KonsolenUi ui;
    SpeicherSettingsStore settings;
    modul().ui = &ui;
    modul().settings = &settings;
    EinleseDatenController::datenübernahmeEinsetzen(Übernehmen);
    const int zeilen = int(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        QTemporaryDir dir;
        NeueID("", "");
        datenbankAnlegen(dir.filePath("v.db"), true);
        modul().db = Datenbank::OpenDatabase(dir.filePath("v.db"));
        modul().Datenbankverzeichnis = dir.path();
        einleseZeilenSchreiben(zeilen);
        EinleseDatenController form; // the refresh before the button is the user's, not the run's
        const qint64 commitsVorher = db().commits();
        state.ResumeTiming();
        form.übernehmenKlick();
        state.PauseTiming();
        bench::commitsDerLäufe()[zeilen] = db().commits() - commitsVorher;
        NeueID("", "");
        modul().db.Close();
        state.ResumeTiming();
    }
    state.counters["rows/s"] =
        benchmark::Counter(double(zeilen) * double(state.iterations()), benchmark::Counter::kIsRate);
}

} // namespace

BENCHMARK(Uebernahme)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(bench::Commits)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(2);

int main(int argc, char** argv) {
    // The take-over runs under a QApplication, which wants a window system; a benchmark machine often
    // has no display, and the offscreen platform measures the same.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
