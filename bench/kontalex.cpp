// A Kontalex memory of 1,000 measurements after it has come down the line: decoded into the record
// file, rendered as the printed report, parsed into the read-in tables. Each is set beside the line
// time of the transfer at 9600 baud, which the user waits anyway: the ratio says what the
// component adds to it.
#include "conversion/KontalexBericht.h"
#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "links/KontalexSpeicher.h"
#include "links/KontalexText.h"
#include "parsers/EinlesenVonDatei.h"
#include "platform/AufzeichnungsUi.h"
#include "platform/SettingsStore.h"
#include "store/Schema.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <functional>

using namespace vemo;

namespace {

constexpr int Messungen = 1000;
constexpr double BitsJeByte = 10; // start, eight data bits, stop
constexpr double Baud = 9600;
constexpr int Befehlslänge = 4;   // "MRE" and its byte 0, sent for every block
constexpr int Anfragenlänge = 12; // "MNU", "MWH", "MSS", "MEX"

// The sample's twelve measurements over and over, each block a place of its own.
Kontalexspeicher speicher() {
    QFile probe(QString(VEMO_SOURCE_DIR) + "/samples/kontalex.sep");
    probe.open(QIODevice::ReadOnly);
    Kontalexspeicher s = *kontalexSpeicherLesen(probe.readAll());
    const QList<QByteArray> muster = s.blöcke.mid(0, s.blockzahl());
    s.blöcke.clear();
    for (int i = 0; i < Messungen; ++i) {
        QByteArray block = muster[i % muster.size()];
        block[8] = char(i % 200 + 1); // the place, low byte
        block[9] = char(i / 200);
        s.blöcke << block;
    }
    s.blöcke << QByteArray("SRE\0", 4);
    s.anzahl[4] = char(Messungen >> 8);
    s.anzahl[5] = char(Messungen & 0xFF);
    return s;
}

double leitungszeit(const Kontalexspeicher& s) {
    const double bytes = double(s.rohdatei().size()) + Befehlslänge * double(s.blöcke.size()) + Anfragenlänge;
    return bytes * BitsJeByte / Baud;
}

class Umgebung {
public:
    Umgebung() {
        modul().ui = &m_ui;
        modul().settings = &m_einstellungen;
        datenbankAnlegen(m_dir.filePath("vemotrix.db"), false);
        modul().db = Datenbank::OpenDatabase(m_dir.filePath("vemotrix.db"));
        modul().Datenbankverzeichnis = QDir::toNativeSeparators(m_dir.path());
        modul().Selektor() = "Multitester = Kontalex";
    }
    ~Umgebung() {
        NeueID("", "");
        modul().db.Close();
        modul().ui = nullptr;
        modul().settings = nullptr;
    }
    const AufzeichnungsUi& ui() const { return m_ui; }

private:
    QTemporaryDir m_dir;
    AufzeichnungsUi m_ui;
    SpeicherSettingsStore m_einstellungen;
};

void dekodieren(const Kontalexspeicher& s) {
    kontalexTextSchreiben(arbeitsdatei(datei::Rs232Txt), geräteinfoLesen(s.wer), s.dump());
}

void rendern() {
    static int nummer = 0;
    KontalexBericht([] { return QString::number(++nummer).rightJustified(8, '0'); });
}

void einlesen() {
    db().Execute("DELETE * FROM 0100_EinleseMessDaten");
    db().Execute("DELETE * FROM 0100_EinleseDaten");
    EinlesenVonDatei();
}

// Runs one step of the road, the steps before it done once beforehand.
void schritt(benchmark::State& state, const std::function<void()>& vorher,
             const std::function<void()>& messen) {
    const Umgebung u;
    const Kontalexspeicher s = speicher();
    vorher();
    QElapsedTimer uhr;
    uhr.start();
    for (auto _ : state)
        messen();
    const double sekundenJeLauf = double(uhr.nsecsElapsed()) / 1e9 / double(state.iterations());
    state.counters["Leitungszeit_s"] = leitungszeit(s);
    state.counters["Anteil_an_Leitungszeit"] = sekundenJeLauf / leitungszeit(s);
    if (!u.ui().meldungen.isEmpty())
        state.SkipWithError(u.ui().meldungen.first().text.toStdString().c_str());
}

void Dekodieren(benchmark::State& state) {
    const Kontalexspeicher s = speicher();
    schritt(
        state, [] {}, [&] { dekodieren(s); });
}

void Rendern(benchmark::State& state) {
    const Kontalexspeicher s = speicher();
    schritt(
        state, [&] { dekodieren(s); }, rendern);
}

void Einlesen(benchmark::State& state) {
    const Kontalexspeicher s = speicher();
    schritt(
        state, [&] { dekodieren(s); }, einlesen);
}

void GanzerWeg(benchmark::State& state) {
    const Kontalexspeicher s = speicher();
    schritt(
        state, [] {},
        [&] {
            dekodieren(s);
            rendern();
            einlesen();
        });
}

} // namespace

BENCHMARK(Dekodieren)->Unit(benchmark::kMillisecond);
BENCHMARK(Rendern)->Unit(benchmark::kMillisecond);
BENCHMARK(Einlesen)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(GanzerWeg)->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM",
            qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
