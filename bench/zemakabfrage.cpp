// What a 37xx transfer costs the component: a memory of 1000 records fetched from the simulator
// on a pseudo-terminal at 9600 baud, the whole dialogue from the search to the saved file. The
// simulator runs in a process of its own, so the CPU time of this process is the component's.
// Counters: Leitung_s, the time the memory reply spends on the wire (ten bits a character);
// Dauer_s, the transfer as the user waits for it; CPU_s, the component's own processor time;
// Anteil_%, CPU_s as a share of Leitung_s.
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "links/ZemakDialog.h"
#include "platform/AufzeichnungsUi.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sys/resource.h>

namespace {

constexpr int Baud = 9600;

double cpuSekunden() {
    rusage r{};
    getrusage(RUSAGE_SELF, &r);
    const auto sekunden = [](const timeval& t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
    return sekunden(r.ru_utime) + sekunden(r.ru_stime);
}

void BM_ZemakAbfrage(benchmark::State& state) {
    const int datensätze = int(state.range(0));
    const vemo::Zemakvariante& variante = *vemo::zemakVariante(vemo::selektor::Zemak3720);
    QTemporaryDir dir;
    vemo::AufzeichnungsUi ui;
    vemo::modul().ui = &ui;
    vemo::modul().Datenbankverzeichnis = dir.path();
    vemo::modul().portPfad = dir.filePath("port");

    QProcess simulator;
    simulator.start(
        QString(VEMO_BIN_DIR) + "/vemo0100-sim",
        {"--type", "105", "--records", QString::number(datensätze), "--link", vemo::modul().portPfad});
    if (!simulator.waitForReadyRead(5000)) {
        state.SkipWithError("the simulator did not start");
        return;
    }

    double dauer = 0, cpu = 0;
    for (auto _ : state) {
        vemo::modul().Abbruchmerker = 0;
        QElapsedTimer uhr;
        uhr.start();
        const double cpuVorher = cpuSekunden();
        vemo::zemakÜbertragen(variante);
        cpu += cpuSekunden() - cpuVorher;
        dauer += double(uhr.nsecsElapsed()) / 1e9;
        if (vemo::modul().Abbruchmerker != 0)
            state.SkipWithError("the transfer was aborted");
    }
    const double abfragen = double(state.iterations());
    const double antwort = variante.kopf + double(variante.satzlänge) * datensätze + 1;
    const double leitung = antwort * 10 / Baud;
    state.counters["Leitung_s"] = leitung;
    state.counters["Dauer_s"] = dauer / abfragen;
    state.counters["CPU_s"] = cpu / abfragen;
    state.counters["Anteil_%"] = 100 * cpu / abfragen / leitung;

    simulator.terminate();
    simulator.waitForFinished(2000);
    vemo::modul().ui = nullptr;
}
BENCHMARK(BM_ZemakAbfrage)->Arg(1000)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
