#pragma once

// The benchmarks' second engine: a database of the tests' throw-away PostgreSQL server (its data
// not synced, on a Unix socket), started at the first use, and bare libpq on it for the floors the
// component's runs on the server are compared with.
#include "support/Postgresserver.h"

#include <QByteArray>
#include <QString>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <libpq-fe.h>

namespace vemo::bench {

// A new database on the server with schema and host data (and the demo data); empty, with the
// benchmark skipped and told why, where the machine cannot start a server.
inline QString serverdatenbank(benchmark::State& state, bool demo) {
    QString grund;
    test::Postgresserver* server = test::Postgresserver::gestartet(&grund);
    if (!server) {
        state.SkipWithError(grund.toStdString().c_str());
        return {};
    }
    return server->neueDatenbank(demo);
}

// Bare libpq on one database: statements prepared once, each run with at most one value.
class Roh {
public:
    explicit Roh(const QString& uri) : m_c(PQconnectdb(uri.toUtf8().constData())) {}
    ~Roh() { PQfinish(m_c); }
    Roh(const Roh&) = delete;
    Roh& operator=(const Roh&) = delete;

    void ausführen(const char* sql) const { gelungen(PQexec(m_c, sql)); }
    void vorbereiten(const char* name, const char* sql) const {
        gelungen(PQprepare(m_c, name, sql, 0, nullptr));
    }
    void schritt(const char* name, const QByteArray& wert = {}) const {
        const char* werte[] = {wert.constData()};
        gelungen(PQexecPrepared(m_c, name, wert.isNull() ? 0 : 1, werte, nullptr, nullptr, 0));
    }

private:
    // A floor whose statements fail measures nothing: the program stops.
    void gelungen(PGresult* r) const {
        const auto status = PQresultStatus(r);
        PQclear(r);
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK) {
            std::fprintf(stderr, "%s", PQerrorMessage(m_c));
            std::abort();
        }
    }

    PGconn* m_c;
};

} // namespace vemo::bench
