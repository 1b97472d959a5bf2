#pragma once

#include "store/Verbindung.h"

#include <sqlite3.h>

namespace vemo::detail {

// The embedded engine: an SQLite file, opened shared with the host (WAL journal,
// synchronous=NORMAL, a busy timeout, so that a host holding a lock makes us wait, not fail).
class SqliteVerbindung : public Verbindung {
public:
    SqliteVerbindung(const QString& pfad, bool anlegen);
    ~SqliteVerbindung() override;

    sqlite3* db() const { return m_db; }
    qint64 commits() const override { return m_commits; }
    qint64 änderungen() const override;
    void setWartezeit(std::chrono::milliseconds wartezeit) override;
    void skriptAusführen(const QString& sql) override;
    qint64 letzteRowid() const override;
    QStringList tabellen() override;

protected:
    Anweisung vorbereiten(const QString& sql) override;
    QString tabellenName(const QString& name) override;
    QVector<Spaltenbeschreibung> spaltenBeschreiben(const QString& zitierterName) override;
    QString zeileSperren() const override { return {}; }
    QString einfügenZusatz() const override { return {}; }
    void beginnen() override;
    void festschreiben() override;
    void zurückrollen() noexcept override;

private:
    bool anweisungLäuft() const;

    sqlite3* m_db = nullptr;
    qint64 m_commits = 0;
};

// The error of a failed SQLite call, with the number the system's messages use.
[[noreturn]] void sqliteFehler(sqlite3* db, int rc, const QString& sql);

} // namespace vemo::detail
