// Staging rows through the record set, each Update committing by itself with a key from NeueID,
// against the same rows inserted by plain SQLite in one transaction.
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "platform/KonsolenUi.h"
#include "store/Datenbank.h"
#include "store/Recordset.h"
#include "store/Schema.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <functional>
#include <sqlite3.h>

using namespace vemo;

namespace {

constexpr int Zeilen = 10000;

QString frischeDatenbank(const QTemporaryDir& dir) {
    const QString pfad = dir.filePath("bench.db");
    datenbankAnlegen(pfad, false);
    return pfad;
}

void RecordsetMitNeueID(benchmark::State& state) {
    KonsolenUi ui;
    modul().ui = &ui;
    for (auto _ : state) {
        state.PauseTiming();
        QTemporaryDir dir;
        NeueID("", "");
        modul().db = Datenbank::OpenDatabase(frischeDatenbank(dir));
        state.ResumeTiming();
        Recordset rs = db().OpenRecordset("0100_EinleseMessDaten");
        for (int i = 0; i < Zeilen; ++i) {
            rs.AddNew();
            rs.setField("MessungID", NeueID("", "0100_EinleseDaten"));
            rs.setField("Funktion", "RISO");
            rs.setField("wert", "245");
            rs.setField("Einheit", "MOhm");
            rs.Update();
        }
        state.PauseTiming();
        NeueID("", "");
        modul().db.Close();
        state.ResumeTiming();
    }
    state.counters["rows/s"] =
        benchmark::Counter(double(Zeilen) * double(state.iterations()), benchmark::Counter::kIsRate);
}

// Bare SQLite on a fresh database in WAL with synchronous=NORMAL: the preparation runs untimed, then
// the rows are written by the given statements.
void sqliteMessen(benchmark::State& state, const char* vorbereitung,
                  const std::function<void(sqlite3*)>& schreiben) {
    for (auto _ : state) {
        state.PauseTiming();
        QTemporaryDir dir;
        const QByteArray pfad = frischeDatenbank(dir).toUtf8();
        sqlite3* db = nullptr;
        sqlite3_open(pfad.constData(), &db);
        sqlite3_exec(db, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;", nullptr, nullptr, nullptr);
        sqlite3_exec(db, vorbereitung, nullptr, nullptr, nullptr);
        state.ResumeTiming();
        schreiben(db);
        state.PauseTiming();
        sqlite3_close(db);
        state.ResumeTiming();
    }
    state.counters["rows/s"] =
        benchmark::Counter(double(Zeilen) * double(state.iterations()), benchmark::Counter::kIsRate);
}

void zeilenEinfügen(sqlite3* db, sqlite3_stmt* zähler) {
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(db, "INSERT INTO \"0100_EinleseMessDaten\" VALUES (?1, 'RISO', '245', 'MOhm')", -1, &s,
                       nullptr);
    for (int i = 0; i < Zeilen; ++i) {
        if (zähler) {
            sqlite3_step(zähler);
            sqlite3_reset(zähler);
        }
        sqlite3_bind_int(s, 1, 10000 + i);
        sqlite3_step(s);
        sqlite3_reset(s);
    }
    sqlite3_finalize(s);
}

void SqliteEineTransaktion(benchmark::State& state) {
    sqliteMessen(state, "", [](sqlite3* db) {
        sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
        zeilenEinfügen(db, nullptr);
        sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
    });
}

// What the commits alone cost: per row the counter's update and the insert, each committing by itself.
void SqliteZweiCommitsJeZeile(benchmark::State& state) {
    sqliteMessen(state, "INSERT INTO IDIncrement VALUES (1, 0, '0100_EinleseDaten', 10000);",
                 [](sqlite3* db) {
                     sqlite3_stmt* zähler = nullptr;
                     sqlite3_prepare_v2(db, "UPDATE IDIncrement SET LastID = LastID + 1 WHERE rowid = 1", -1,
                                        &zähler, nullptr);
                     zeilenEinfügen(db, zähler);
                     sqlite3_finalize(zähler);
                 });
}

} // namespace

BENCHMARK(SqliteZweiCommitsJeZeile)->Unit(benchmark::kMillisecond);
BENCHMARK(RecordsetMitNeueID)->Unit(benchmark::kMillisecond);
BENCHMARK(SqliteEineTransaktion)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
