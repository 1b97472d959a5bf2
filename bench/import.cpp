// The import of an older database of 2,000, 8,000 and 32,000 inspections: 500 customers with one
// plant each, every source row with a measurement text of two circuits. Reported: the time of the run, the
// rows per second, and the peak memory of the process (ru_maxrss).
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "import/Importlauf.h"
#include "platform/AufzeichnungsUi.h"
#include "platform/SettingsStore.h"
#include "store/Datenbank.h"
#include "store/Schema.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <sys/resource.h>

using namespace vemo;

namespace {

const QString Messtext = "!1/1;;Küche;NYM-J 3x1,5;B16;;30;;A;;500;1,2;0,9;>999;30;21;4,5;0,6;28;0,35;0,41;12;"
                         "rechts;0,15#!1/2;;Bad;NYM-J 3x2,5;B20;;;;;;;;;200;;;;;;;;;;0,2#@";

// The columns of the old masks' numbered controls and the others the import reads; the rows fill a
// few of them, the rest stay Null.
QByteArray übrigeSpalten() {
    QByteArray namen = "Auftragsnr, Pruefung_nach, Seriennummer, Messung_1_Label14, Messung_2, form1_text14, "
                       "kopf_label2, kopf_label3, Erprobung_MaskedEdit1, Erprobung_maskedEdit2, "
                       "besichtigung_maskedEdit1, besichtigung_maskedEdit2, Reserve1, Reserve2";
    const auto nummeriert = [&](const char* stamm, int von, int bis) {
        for (int i = von; i <= bis; ++i)
            namen += ", " + QByteArray(stamm) + QByteArray::number(i);
    };
    nummeriert("kopf_Check3d", 1, 13);
    nummeriert("Besichtigung_check3d", 1, 17);
    nummeriert("Erprobung_check3d", 2, 12);
    nummeriert("Erprobung_Text", 3, 6);
    nummeriert("Form1_MaskedEdit", 1, 11);
    nummeriert("Form1_check3d", 1, 4);
    return namen;
}

void quelleSchreiben(const QString& pfad, int zeilen) {
    sqlite3* db = nullptr;
    sqlite3_open(pfad.toUtf8().constData(), &db);
    const QByteArray tabelle = "CREATE TABLE kunden (Kunden, Nr, Adresse, Adresse3, Anlage, Anlagenplaner, "
                               "Pruefdatum, Puefprot_Nr, Netzspannung, Prüfer, Betriebsmittel, Reserve3, " +
                               übrigeSpalten() + "); BEGIN;";
    sqlite3_exec(db, tabelle.constData(), nullptr, nullptr, nullptr);
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(
        db,
        "INSERT INTO kunden (Kunden, Nr, Adresse, Adresse3, Anlage, Anlagenplaner, Pruefdatum, "
        "Puefprot_Nr, kopf_Check3d10, Besichtigung_check3d1, Netzspannung, Prüfer, Betriebsmittel, "
        "Reserve3) VALUES (?, ?, 'Lindenweg 4', '34117 Kassel', ?, 'Planbüro', "
        "'14.06.2019', ?, -1, -1, '230/400 V', 'M. Ohm', 'Ofen\tgeprüft', ?)",
        -1, &st, nullptr);
    const QByteArray text = Messtext.toUtf8();
    for (int i = 0; i < zeilen; ++i) {
        const QByteArray kunde = "Kunde " + QByteArray::number(i % 500);
        const QByteArray anlage = "Anlage " + QByteArray::number(i % 500);
        const QByteArray protokoll = QByteArray::number(i);
        sqlite3_bind_text(st, 1, kunde.constData(), -1, SQLITE_TRANSIENT);
        sqlite3_bind_text(st, 2, protokoll.constData(), -1, SQLITE_TRANSIENT);
        sqlite3_bind_text(st, 3, anlage.constData(), -1, SQLITE_TRANSIENT);
        sqlite3_bind_text(st, 4, protokoll.constData(), -1, SQLITE_TRANSIENT);
        sqlite3_bind_text(st, 5, text.constData(), -1, SQLITE_TRANSIENT);
        sqlite3_step(st);
        sqlite3_reset(st);
    }
    sqlite3_finalize(st);
    sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(db);
}

long spitzeKB() {
    rusage r{};
    getrusage(RUSAGE_SELF, &r);
    return r.ru_maxrss;
}

void Import(benchmark::State& state) {
    AufzeichnungsUi ui;
    SpeicherSettingsStore settings;
    modul().ui = &ui;
    modul().settings = &settings;
    const int zeilen = int(state.range(0));
    QTemporaryDir quellordner;
    const QString quelle = quellordner.filePath("alt.db");
    quelleSchreiben(quelle, zeilen);
    const long vorher = spitzeKB();
    int ergebnis = 0;
    for (auto _ : state) {
        state.PauseTiming();
        QTemporaryDir dir;
        NeueID("", "");
        datenbankAnlegen(dir.filePath("v.db"), false);
        modul().db = Datenbank::OpenDatabase(dir.filePath("v.db"));
        modul().Datenbankverzeichnis = dir.path();
        state.ResumeTiming();
        ergebnis = Importlauf().ausführen(quelle);
        state.PauseTiming();
        state.counters["Prüfungen"] =
            double(db().OpenRecordset("SELECT Count(*) FROM [0100_Prüfung]").Field(0).toInt());
        NeueID("", "");
        modul().db.Close();
        state.ResumeTiming();
    }
    state.counters["rows/s"] =
        benchmark::Counter(double(zeilen) * double(state.iterations()), benchmark::Counter::kIsRate);
    state.counters["Spitze_MB"] = double(spitzeKB()) / 1024;
    state.counters["Zuwachs_MB"] = double(spitzeKB() - vorher) / 1024;
    if (ergebnis != 0 || !ui.meldungen.isEmpty())
        state.SkipWithError(ui.meldungen.isEmpty() ? "the import failed"
                                                   : ui.meldungen.first().text.toStdString().c_str());
    modul().ui = nullptr;
    modul().settings = nullptr;
}

} // namespace

BENCHMARK(Import)->Arg(2000)->Arg(8000)->Arg(32000)->Unit(benchmark::kMillisecond)->Iterations(1);

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
