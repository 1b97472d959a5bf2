#pragma once

#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

namespace vemo::test {

// The engines the store's suites run against, one instance of each test for each.
enum class Motor { Sqlite, Server };
inline const auto beideMotoren = ::testing::Values(Motor::Sqlite, Motor::Server);
std::string motorName(const ::testing::TestParamInfo<Motor>& info);
inline void PrintTo(Motor m, std::ostream* os) {
    *os << (m == Motor::Sqlite ? "SQLite" : "PostgreSQL");
}

// A throw-away PostgreSQL server of the test program: initdb and pg_ctl in a temporary folder, its
// socket in that folder and no TCP, run as an unprivileged user when the tests run as root. It is
// started at the first use and stopped when the program ends.
class Postgresserver {
public:
    // The server, or null with the reason why the machine cannot start one.
    static Postgresserver* gestartet(QString* grund);
    // Where no server can start: true when that fails the run (VEMO_SERVER_PFLICHT=1), else the
    // test is to be skipped with the reason.
    static bool pflicht();

    ~Postgresserver();
    Postgresserver(const Postgresserver&) = delete;
    Postgresserver& operator=(const Postgresserver&) = delete;

    // The URI of a database on this server.
    QString uri(const QString& datenbank) const;
    // A new empty database, or one with schema, saved queries and host data (and the demo data).
    QString leereDatenbank();
    QString neueDatenbank(bool demo);

private:
    Postgresserver() = default;
    QString starten();
    void ausführen(const QString& sql) const;

    QTemporaryDir m_dir;
    QString m_datenverzeichnis;
    int m_nummer = 0;
    bool m_vorlage[2] = {false, false};
};

} // namespace vemo::test
