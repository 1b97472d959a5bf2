#pragma once

#include "store/Dialekt.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <list>
#include <memory>
#include <sqlite3.h>
#include <utility>

namespace vemo::detail {

struct Abfrageform;

// What a column holds by its declared type: numbers, text, dates, or whatever comes (no type).
enum class Typklasse { Frei, Text, Zahl, Datum };
Typklasse typklasse(const QString& deklariert);

// The value as a column of that class stores it: numbers in number columns, text in text columns
// (a number written as the system writes numbers, a date as the user reads it), dates in date
// columns. A value the column cannot take raises 13.
QVariant spaltenwert(const QVariant& wert, Typklasse klasse);

// A prepared statement, finalized when the last holder lets it go: the cache may drop it while a
// Schritt still runs it.
using Anweisung = std::shared_ptr<sqlite3_stmt>;

// One open SQLite connection with its prepared statements and what it knows of its tables.
// Every statement is reset as soon as its rows are read, so that no statement stays open and each
// write commits by itself, or with the hold on the write lock it was made under.
class Verbindung {
public:
    // Statements kept prepared; the least recently used one goes. The keys the logic splices into
    // its conditions are bound values after translation, so that a run repeats a few texts.
    static constexpr int AnweisungenImCache = 128;

    Verbindung(const QString& pfad, bool anlegen);
    ~Verbindung();
    Verbindung(const Verbindung&) = delete;
    Verbindung& operator=(const Verbindung&) = delete;

    struct Tabelle {
        QString name;    // as the schema spells it
        QString zitiert; // ready for a statement
        QStringList spalten;
        QStringList zitierteSpalten;
        QStringList typen;
        QVector<Typklasse> klassen;
        QVector<QVariant> vorgaben;     // the store's default of each column, evaluated
        QStringList berechneteVorgaben; // expressions such as today's date, evaluated at each new row
        QString zeileLesen;             // the statement that reads one row again by its rowid, ?1
        int index(const QString& spalte) const;
    };

    sqlite3* db() const { return m_db; }
    const QString& pfad() const { return m_pfad; }
    qint64 commits() const { return m_commits; }

    // A prepared statement of native SQL, kept for reuse. Callers reset it through Schritt.
    Anweisung anweisung(const QString& sql);
    // A statement of the host's dialect translated, kept for the statements that a run repeats,
    // such as a function name looked up for each value; and what the rows of a translated SELECT
    // hold, null where it has not been read yet.
    Übersetzung übersetzung(const QString& dialekt);
    std::shared_ptr<const Abfrageform> abfrageform(const QString& sql) const;
    void abfrageformMerken(const QString& sql, std::shared_ptr<const Abfrageform> form);
    int anweisungenImCache() const { return int(m_anweisungen.size()); }
    // What the store knows of a table; null when there is no such table. Record sets keep their
    // table's description alive, also across a change of the schema.
    std::shared_ptr<const Tabelle> tabelle(const QString& name);
    // The defaults of a new row, with those that are computed evaluated now.
    QVector<QVariant> vorgabenJetzt(const Tabelle& t);
    void schemaGeändert();

    // The database's write lock, as the host's pessimistic locking takes it for a row being
    // changed or added. Holds on one connection nest and share one short transaction, which ends
    // with the last release, by a commit: whatever a holder wrote in between stands, as every
    // Update must. sperreAbgeben raises when that commit fails; sperreLösen does not. A unit of
    // work that must stand or fall whole gives its hold back with sperreVerwerfen, which rolls
    // the transaction back.
    void sperreNehmen();
    void sperreAbgeben();
    void sperreLösen() noexcept;
    void sperreVerwerfen() noexcept;
    bool sperreGehalten() const { return m_sperren > 0; }

private:
    using Cache = std::list<std::pair<QString, Anweisung>>; // the most recently used first

    bool anweisungLäuft() const;
    void beginnen();
    int beenden() noexcept;

    sqlite3* m_db = nullptr;
    QString m_pfad;
    Cache m_zuletzt;
    QHash<QString, Cache::iterator> m_anweisungen;
    QHash<QString, std::shared_ptr<const Tabelle>> m_tabellen; // by lower-case name
    QHash<QString, Übersetzung> m_übersetzungen;
    QHash<QString, std::shared_ptr<const Abfrageform>> m_abfrageformen;
    int m_sperren = 0;
    qint64 m_commits = 0;
};

// A hold on the write lock for as long as the object lives, or until it is given back.
class Schreibsperre {
public:
    explicit Schreibsperre(Verbindung& v);
    ~Schreibsperre();
    Schreibsperre(Schreibsperre&& andere) noexcept : m_v(std::exchange(andere.m_v, nullptr)) {}
    Schreibsperre(const Schreibsperre&) = delete;
    Schreibsperre& operator=(const Schreibsperre&) = delete;

    void abgeben(); // raises when the commit that ends the transaction fails

private:
    Verbindung* m_v;
};

// Runs a prepared statement and resets it when it goes out of scope.
class Schritt {
public:
    explicit Schritt(Anweisung s) : m_s(std::move(s)) {}
    ~Schritt();
    Schritt(const Schritt&) = delete;
    Schritt& operator=(const Schritt&) = delete;

    void binden(int index, const QVariant& wert);
    // Binds the values to the placeholders in order; a placeholder without a value raises 3061.
    void platzhalterBinden(const QVector<QVariant>& werte);
    bool weiter(); // true while a row stands; raises the store's error on failure
    QVariant wert(int spalte, Typklasse klasse = Typklasse::Frei) const;
    sqlite3_stmt* anweisung() const { return m_s.get(); }

private:
    Anweisung m_s;
};

// The error of a failed SQLite call, with the number the system's messages use.
[[noreturn]] void sqliteFehler(sqlite3* db, int rc, const QString& sql);

} // namespace vemo::detail
