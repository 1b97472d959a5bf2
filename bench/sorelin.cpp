// The Sorelin family: how long the parser takes for an image of so many circuits of the SORELIN
// PM 12, what one value costs to decode by its driver row, and how the block transfer copes with
// an image that arrives in pieces of 64 bytes, its buffer searched anew at each piece.
#include "parsers/Sorelin.h"
#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "core/SorelinRahmen.h"
#include "links/SorelinUebertragung.h"
#include "parsers/SorelinTreiber.h"
#include "platform/AufzeichnungsUi.h"
#include "platform/CommPortSpeicher.h"
#include "store/Schema.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <benchmark/benchmark.h>

namespace {

// One circuit of type 4120: insulation, continuity, loop, RCD test; a start block before the next.
const QByteArray Stromkreis = QByteArray::fromHex("8180F5"
                                                  "820023"
                                                  "8300290231"
                                                  "140017001200153200"
                                                  "1E05");

QByteArray bild(int stromkreise) {
    QByteArray daten = Stromkreis;
    for (int i = 1; i < stromkreise; ++i)
        daten += char(0xF0) + Stromkreis;
    const QByteArray start = QByteArray::fromHex("1018") + "SL4120001" + QByteArray::fromHex("0104");
    return QByteArray(1, '\0') + vemo::sorelin::Startmarke + char(start.size()) + start +
           vemo::sorelin::Datenblock + QByteArray::fromHex("0001") + char(daten.size() >> 8) +
           char(daten.size() & 0xFF) + daten + vemo::sorelin::Endmarke;
}

// A database with the host data in a folder of its own, as the component sees it.
struct Umgebung {
    QTemporaryDir dir;
    vemo::AufzeichnungsUi ui;

    Umgebung() {
        vemo::modulNeuLaden();
        vemo::modul().ui = &ui;
        const QString pfad = dir.filePath("vemotrix.db");
        vemo::datenbankAnlegen(pfad, false);
        vemo::modul().db = vemo::Datenbank::OpenDatabase(pfad);
        vemo::modul().Datenbankverzeichnis = dir.path();
    }
    ~Umgebung() {
        vemo::modulNeuLaden();
        vemo::modul().ui = nullptr;
    }
    void speichern(const QByteArray& bytes) const {
        QFile f(vemo::arbeitsdatei(vemo::datei::Rs232Sep));
        f.open(QIODevice::WriteOnly | QIODevice::Truncate);
        f.write(bytes);
    }
};

void BM_SorelinParser(benchmark::State& state) {
    Umgebung u;
    const QByteArray b = bild(int(state.range(0)));
    u.speichern(b);
    for (auto _ : state) {
        state.PauseTiming();
        vemo::db().Execute("DELETE FROM [0100_EinleseDaten]");
        state.ResumeTiming();
        vemo::Sorelin();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetBytesProcessed(state.iterations() * b.size());
}
BENCHMARK(BM_SorelinParser)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void BM_GetSorelinWert(benchmark::State& state) {
    Umgebung u;
    const vemo::SorelinTreiber treiber = vemo::SorelinTreiber::öffnen(vemo::db(), 4120);
    const vemo::Treiberzeile& zeile = treiber.messblock(129);
    const QByteArray wert = QByteArray::fromHex("80F5");
    for (auto _ : state)
        benchmark::DoNotOptimize(
            vemo::GetSorelinWert(wert, 0, treiber, zeile, vemo::Wertgruppe::ErsteSpalte));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GetSorelinWert);

void BM_SorelinUebertragung(benchmark::State& state) {
    Umgebung u;
    vemo::modul().CommPort = 1;
    const QByteArray b = bild(int(state.range(0)));
    for (auto _ : state) {
        auto paar = vemo::SpeicherCommPort::paar(64);
        paar.b->setPortOpen(true);
        auto halter = std::make_shared<std::unique_ptr<vemo::CommPort>>(std::move(paar.a));
        vemo::modul().commPortFabrik = [halter] { return std::move(*halter); };
        vemo::modul().Abbruchmerker = 0;
        u.ui.beiDialog = [&](vemo::DialogController& d) {
            QTimer::singleShot(1, &d, [&] { paar.b->Output(b); });
        };
        vemo::frmSorelin form;
        form.setEinschwingzeit(0);
        form.zeigen();
    }
    state.SetBytesProcessed(state.iterations() * b.size());
    vemo::modul().commPortFabrik = nullptr;
}
BENCHMARK(BM_SorelinUebertragung)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
