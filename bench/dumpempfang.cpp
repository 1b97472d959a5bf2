// How fast the dump reception takes in a memory that arrives in pieces of 64 bytes, one piece a
// turn of the event loop: the cost of the polling loop, the file and the text box per piece.
#include "links/DumpEmpfang.h"
#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "links/Form2.h"
#include "platform/AufzeichnungsUi.h"
#include "platform/CommPortSpeicher.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>
#include <benchmark/benchmark.h>

namespace {

QByteArray dump(qsizetype bytes) {
    QByteArray d;
    for (int i = 0; d.size() < bytes; ++i)
        d += " RISO = " + QByteArray::number(100 + i % 400) + ",0 MOhm\r\n";
    return d;
}

void BM_DumpEmpfang(benchmark::State& state) {
    QTemporaryDir dir;
    vemo::AufzeichnungsUi ui;
    vemo::modul().ui = &ui;
    vemo::modul().Datenbankverzeichnis = dir.path();
    vemo::modul().CommPort = 1;
    const QByteArray inhalt = dump(state.range(0));

    for (auto _ : state) {
        auto paar = vemo::SpeicherCommPort::paar(64);
        paar.b->setPortOpen(true);
        auto halter = std::make_shared<std::unique_ptr<vemo::CommPort>>(std::move(paar.a));
        vemo::modul().commPortFabrik = [halter] { return std::move(*halter); };
        vemo::modul().Empfangsende = 0;
        ui.beiDialog = [&](vemo::DialogController& d) {
            auto* form = qobject_cast<vemo::Form2*>(&d);
            // After the reception has cleared its input buffer.
            QTimer::singleShot(5, form, [&] { paar.b->Output(inhalt); });
            // Enter once everything is in the file.
            auto* uhr = new QTimer(form);
            QObject::connect(uhr, &QTimer::timeout, form, [form, &inhalt] {
                if (QFileInfo(vemo::arbeitsdatei(vemo::datei::Ruvo)).size() >= inhalt.size())
                    form->enterGedrückt();
            });
            uhr->start(1);
        };
        vemo::dumpEmpfangen();
    }
    state.SetBytesProcessed(state.iterations() * inhalt.size());
    vemo::modul().ui = nullptr;
    vemo::modul().commPortFabrik = nullptr;
}
BENCHMARK(BM_DumpEmpfang)->Arg(16 << 10)->Arg(256 << 10)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
