#pragma once

#include "store/Dialekt.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <chrono>
#include <list>
#include <memory>
#include <optional>
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

// A column of a statement's rows: its name, and where it comes straight from a column of a table,
// that table, the column's name there and its declared type.
struct Ergebnisspalte {
    QString name;
    QString tabelle;
    QString ursprung;
    QString typ;
};

// A prepared statement of an engine. Statements are written as SQLite reads them, with ?1, ?2, ...
// placeholders; an engine that speaks otherwise rewrites them when it prepares them.
class Befehl {
public:
    virtual ~Befehl() = default;
    virtual QString text() const = 0;
    virtual int platzhalter() const = 0;
    virtual void binden(int index, const QVariant& wert) = 0; // from 1; an empty value binds Null
    virtual bool weiter() = 0; // true while a row stands; raises the store's error on failure
    virtual QVariant wert(int spalte, Typklasse klasse) const = 0;
    virtual int spaltenAnzahl() const = 0;
    virtual Ergebnisspalte spalte(int i) const = 0;
    virtual void zurücksetzen() noexcept = 0;
};

// A prepared statement, let go when the last holder lets it go: the cache may drop it while a
// Schritt still runs it.
using Anweisung = std::shared_ptr<Befehl>;

// One open connection with its prepared statements and what it knows of its tables: the part every
// engine shares. An engine (an SQLite file, a PostgreSQL server) prepares statements, describes
// tables and runs transactions. Every statement is reset as soon as its rows are read, so that no
// statement stays open and each write commits by itself, or with the hold on the write lock it was
// made under.
class Verbindung {
public:
    // Statements kept prepared; the least recently used one goes. The keys the logic splices into
    // its conditions are bound values after translation, so that a run repeats a few texts.
    static constexpr int AnweisungenImCache = 128;

    // The database a file path or a server's connection URI (postgresql://...) names.
    static std::shared_ptr<Verbindung> öffnen(const QString& name, bool anlegen);
    static bool istServer(const QString& name);

    explicit Verbindung(const QString& name) : m_pfad(name) {}
    virtual ~Verbindung();
    Verbindung(const Verbindung&) = delete;
    Verbindung& operator=(const Verbindung&) = delete;

    struct Tabelle {
        QString name;    // as the schema spells it
        QString zitiert; // ready for a statement
        QStringList spalten;
        QStringList schreibweisen; // the columns' names as the user reads them
        QStringList zitierteSpalten;
        QStringList typen;
        QVector<Typklasse> klassen;
        QVector<QVariant> vorgaben;     // the store's default of each column, evaluated
        QStringList berechneteVorgaben; // expressions such as today's date, evaluated at each new row
        QString zeileLesen;             // reads one row again by its rowid, ?1, and locks it for Edit
        QString einfügenZusatz;         // ends an INSERT so that it gives the new row's rowid
        int index(const QString& spalte) const;
    };

    const QString& pfad() const { return m_pfad; }
    // The transactions written through this connection, each Update's own among them.
    virtual qint64 commits() const = 0;
    // The rows written through this connection (added, changed, deleted).
    virtual qint64 änderungen() const = 0;
    // How long a write waits for a lock another writer holds before it fails with 3260.
    virtual void setWartezeit(std::chrono::milliseconds wartezeit) = 0;
    // Runs native statements as the schema scripts write them, one after another.
    virtual void skriptAusführen(const QString& sql) = 0;
    // The rowid of the row the last INSERT added, where the INSERT itself did not give it.
    virtual qint64 letzteRowid() const = 0;
    // The tables of the database, as the schema spells them.
    virtual QStringList tabellen() = 0;
    // After rows were written with their keys: keys the store issues itself follow on from theirs.
    virtual void schlüsselNachziehen() {}
    // Holds a named part of the data until the transaction ends: another workplace asking for the
    // same name waits, as long as for a lock. In a file the transaction holds the whole database
    // already, so that a name adds nothing there.
    virtual void bereichSperren(const QString& bereich) { (void)bereich; }

    // A prepared statement, kept for reuse. Callers reset it through Schritt.
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

    // The write lock, as the host's pessimistic locking takes it for a row being changed or added.
    // Holds on one connection nest and share one short transaction, which ends with the last
    // release, by a commit: whatever a holder wrote in between stands, as every Update must.
    // sperreAbgeben raises when that commit fails; sperreLösen does not. A unit of work that must
    // stand or fall whole gives its hold back with sperreVerwerfen, which rolls the transaction back.
    void sperreNehmen();
    void sperreAbgeben();
    void sperreLösen() noexcept;
    void sperreVerwerfen() noexcept;
    bool sperreGehalten() const { return m_sperren > 0; }

protected:
    struct Spaltenbeschreibung {
        QString name;
        QString typ;
        QString vorgabe;      // the default's expression, empty where there is none
        bool berechnet{};     // evaluated anew for each row, as today's date
        QString schreibweise; // the name as the user reads it, where the engine folds it
    };
    virtual Anweisung vorbereiten(const QString& sql) = 0;
    // The table or view of that name as the schema spells it, compared without regard to case;
    // empty when there is none.
    virtual QString tabellenName(const QString& name) = 0;
    virtual QVector<Spaltenbeschreibung> spaltenBeschreiben(const QString& zitierterName) = 0;
    // Ends the statement that reads a row again under Edit: where the engine locks rows, it locks.
    virtual QString zeileSperren() const = 0;
    virtual QString einfügenZusatz() const = 0;
    virtual void beginnen() = 0;
    // Commits; when that fails the transaction is rolled back and the store's error raised.
    virtual void festschreiben() = 0;
    virtual void zurückrollen() noexcept = 0;
    virtual void zwischenspeicherGeleert() {}

private:
    using Cache = std::list<std::pair<QString, Anweisung>>; // the most recently used first

    QString m_pfad;
    Cache m_zuletzt;
    QHash<QString, Cache::iterator> m_anweisungen;
    QHash<QString, std::shared_ptr<const Tabelle>> m_tabellen; // by lower-case name
    QHash<QString, Übersetzung> m_übersetzungen;
    QHash<QString, std::shared_ptr<const Abfrageform>> m_abfrageformen;
    int m_sperren = 0;
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
    ~Schritt() { m_s->zurücksetzen(); }
    Schritt(const Schritt&) = delete;
    Schritt& operator=(const Schritt&) = delete;

    void binden(int index, const QVariant& wert) { m_s->binden(index, wert); }
    // Binds the values to the placeholders in order; a placeholder without a value raises 3061.
    void platzhalterBinden(const QVector<QVariant>& werte);
    bool weiter() { return m_s->weiter(); }
    QVariant wert(int spalte, Typklasse klasse = Typklasse::Frei) const { return m_s->wert(spalte, klasse); }
    const Befehl& befehl() const { return *m_s; }

private:
    Anweisung m_s;
};

// A date or a date and time as the stores write them in text ("2024-05-31", "2024-05-31 14:05:00");
// nothing when the text is neither.
std::optional<QVariant> datumAusText(const QString& t);

} // namespace vemo::detail
