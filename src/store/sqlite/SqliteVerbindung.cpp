#include "store/sqlite/SqliteVerbindung.h"

#include "platform/Fehler.h"
#include "platform/Zahlformat.h"
#include "store/Textvergleich.h"
#include "store/Variant.h"

#include <QDate>
#include <QDateTime>
#include <QFileInfo>
#include <cassert>

namespace vemo::detail {
namespace {

// Val() of the dialect: the numeric prefix of a text.
void valFunktion(sqlite3_context* ctx, int, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) {
        sqlite3_result_null(ctx);
        return;
    }
    const auto* t = reinterpret_cast<const char*>(sqlite3_value_text(argv[0]));
    sqlite3_result_double(ctx, zahlformat::val(QString::fromUtf8(t)));
}

QString utf8(const char* s) {
    return s ? QString::fromUtf8(s) : QString();
}

QString textArgument(sqlite3_value* v) {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_value_text(v)), sqlite3_value_bytes(v));
}

void textErgebnis(sqlite3_context* ctx, const QString& t) {
    const QByteArray b = t.toUtf8();
    sqlite3_result_text(ctx, b.constData(), int(b.size()), SQLITE_TRANSIENT);
}

// The text functions of the dialect that SQLite lacks: Left, Right, Mid, Len, UCase, LCase.
void textFunktion(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) {
        sqlite3_result_null(ctx);
        return;
    }
    const QString s = textArgument(argv[0]);
    const auto zahl = [&](int i) { return argc > i ? sqlite3_value_int(argv[i]) : -1; };
    const QByteArray name(static_cast<const char*>(sqlite3_user_data(ctx)));
    if (name == "Left")
        textErgebnis(ctx, s.left(zahl(1)));
    else if (name == "Right")
        textErgebnis(ctx, s.right(zahl(1)));
    else if (name == "Mid")
        textErgebnis(ctx, s.mid(std::max(0, zahl(1) - 1), zahl(2)));
    else if (name == "Len")
        sqlite3_result_int(ctx, int(s.size()));
    else if (name == "UCase")
        textErgebnis(ctx, s.toUpper());
    else
        textErgebnis(ctx, s.toLower());
}

// The operand of the dialect's &: Null gives the empty text, a number is written as the system
// writes numbers ("10000", not "10000.0").
void vbTextFunktion(sqlite3_context* ctx, int, sqlite3_value** argv) {
    switch (sqlite3_value_type(argv[0])) {
    case SQLITE_NULL:
        textErgebnis(ctx, QString());
        return;
    case SQLITE_FLOAT:
        textErgebnis(ctx, zahlformat::text(sqlite3_value_double(argv[0])));
        return;
    default:
        textErgebnis(ctx, textArgument(argv[0]));
    }
}

void funktionenAnmelden(sqlite3* db) {
    textSortierfolgeAnmelden(db);
    sqlite3_create_function(db, "VbText", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, vbTextFunktion,
                            nullptr, nullptr);
    sqlite3_create_function(db, "Val", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, valFunktion, nullptr,
                            nullptr);
    static const struct {
        const char* name;
        int argumente;
    } tabelle[] = {{"Left", 2}, {"Right", 2}, {"Mid", 2}, {"Mid", 3}, {"Len", 1}, {"UCase", 1}, {"LCase", 1}};
    for (const auto& f : tabelle)
        sqlite3_create_function(db, f.name, f.argumente, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                const_cast<char*>(f.name), textFunktion, nullptr, nullptr);
}

// A file that is there but holds no database of ours.
Fehler unbekanntesFormat(const QString& pfad) {
    return Fehler(fehler::UnbekanntesDatenbankformat, "Unbekanntes Datenbankformat '" + pfad + "'.");
}

// A prepared SQLite statement.
class SqliteBefehl : public Befehl {
public:
    explicit SqliteBefehl(sqlite3_stmt* s) : m_s(s) {}
    ~SqliteBefehl() override { sqlite3_finalize(m_s); }

    QString text() const override { return utf8(sqlite3_sql(m_s)); }
    int platzhalter() const override { return sqlite3_bind_parameter_count(m_s); }
    void binden(int index, const QVariant& wert) override;
    bool weiter() override;
    QVariant wert(int spalte, Typklasse klasse) const override;
    int spaltenAnzahl() const override { return sqlite3_column_count(m_s); }
    Ergebnisspalte spalte(int i) const override {
        return {utf8(sqlite3_column_name(m_s, i)), utf8(sqlite3_column_table_name(m_s, i)),
                utf8(sqlite3_column_origin_name(m_s, i)), utf8(sqlite3_column_decltype(m_s, i))};
    }
    void zurücksetzen() noexcept override {
        sqlite3_reset(m_s);
        sqlite3_clear_bindings(m_s);
    }

private:
    sqlite3_stmt* m_s;
};

