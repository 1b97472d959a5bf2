// Reading a full 37xx memory into the read-in tables: 10,000 records of the 3720 (50 characters
// each) and of the 3740 (83). Reported per read: the time, the peak memory of the process
// (ru_maxrss), and the share of the time the same memory takes on the line at 9600 baud, ten bits
// a character.
#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "parsers/EinlesenVonDatei.h"
#include "platform/AufzeichnungsUi.h"
#include "platform/SettingsStore.h"
#include "store/Schema.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sys/resource.h>

using namespace vemo;

namespace {

// Mode word, value A with its attribute, value B with its attribute: one test of each function.
struct Messung {
    int modus, a, attributA, b, attributB;
};
const Messung Messungen3720[] = {
    {0x0002, 231, 0, 500, 1}, {0x0603, 200, 0x88, 1010, 0}, {0x0828, 30, 2, 0, 0},
    {0x0C21, 48, 2, 42, 2},   {0x1009, 345, 0, 666, 0},     {0x94F2, 17, 0, 25, 1},
    {0x1966, 130, 0, 7, 1},   {0x1C00, 1000, 2, 0, 0},      {0x2000, 123, 0, 0, 0},
};
// The 3740 keeps its function code in a field of its own.
struct Messung3740 {
    int modus, code, wert, attribut;
};
const Messung3740 Messungen3740[] = {
    {0x0001, 0, 229, 0}, {0x0000, 1, 400, 1}, {0x0001, 2, 17, 2},  {0x0001, 3, 38, 2},
    {0x1001, 4, 370, 0}, {0x0000, 6, 8, 0},   {0x0000, 7, 210, 1}, {0x0000, 8, 321, 0},
};

QString hex(int zahl, int stellen) {
    return QString::number(zahl, 16).toUpper().rightJustified(stellen, '0');
}

QString satz3720(int i) {
    const Messung& m = Messungen3720[i % std::size(Messungen3720)];
    return QStringList{
        "04B2",      hex(i % 9999 + 1, 4), "0000",          hex(m.a, 4), hex(m.attributA, 2),
        hex(m.b, 4), hex(m.attributB, 2),  hex(m.modus, 4), "0096",      hex(0x2E683084 + i, 8)}
        .join(',');
}

QString satz3740(int i) {
    const Messung3740& m = Messungen3740[i % std::size(Messungen3740)];
    return QStringList{"0002",
                       "04B2",
                       hex(i % 9999 + 1, 4),
                       "0000",
                       hex(m.modus, 4),
                       hex(m.code, 2),
                       "40",
                       hex(0x2FF4FCFC + i, 8),
                       hex(m.wert, 4),
                       "01F4",
                       "0000",
                       "0000",
                       "0000",
                       hex(m.attribut, 2),
                       "01",
                       "00",
                       "00",
                       "00",
                       "00"}
        .join(',');
}

// The working file as the link saves it: head, records, closing line.
QByteArray speicher(const QString& kennung, int zählstellen, int sätze, QString (*satz)(int)) {
    QString d = kennung + "\r\nXG,778582800\r\nOK\r\nQD 2," + hex(sätze, zählstellen) + ",\r\n";
    for (int i = 0; i < sätze; ++i)
        d += satz(i) + (i + 1 < sätze ? ",\r\n" : "\r\n");
    return (d + "00\r\n").toLatin1();
}

long spitzeKB() {
    rusage r{};
    getrusage(RUSAGE_SELF, &r);
    return r.ru_maxrss;
}

void speicherEinlesen(benchmark::State& state, const QString& s, const QByteArray& inhalt, int satzlänge) {
    QTemporaryDir dir;
    AufzeichnungsUi ui;
    SpeicherSettingsStore einstellungen;
    modul().ui = &ui;
    modul().settings = &einstellungen;
    datenbankAnlegen(dir.filePath("vemotrix.db"), false);
    modul().db = Datenbank::OpenDatabase(dir.filePath("vemotrix.db"));
    modul().Datenbankverzeichnis = QDir::toNativeSeparators(dir.path());
    modul().Selektor() = s;
    modul().dateinameGewählt = "/tmp/speicher.ser";
    QFile f(arbeitsdatei(datei::Ruvo));
    f.open(QIODevice::WriteOnly);
    f.write(inhalt);
    f.close();

    const long vorher = spitzeKB();
    double sekunden = 0;
    for (auto _ : state) {
        state.PauseTiming();
        db().Execute("DELETE * FROM 0100_EinleseMessDaten");
        db().Execute("DELETE * FROM 0100_EinleseDaten");
        state.ResumeTiming();
        QElapsedTimer uhr;
        uhr.start();
        EinlesenVonDatei();
        sekunden += double(uhr.nsecsElapsed()) / 1e9;
    }
    const int sätze = int(state.range(0));
    // The reply on the line: "QD 2," and its count, the records, the closing part; 8N1 is ten bits.
    const double zeichen = double(sätze) * satzlänge + 16;
    const double leitung = zeichen * 10 / 9600;
    state.counters["Saetze"] =
        double(db().OpenRecordset("SELECT Count(*) FROM 0100_EinleseDaten").Field(0).toInt());
    state.counters["Werte"] =
        double(db().OpenRecordset("SELECT Count(*) FROM 0100_EinleseMessDaten").Field(0).toInt());
    state.counters["Leitung_s"] = leitung;
    state.counters["Anteil_Leitung"] = sekunden / double(state.iterations()) / leitung;
    state.counters["Spitze_MB"] = double(spitzeKB()) / 1024;
    state.counters["Zuwachs_MB"] = double(spitzeKB() - vorher) / 1024;
    if (!ui.meldungen.isEmpty())
        state.SkipWithError(ui.meldungen.first().text.toStdString().c_str());
    NeueID("", "");
    modul().db.Close();
}

void Zemak3720Einlesen(benchmark::State& state) {
    const int sätze = int(state.range(0));
    speicherEinlesen(state, selektor::Zemak3720, speicher("ZEMAK 3720B,1.04,3720315", 4, sätze, satz3720),
                     50);
}

void Zemak3740Einlesen(benchmark::State& state) {
    const int sätze = int(state.range(0));
    speicherEinlesen(state, selektor::Zemak3740, speicher("ZEMAK 3740B,3.02,3740226", 8, sätze, satz3740),
                     83);
}

} // namespace

BENCHMARK(Zemak3720Einlesen)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(Zemak3740Einlesen)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
