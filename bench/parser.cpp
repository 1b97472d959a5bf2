// Reading a large report dump into the read-in tables: time per dump, and the peak memory the
// process reaches (ru_maxrss), which should grow with the rows kept, not with the dump.
#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "parsers/EinlesenVonDatei.h"
#include "platform/AufzeichnungsUi.h"
#include "platform/SettingsStore.h"
#include "store/Schema.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sys/resource.h>

using namespace vemo;

namespace {

QByteArray corvexDump(int blöcke) {
    const QByteArray leer(24, ' ');
    QByteArray d = "RUVO GmbH 0100 Multi    \r\n------------------------\r\n4470D    No. 98120-00471\r\n";
    d += " _______________________\r\n" + leer + "\r\n";
    for (int i = 0; i < blöcke; ++i) {
        d += QString("S:  %1    P:  %2\r\n")
                 .arg(i / 40 + 1, 3, 10, QChar('0'))
                 .arg(i % 40 + 1, 3, 10, QChar('0'))
                 .toLatin1();
        d += "------------------------\r\n" + leer + "\r\n";
        switch (i % 3) {
        case 0:
            d += "Riso 500V =  245  MOhm\r\n";
            break;
        case 1:
            d += "Zs   =   0,35  Ohm\r\nIk   =    657  A\r\n";
            break;
        default:
            d += "tFI AC 0     30 mA  x1\r\nt    =    18  ms\r\nUb   =   3,5  V\r\n";
        }
        d += leer + "\r\n";
    }
    return d + leer + "\r\n" + leer + "\r\n";
}

long spitzeKB() {
    rusage r{};
    getrusage(RUSAGE_SELF, &r);
    return r.ru_maxrss;
}

void CorvexDumpEinlesen(benchmark::State& state) {
    QTemporaryDir dir;
    AufzeichnungsUi ui;
    SpeicherSettingsStore einstellungen;
    modul().ui = &ui;
    modul().settings = &einstellungen;
    datenbankAnlegen(dir.filePath("vemotrix.db"), false);
    modul().db = Datenbank::OpenDatabase(dir.filePath("vemotrix.db"));
    modul().Datenbankverzeichnis = QDir::toNativeSeparators(dir.path());
    modul().Selektor() = "Multitester = Deutsch";
    QFile f(arbeitsdatei(datei::Ruvo));
    f.open(QIODevice::WriteOnly);
    f.write(corvexDump(int(state.range(0))));
    f.close();

    const long vorher = spitzeKB();
    for (auto _ : state) {
        state.PauseTiming();
        db().Execute("DELETE * FROM 0100_EinleseMessDaten");
        db().Execute("DELETE * FROM 0100_EinleseDaten");
        state.ResumeTiming();
        EinlesenVonDatei();
    }
    state.counters["Zeilen"] =
        double(db().OpenRecordset("SELECT Count(*) FROM 0100_EinleseMessDaten").Field(0).toInt());
    state.counters["Spitze_MB"] = double(spitzeKB()) / 1024;
    state.counters["Zuwachs_MB"] = double(spitzeKB() - vorher) / 1024;
    if (!ui.meldungen.isEmpty())
        state.SkipWithError(ui.meldungen.first().text.toStdString().c_str());
    NeueID("", "");
    modul().db.Close();
}

} // namespace

BENCHMARK(CorvexDumpEinlesen)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond)->Iterations(3);

BENCHMARK_MAIN();