void SqliteBefehl::binden(int index, const QVariant& wert) {
    if (istLeer(wert)) {
        sqlite3_bind_null(m_s, index);
        return;
    }
    switch (wert.typeId()) {
    case QMetaType::Bool:
        sqlite3_bind_int(m_s, index, wert.toBool() ? -1 : 0);
        return;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        sqlite3_bind_int64(m_s, index, wert.toLongLong());
        return;
    case QMetaType::Double:
    case QMetaType::Float:
        sqlite3_bind_double(m_s, index, wert.toDouble());
        return;
    default:
        break;
    }
    QString t;
    if (wert.typeId() == QMetaType::QDate)
        t = wert.toDate().toString(Qt::ISODate);
    else if (wert.typeId() == QMetaType::QDateTime)
        t = wert.toDateTime().toString("yyyy-MM-dd HH:mm:ss");
    else
        t = wert.toString();
    const QByteArray b = t.toUtf8();
    sqlite3_bind_text(m_s, index, b.constData(), int(b.size()), SQLITE_TRANSIENT);
}

bool SqliteBefehl::weiter() {
    const int rc = sqlite3_step(m_s);
    if (rc == SQLITE_ROW)
        return true;
    if (rc == SQLITE_DONE)
        return false;
    sqliteFehler(sqlite3_db_handle(m_s), rc, text());
}

QVariant SqliteBefehl::wert(int spalte, Typklasse klasse) const {
    switch (sqlite3_column_type(m_s, spalte)) {
    case SQLITE_NULL:
        return nullWert();
    case SQLITE_INTEGER:
        return QVariant(qlonglong(sqlite3_column_int64(m_s, spalte)));
    case SQLITE_FLOAT:
        return sqlite3_column_double(m_s, spalte);
    default: {
        const QString t = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(m_s, spalte)),
                                            sqlite3_column_bytes(m_s, spalte));
        if (klasse == Typklasse::Datum)
            if (const auto d = datumAusText(t))
                return *d;
        return t;
    }
    }
}

} // namespace

void sqliteFehler(sqlite3* db, int rc, const QString& sql) {
    const QString text = utf8(sqlite3_errmsg(db));
    const int basis = rc & 0xff;
    if (text.startsWith("no such table"))
        throw fehler::mit(fehler::TabelleNichtGefunden, text.mid(15));
    if (text.startsWith("no such column"))
        throw fehler::mit(fehler::ZuWenigeParameter, text.mid(16));
    if (basis == SQLITE_BUSY || basis == SQLITE_LOCKED)
        throw fehler::mit(fehler::Gesperrt, text);
    if (basis == SQLITE_CONSTRAINT)
        throw fehler::mit(fehler::DoppelterSchlüssel, text);
    if (basis == SQLITE_NOTADB)
        throw unbekanntesFormat(utf8(sqlite3_db_filename(db, "main")));
    if (basis == SQLITE_CANTOPEN)
        throw fehler::mit(fehler::DatenbankNichtGefunden, text);
    if (basis == SQLITE_ERROR || basis == SQLITE_RANGE)
        throw fehler::mit(fehler::SyntaxFehler, text + ": " + sql);
    throw Fehler(3000 + basis, text);
}

SqliteVerbindung::SqliteVerbindung(const QString& pfad, bool anlegen) : Verbindung(pfad) {
    if (!anlegen && !QFileInfo::exists(pfad))
        throw fehler::mit(fehler::DatenbankNichtGefunden, pfad);
    // SQLite takes an empty file for an empty database and would make it one at the first write;
    // a file picked by mistake stays as it was.
    if (!anlegen && QFileInfo(pfad).isFile() && QFileInfo(pfad).size() == 0)
        throw unbekanntesFormat(pfad);
    const int flags = SQLITE_OPEN_READWRITE | (anlegen ? SQLITE_OPEN_CREATE : 0);
    const int rc = sqlite3_open_v2(pfad.toUtf8().constData(), &m_db, flags, nullptr);
    if (rc != SQLITE_OK) {
        const QString text = m_db ? utf8(sqlite3_errmsg(m_db)) : QString();
        sqlite3_close(m_db);
        throw fehler::mit(fehler::DatenbankNichtGefunden, pfad + ": " + text);
    }
    // SQLite opens a file it may not write for reading only; every command of the component
    // writes, so such a file is refused here with one message instead of one at each write.
    if (sqlite3_db_readonly(m_db, "main") == 1) {
        sqlite3_close(m_db);
        throw fehler::mit(fehler::Schreibgeschützt, pfad);
    }
    // Opened shared with the host: a lock held there makes us wait, not fail.
    sqlite3_busy_timeout(m_db, 15000);
    sqlite3_commit_hook(
        m_db,
        [](void* zähler) {
            ++*static_cast<qint64*>(zähler);
            return 0;
        },
        &m_commits);
    funktionenAnmelden(m_db);
    char* fehlerText = nullptr;
    const int rc2 = sqlite3_exec(m_db, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;", nullptr,
                                 nullptr, &fehlerText);
    sqlite3_free(fehlerText);
    if (rc2 != SQLITE_OK) {
        try {
            sqliteFehler(m_db, rc2, "PRAGMA journal_mode");
        } catch (...) {
            sqlite3_close(m_db);
            throw;
        }
    }
}

