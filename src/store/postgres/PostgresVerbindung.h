#pragma once

#include "store/Verbindung.h"

#include <QHash>
#include <libpq-fe.h>

namespace vemo::detail {

// The session with the server, shared by the connection and its prepared statements.
class Sitzung {
public:
    explicit Sitzung(const QString& uri);
    ~Sitzung();
    Sitzung(const Sitzung&) = delete;
    Sitzung& operator=(const Sitzung&) = delete;

    using Ergebnis = std::unique_ptr<PGresult, void (*)(PGresult*)>;

    PGconn* conn() const { return m_conn; }
    bool inTransaktion() const;
    // Sends a statement (a PQsend... call) and gives its result; inside a transaction in a savepoint
    // of its own, so that a failed statement leaves the transaction as SQLite leaves it: standing,
    // with what came before. Raises the store's error when the statement fails.
    Ergebnis ausführen(const std::function<int()>& senden, const QString& sql);
    Ergebnis befehl(const QString& sql); // plain SQL without values, not in a savepoint
    QString neuerName() { return "v" + QString::number(++m_namen); }

    qint64 commits = 0;
    qint64 änderungen = 0;

private:
    Ergebnis prüfen(PGresult* r, const QString& sql);
    PGresult* ergebnisAbholen();

    PGconn* m_conn = nullptr;
    qint64 m_namen = 0;
};

// The office engine: a PostgreSQL server named by a libpq connection URI. Edit locks its row
// (SELECT ... FOR UPDATE) rather than the database; a lock held by another workplace is waited for
// up to the lock timeout and then reported as a lock of SQLite is (3260).
class PostgresVerbindung : public Verbindung {
public:
    PostgresVerbindung(const QString& uri, bool anlegen);
    ~PostgresVerbindung() override;

    qint64 commits() const override { return m_sitzung->commits; }
    qint64 änderungen() const override { return m_sitzung->änderungen; }
    void setWartezeit(std::chrono::milliseconds wartezeit) override;
    void skriptAusführen(const QString& sql) override;
    qint64 letzteRowid() const override { return 0; } // each INSERT gives its rowid back
    QStringList tabellen() override;
    void schlüsselNachziehen() override { m_sitzung->befehl("CALL vemo_folgen_nachziehen()"); }
    void bereichSperren(const QString& bereich) override;

    // The table and column a result column comes from, by the server's numbers for them.
    std::pair<QString, QString> herkunft(Oid tabelle, int spalte, QString* typ);

protected:
    Anweisung vorbereiten(const QString& sql) override;
    QString tabellenName(const QString& name) override;
    QVector<Spaltenbeschreibung> spaltenBeschreiben(const QString& zitierterName) override;
    QString zeileSperren() const override { return " FOR UPDATE"; }
    QString einfügenZusatz() const override { return " RETURNING rowid"; }
    void beginnen() override;
    void festschreiben() override;
    void zurückrollen() noexcept override;
    void zwischenspeicherGeleert() override { m_herkünfte.clear(); }

private:
    struct Spaltenherkunft {
        QString tabelle;
        QString spalte;
        QString typ;
    };
    std::shared_ptr<Sitzung> m_sitzung;
    QHash<quint64, Spaltenherkunft> m_herkünfte; // by table and column number
};

} // namespace vemo::detail
