#pragma once

// What the commits of a run cost by themselves, measured beside the run: as many transactions of
// one written row each as the run committed, by bare SQLite on a fresh database of the same schema
// in WAL with synchronous=NORMAL. Every Update of the component must commit by itself, so this is
// the least a run can cost.
#include "store/Schema.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <map>
#include <sqlite3.h>

namespace vemo::bench {

// The commits of the last measured run, by its argument.
inline std::map<long, qint64>& commitsDerLäufe() {
    static std::map<long, qint64> commits;
    return commits;
}

// Half the commits add a measurement row, half count a key on, as a take-over's do.
inline void Commits(benchmark::State& state) {
    const auto lauf = commitsDerLäufe().find(long(state.range(0)));
    if (lauf == commitsDerLäufe().end()) {
        state.SkipWithError("the run with this argument has not been measured");
        return;
    }
    for (auto _ : state) {
        state.PauseTiming();
        QTemporaryDir dir;
        const QByteArray pfad = dir.filePath("commits.db").toUtf8();
        datenbankAnlegen(QString::fromUtf8(pfad), false);
        sqlite3* db = nullptr;
        sqlite3_open(pfad.constData(), &db);
        sqlite3_exec(db, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;", nullptr, nullptr, nullptr);
        sqlite3_exec(db, "INSERT INTO IDIncrement VALUES (1, 0, '0100_Messung', 10000);", nullptr, nullptr,
                     nullptr);
        sqlite3_stmt* zeile = nullptr;
        sqlite3_prepare_v2(db, "INSERT INTO \"0100_Messung\" (StromkreisID, RISO) VALUES (?1, '245')", -1,
                           &zeile, nullptr);
        sqlite3_stmt* zähler = nullptr;
        sqlite3_prepare_v2(db, "UPDATE IDIncrement SET LastID = LastID + 1 WHERE rowid = 1", -1, &zähler,
                           nullptr);
        state.ResumeTiming();
        for (qint64 i = 0; i < lauf->second; ++i) {
            sqlite3_stmt* s = i % 2 ? zähler : zeile;
            sqlite3_bind_int64(zeile, 1, i);
            sqlite3_step(s);
            sqlite3_reset(s);
        }
        state.PauseTiming();
        sqlite3_finalize(zeile);
        sqlite3_finalize(zähler);
        sqlite3_close(db);
        state.ResumeTiming();
    }
    state.counters["commits"] = double(lauf->second);
}

} // namespace vemo::bench