SqliteVerbindung::~SqliteVerbindung() {
    schemaGeändert(); // lets go of the kept statements
    // A statement still held elsewhere keeps the connection until it is finalized.
    sqlite3_close_v2(m_db);
}

qint64 SqliteVerbindung::änderungen() const {
    return sqlite3_total_changes64(m_db);
}

void SqliteVerbindung::setWartezeit(std::chrono::milliseconds wartezeit) {
    sqlite3_busy_timeout(m_db, int(wartezeit.count()));
}

void SqliteVerbindung::skriptAusführen(const QString& sql) {
    char* fehlerText = nullptr;
    const int rc = sqlite3_exec(m_db, sql.toUtf8().constData(), nullptr, nullptr, &fehlerText);
    sqlite3_free(fehlerText);
    schemaGeändert();
    if (rc != SQLITE_OK)
        sqliteFehler(m_db, rc, sql.left(200));
}

qint64 SqliteVerbindung::letzteRowid() const {
    return sqlite3_last_insert_rowid(m_db);
}

QStringList SqliteVerbindung::tabellen() {
    QStringList namen;
    Schritt s(anweisung("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite\\_%' "
                        "ESCAPE '\\' ORDER BY name"));
    while (s.weiter())
        namen << s.wert(0).toString();
    return namen;
}

Anweisung SqliteVerbindung::vorbereiten(const QString& sql) {
    sqlite3_stmt* s = nullptr;
    const QByteArray text = sql.toUtf8();
    const int rc = sqlite3_prepare_v2(m_db, text.constData(), int(text.size()), &s, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_finalize(s);
        sqliteFehler(m_db, rc, sql);
    }
    if (!s) // only blanks or a comment
        throw fehler::mit(fehler::SyntaxFehler, sql);
    return std::make_shared<SqliteBefehl>(s);
}

QString SqliteVerbindung::tabellenName(const QString& name) {
    Schritt s(anweisung("SELECT name FROM sqlite_master WHERE type IN ('table','view') AND name = ?1 "
                        "COLLATE NOCASE"));
    s.binden(1, name);
    if (s.weiter())
        return s.wert(0).toString();
    // SQLite folds only ASCII letters; names with umlauts are compared here.
    Schritt alle(anweisung("SELECT name FROM sqlite_master WHERE type IN ('table','view')"));
    while (alle.weiter())
        if (alle.wert(0).toString().compare(name, Qt::CaseInsensitive) == 0)
            return alle.wert(0).toString();
    return {};
}

QVector<Verbindung::Spaltenbeschreibung> SqliteVerbindung::spaltenBeschreiben(const QString& zitierterName) {
    QVector<Spaltenbeschreibung> spalten;
    Schritt s(anweisung("PRAGMA table_info(" + zitierterName + ")"));
    while (s.weiter()) {
        const QString vorgabe = s.wert(4).toString();
        spalten.push_back({s.wert(1).toString(), s.wert(2).toString(), vorgabe, vorgabe.startsWith('('), {}});
    }
    return spalten;
}

bool SqliteVerbindung::anweisungLäuft() const {
    for (sqlite3_stmt* s = sqlite3_next_stmt(m_db, nullptr); s; s = sqlite3_next_stmt(m_db, s))
        if (sqlite3_stmt_busy(s))
            return true;
    return false;
}

// Under WAL a connection still reading from an older snapshot is refused the lock at once when
// another writer has committed since; from a fresh snapshot it waits under the busy timeout. Every
// statement is reset when its rows are read, so that each new try starts from a fresh snapshot.
void SqliteVerbindung::beginnen() {
    assert(!anweisungLäuft());
    constexpr int Versuche = 5;
    int rc = SQLITE_OK;
    for (int versuch = 0; versuch < Versuche; ++versuch) {
        rc = sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        if (rc == SQLITE_OK || sqlite3_extended_errcode(m_db) != SQLITE_BUSY_SNAPSHOT)
            break;
    }
    if (rc != SQLITE_OK)
        sqliteFehler(m_db, rc, "BEGIN IMMEDIATE");
}

// Ends the transaction with a commit, or, when that fails, with a rollback, so that the connection
// is never left inside a transaction. SQLite may have rolled back already after an error (a full
// disk, an I/O error): then what the holders wrote is gone, and the commit must not pretend.
void SqliteVerbindung::festschreiben() {
    if (sqlite3_get_autocommit(m_db))
        throw Fehler(3000 + SQLITE_ABORT, "Die Änderungen wurden nach einem Fehler des Speichers verworfen");
    const int rc = sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
    if (rc == SQLITE_OK)
        return;
    const QString text = utf8(sqlite3_errmsg(m_db));
    sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    sqliteFehler(m_db, rc, "COMMIT: " + text);
}

void SqliteVerbindung::zurückrollen() noexcept {
    if (!sqlite3_get_autocommit(m_db))
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
}

} // namespace vemo::detail
