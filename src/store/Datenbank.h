#pragma once

#include "store/Recordset.h"

#include <QMap>
#include <QString>
#include <QVariant>
#include <chrono>
#include <memory>

namespace vemo {

namespace detail {
class Verbindung;
}

// A saved query of the database with its parameters.
class QueryDef {
public:
    QVariant& Parameters(const QString& name); // raises 3265 for a name the query does not declare
    Recordset OpenRecordset() const;
    QString Name() const { return m_name; }

private:
    friend class Datenbank;
    std::shared_ptr<detail::Verbindung> m_v;
    QString m_name;
    QString m_text;
    QStringList m_parameter;
    QVector<QVariant> m_werte;
};

// An open database, shared with the host or the office's other workplaces.
// Copies refer to the same connection. Statements are written in the host's dialect.
class Datenbank {
public:
    Datenbank();
    // Opens an existing database: an SQLite file by its path, or a PostgreSQL server's database by
    // its connection URI (postgresql://user@host:port/dbname, a socket folder as ?host=/path). A
    // connection text such as "MS Access;pwd=..." is accepted and has no meaning for this store.
    static Datenbank OpenDatabase(const QString& pfad, const QString& verbindungsText = {});
    // Creates the file when it does not exist; on a server, makes the collation and functions the
    // dialect needs.
    static Datenbank anlegen(const QString& pfad);
    // Whether the name is a server's connection URI rather than a file.
    static bool istServer(const QString& name);

    bool istOffen() const { return bool(m_v); }
    QString Name() const;
    void Close();
    // How long a write waits for a lock that another writer holds before it fails with 3260.
    void setWartezeit(std::chrono::milliseconds wartezeit) const;
    // The transactions written through this connection, each Update's own among them: what a run
    // must at least cost is what its commits cost.
    qint64 commits() const;
    // The rows written through this connection (added, changed, deleted), those of triggers besides.
    qint64 änderungen() const;

    Recordset OpenRecordset(const QString& quelle) const;
    void Execute(const QString& anweisung) const;
    // A statement with "?" placeholders, bound in order to the values, which go in as values and
    // are never read as part of the statement. A placeholder without a value raises 3061.
    Recordset OpenRecordset(const QString& anweisung, const QVector<QVariant>& werte) const;
    void Execute(const QString& anweisung, const QVector<QVariant>& werte) const;
    // The first column of every row of a SELECT, as texts (a Null as ""): a long list of codes read
    // in one go, without the rows of a record set.
    QStringList ersteSpalte(const QString& anweisung) const;
    QStringList ersteSpalte(const QString& anweisung, const QVector<QVariant>& werte) const;
    void TableDefs(const QString& name) const; // raises 3078 when there is no such table
    QStringList tabellen() const;
    // A statement that makes the table anew, with its columns and their declared types.
    QString tabellenDefinition(const QString& name) const;
    // After rows were written with their keys: keys the store issues itself follow on from theirs.
    void schlüsselNachziehen() const;
    bool hatTabelle(const QString& name) const;
    bool abfrageVorhanden(const QString& name) const;
    QueryDef QueryDefs(const QString& name) const;

    // Runs native SQLite statements, one after another (schema scripts, host data); a server takes
    // them as its own.
    void skriptAusführen(const QString& sql) const;
    // Stores a saved query in the host's dialect.
    void abfrageSpeichern(const QString& name, const QString& text) const;

private:
    friend class Transaktion;
    detail::Verbindung& v() const;
    std::shared_ptr<detail::Verbindung> verbindung() const; // raises 91 when the database is closed
    std::shared_ptr<detail::Verbindung> m_v;
};

} // namespace vemo
