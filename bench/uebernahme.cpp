// The take-over of read-in rows with seven values each into the inspection records, for 5,000 and
// 10,000 rows in a database file and for 1,000 and 2,000 on a database server: the rows spread over
// boards of ten circuits, as a dump of a building does. Beside each the least such a run can cost:
// one bare transaction a read-in row, with as many written rows as the run wrote for each.
#include "takeover/Uebernahme.h"
#include "Server.h"
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "grid/EinleseDatenController.h"
#include "platform/KonsolenUi.h"
#include "platform/SettingsStore.h"
#include "store/Datenbank.h"
#include "store/Schema.h"
#include "store/Transaktion.h"

#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <map>
#include <optional>
#include <sqlite3.h>

using namespace vemo;
using test::Motor;

namespace {

// A fresh database of the engine for one run; empty when the engine cannot be had.
QString neueDatenbank(benchmark::State& state, Motor motor, const QTemporaryDir& dir, bool demo) {
    if (motor == Motor::Server)
        return bench::serverdatenbank(state, demo);
    datenbankAnlegen(dir.filePath("v.db"), demo);
    return dir.filePath("v.db");
}

QString vierstellig(int n) {
    return QString("%1").arg(n, 4, 10, QChar('0'));
}

void einleseZeilenSchreiben(int anzahl) {
    Transaktion alle(db());
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
    alle.commit();
}

struct Geschrieben {
    qint64 commits = 0;
    qint64 zeilen = 0; // rows written, those of triggers besides
};

std::map<std::pair<Motor, long>, Geschrieben>& schreibenDerLäufe() {
    static std::map<std::pair<Motor, long>, Geschrieben> läufe;
    return läufe;
}

// What the run of that engine and size wrote a read-in row, apart from the row and its values;
// nothing where that run has not been measured.
std::optional<Geschrieben> geschriebenJeZeile(benchmark::State& state, Motor motor) {
    const long zeilen = long(state.range(0));
    const auto lauf = schreibenDerLäufe().find({motor, zeilen});
    if (lauf == schreibenDerLäufe().end()) {
        state.SkipWithError("the run with this argument has not been measured");
        return {};
    }
    return Geschrieben{lauf->second.commits, lauf->second.zeilen / zeilen - 8};
}

// The floor of a run that commits once a read-in row: per row one transaction that writes as many
// rows as the run wrote per row (new measurement rows and key counts in turn) and deletes the
// read-in row with its seven values, by bare SQLite on the same schema in WAL with
// synchronous=NORMAL.
void Zeilentransaktionen(benchmark::State& state) {
    const long zeilen = long(state.range(0));
    const auto lauf = geschriebenJeZeile(state, Motor::Sqlite);
    if (!lauf)
        return;
    const qint64 jeZeile = lauf->zeilen;
    for (auto _ : state) {
        state.PauseTiming();
        QTemporaryDir dir;
        datenbankAnlegen(dir.filePath("v.db"), false);
        modul().db = Datenbank::OpenDatabase(dir.filePath("v.db"));
        einleseZeilenSchreiben(int(zeilen));
        modul().db.Close();
        sqlite3* roh = nullptr;
        sqlite3_open(dir.filePath("v.db").toUtf8().constData(), &roh);
        sqlite3_exec(roh,
                     "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL; INSERT INTO IDIncrement "
                     "VALUES (1, 0, '0100_Messung', 10000);",
                     nullptr, nullptr, nullptr);
        const auto vorbereiten = [roh](const char* sql) {
            sqlite3_stmt* s = nullptr;
            sqlite3_prepare_v2(roh, sql, -1, &s, nullptr);
            return s;
        };
        sqlite3_stmt* messung =
            vorbereiten("INSERT INTO \"0100_Messung\" (StromkreisID, RISO) VALUES (?1, '245')");
        sqlite3_stmt* zähler = vorbereiten("UPDATE IDIncrement SET LastID = LastID + 1 WHERE rowid = 1");
        sqlite3_stmt* löschen = vorbereiten("DELETE FROM \"0100_EinleseDaten\" WHERE MessungID = ?1");
        state.ResumeTiming();
        for (long zeile = 1; zeile <= zeilen; ++zeile) {
            sqlite3_exec(roh, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
            for (qint64 i = 0; i < jeZeile; ++i) {
                sqlite3_stmt* s = i % 2 ? zähler : messung;
                sqlite3_bind_int64(messung, 1, zeile);
                sqlite3_step(s);
                sqlite3_reset(s);
            }
            sqlite3_bind_int64(löschen, 1, zeile);
            sqlite3_step(löschen);
            sqlite3_reset(löschen);
            sqlite3_exec(roh, "COMMIT", nullptr, nullptr, nullptr);
        }
        state.PauseTiming();
        for (sqlite3_stmt* s : {messung, zähler, löschen})
            sqlite3_finalize(s);
        sqlite3_close(roh);
        state.ResumeTiming();
    }
    state.counters["rows written a row"] = double(jeZeile + 8);
    state.counters["commits of the run"] = double(lauf->commits);
}

// The same floor on the server, by bare libpq on the same socket.
void ZeilentransaktionenServer(benchmark::State& state) {
    const long zeilen = long(state.range(0));
    const auto lauf = geschriebenJeZeile(state, Motor::Server);
    if (!lauf)
        return;
    for (auto _ : state) {
        state.PauseTiming();
        QTemporaryDir dir;
        const QString uri = bench::serverdatenbank(state, false);
        modul().db = Datenbank::OpenDatabase(uri);
        einleseZeilenSchreiben(int(zeilen));
        modul().db.Close();
        const bench::Roh roh(uri);
        roh.ausführen("INSERT INTO idincrement VALUES (1, 0, '0100_Messung', 10000)");
        roh.vorbereiten("messung", "INSERT INTO \"0100_messung\" (stromkreisid, riso) VALUES ($1, '245')");
        roh.vorbereiten("zaehler", "UPDATE idincrement SET lastid = lastid + 1 WHERE idincrementid = 1");
        roh.vorbereiten("loeschen", "DELETE FROM \"0100_einlesedaten\" WHERE messungid = $1");
        state.ResumeTiming();
        for (long zeile = 1; zeile <= zeilen; ++zeile) {
            const QByteArray schlüssel = QByteArray::number(qlonglong(zeile));
            roh.ausführen("BEGIN");
            for (qint64 i = 0; i < lauf->zeilen; ++i)
                i % 2 ? roh.schritt("zaehler") : roh.schritt("messung", schlüssel);
            roh.schritt("loeschen", schlüssel);
            roh.ausführen("COMMIT");
        }
    }
    state.counters["rows written a row"] = double(lauf->zeilen + 8);
    state.counters["commits of the run"] = double(lauf->commits);
}

void Uebernahme(benchmark::State& state, Motor motor) {
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
        const QString name = neueDatenbank(state, motor, dir, true);
        if (name.isEmpty())
            return;
        modul().db = Datenbank::OpenDatabase(name);
        modul().Datenbankverzeichnis = dir.path();
        einleseZeilenSchreiben(zeilen);
        EinleseDatenController form; // the refresh before the button is the user's, not the run's
        const qint64 commitsVorher = db().commits();
        const qint64 änderungenVorher = db().änderungen();
        state.ResumeTiming();
        form.übernehmenKlick();
        state.PauseTiming();
        const qint64 commits = db().commits() - commitsVorher;
        schreibenDerLäufe()[{motor, zeilen}] = {commits, db().änderungen() - änderungenVorher};
        NeueID("", "");
        modul().db.Close();
        state.ResumeTiming();
    }
    state.counters["rows/s"] =
        benchmark::Counter(double(zeilen) * double(state.iterations()), benchmark::Counter::kIsRate);
}

} // namespace

BENCHMARK_CAPTURE(Uebernahme, Datei, Motor::Sqlite)
    ->Arg(5000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(2);
BENCHMARK(Zeilentransaktionen)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK_CAPTURE(Uebernahme, Server, Motor::Server)
    ->Arg(1000)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(2);
BENCHMARK(ZeilentransaktionenServer)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond)->Iterations(2);

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
