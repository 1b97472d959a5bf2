#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <list>
#include <sqlite3.h>

namespace vemo::detail {

// One open SQLite connection with its prepared statements and what it knows of its tables.
// Every statement is reset as soon as its rows are read, so that no statement stays open and each
// write commits by itself.
class Verbindung {
public:
    Verbindung(const QString& pfad, bool anlegen);
    ~Verbindung();
    Verbindung(const Verbindung&) = delete;
    Verbindung& operator=(const Verbindung&) = delete;

    struct Tabelle {
        QString name; // as the schema spells it
        QStringList spalten;
        QStringList typen;
        QVector<QVariant> vorgaben; // the store's default of each column, evaluated
        int index(const QString& spalte) const;
    };

    sqlite3* db() const { return m_db; }
    const QString& pfad() const { return m_pfad; }

    // A prepared statement of native SQL, kept for reuse. Callers reset it through Schritt.
    sqlite3_stmt* anweisung(const QString& sql);
    const Tabelle* tabelle(const QString& name);
    void schemaGeändert();

private:
    sqlite3* m_db = nullptr;
    QString m_pfad;
    QHash<QString, sqlite3_stmt*> m_anweisungen;
    // What is known of each table, by lower-case name. Open record sets keep pointers to it, so
    // the entries live as long as the connection; a change of schema only forgets the index.
    std::list<Tabelle> m_tabellenBekannt;
    QHash<QString, const Tabelle*> m_tabellen;
};

// Runs a prepared statement and resets it when it goes out of scope.
class Schritt {
public:
    explicit Schritt(sqlite3_stmt* s) : m_s(s) {}
    ~Schritt();
    Schritt(const Schritt&) = delete;
    Schritt& operator=(const Schritt&) = delete;

    void binden(int index, const QVariant& wert, const QString& typ = {});
    bool weiter(); // true while a row stands; raises the store's error on failure
    QVariant wert(int spalte, const QString& typ = {}) const;
    sqlite3_stmt* anweisung() const { return m_s; }

private:
    sqlite3_stmt* m_s;
};

// The error of a failed SQLite call, with the number the system's messages use.
[[noreturn]] void sqliteFehler(sqlite3* db, int rc, const QString& sql);

bool istDatumTyp(const QString& typ);
bool istZahlTyp(const QString& typ);

} // namespace vemo::detail
