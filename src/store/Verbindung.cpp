#include "store/Verbindung.h"

#include "platform/Fehler.h"
#include "platform/Zahlformat.h"
#include "store/Textvergleich.h"
#include "store/Variant.h"

#include <QDate>
#include <QDateTime>
#include <QFileInfo>
#include <cassert>
#include <cmath>
#include <utility>

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

} // namespace

Typklasse typklasse(const QString& deklariert) {
    const QString t = deklariert.toUpper();
    if (t.isEmpty())
        return Typklasse::Frei;
    if (t.startsWith("DATE") || t.startsWith("TIME"))
        return Typklasse::Datum;
    if (t.contains("INT") || t.startsWith("REAL") || t.startsWith("DOUBLE") || t.startsWith("FLOAT") ||
        t.startsWith("NUMERIC") || t.startsWith("DECIMAL"))
        return Typklasse::Zahl;
    return Typklasse::Text;
}

namespace {

QVariant alsZahl(const QVariant& wert) {
    if (wert.typeId() == QMetaType::Bool)
        return qlonglong(wert.toBool() ? -1 : 0);
    if (istZahl(wert))
        return wert.typeId() == QMetaType::Double || wert.typeId() == QMetaType::Float
                   ? QVariant(wert.toDouble())
                   : QVariant(wert.toLongLong());
    const auto z = zahlformat::zahl(wert.toString());
    if (!z)
        throw fehler::mit(fehler::TypenUnverträglich, wert.toString());
    const double ganz = std::nearbyint(*z);
    return ganz == *z && std::fabs(ganz) < 9e15 ? QVariant(qlonglong(ganz)) : QVariant(*z);
}

QVariant alsDatum(const QVariant& wert) {
    if (wert.typeId() == QMetaType::QDate || wert.typeId() == QMetaType::QDateTime)
        return wert;
    const QString t = wert.toString().trimmed();
    const auto d = zahlformat::datum(t);
    if (!d)
        throw fehler::mit(fehler::TypenUnverträglich, t);
    const QTime zeit = QTime::fromString(t.section(' ', 1, 1), "H:mm:ss");
    return zeit.isValid() ? QVariant(QDateTime(*d, zeit)) : QVariant(*d);
}

} // namespace

QVariant spaltenwert(const QVariant& wert, Typklasse klasse) {
    if (istLeer(wert))
        return nullWert();
    switch (klasse) {
    case Typklasse::Zahl:
        return alsZahl(wert);
    case Typklasse::Datum:
        return alsDatum(wert);
    case Typklasse::Text:
        return text(wert);
    case Typklasse::Frei:
        break;
    }
    return wert;
}

namespace {
// A file that is there but holds no database of ours.
Fehler unbekanntesFormat(const QString& pfad) {
    return Fehler(fehler::UnbekanntesDatenbankformat, "Unbekanntes Datenbankformat '" + pfad + "'.");
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

int Verbindung::Tabelle::index(const QString& spalte) const {
    for (int i = 0; i < spalten.size(); ++i)
        if (spalten[i].compare(spalte, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

Verbindung::Verbindung(const QString& pfad, bool anlegen) : m_pfad(pfad) {
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
        m_db = nullptr;
        throw fehler::mit(fehler::DatenbankNichtGefunden, pfad + ": " + text);
    }
    // SQLite opens a file it may not write for reading only; every command of the component
    // writes, so such a file is refused here with one message instead of one at each write.
    if (sqlite3_db_readonly(m_db, "main") == 1) {
        sqlite3_close(m_db);
        m_db = nullptr;
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
        const int fehlerNr = rc2;
        sqlite3* db = m_db;
        try {
            sqliteFehler(db, fehlerNr, "PRAGMA journal_mode");
        } catch (...) {
            sqlite3_close(m_db);
            m_db = nullptr;
            throw;
        }
    }
}

Verbindung::~Verbindung() {
    assert(m_sperren == 0); // every hold belongs to a record set, which keeps its connection
    m_anweisungen.clear();
    m_zuletzt.clear();
    // A statement still held elsewhere keeps the connection until it is finalized.
    sqlite3_close_v2(m_db);
}

Anweisung Verbindung::anweisung(const QString& sql) {
    if (auto it = m_anweisungen.constFind(sql); it != m_anweisungen.cend()) {
        m_zuletzt.splice(m_zuletzt.begin(), m_zuletzt, *it);
        return m_zuletzt.front().second;
    }
    sqlite3_stmt* s = nullptr;
    const QByteArray text = sql.toUtf8();
    const int rc = sqlite3_prepare_v2(m_db, text.constData(), int(text.size()), &s, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_finalize(s);
        sqliteFehler(m_db, rc, sql);
    }
    if (!s) // only blanks or a comment
        throw fehler::mit(fehler::SyntaxFehler, sql);
    m_zuletzt.emplace_front(sql, Anweisung(s, sqlite3_finalize));
    m_anweisungen.insert(sql, m_zuletzt.begin());
    if (m_zuletzt.size() > AnweisungenImCache) {
        m_anweisungen.remove(m_zuletzt.back().first);
        m_zuletzt.pop_back();
    }
    return m_zuletzt.front().second;
}

std::shared_ptr<const Verbindung::Tabelle> Verbindung::tabelle(const QString& name) {
    const QString schlüssel = name.toLower();
    if (auto it = m_tabellen.constFind(schlüssel); it != m_tabellen.cend())
        return *it;
    Tabelle t;
    {
        Schritt s(anweisung("SELECT name FROM sqlite_master WHERE type IN ('table','view') AND name = ?1 "
                            "COLLATE NOCASE"));
        s.binden(1, name);
        if (!s.weiter()) {
            // SQLite folds only ASCII letters; names with umlauts are compared here.
            Schritt alle(anweisung("SELECT name FROM sqlite_master WHERE type IN ('table','view')"));
            while (alle.weiter())
                if (alle.wert(0).toString().compare(name, Qt::CaseInsensitive) == 0)
                    t.name = alle.wert(0).toString();
            if (t.name.isEmpty())
                return nullptr;
        } else {
            t.name = s.wert(0).toString();
        }
    }
    const auto zitiert = [](QString n) { return "\"" + n.replace('"', "\"\"") + "\""; };
    t.zitiert = zitiert(t.name);
    {
        Schritt s(anweisung("PRAGMA table_info(" + t.zitiert + ")"));
        while (s.weiter()) {
            t.spalten << s.wert(1).toString();
            t.zitierteSpalten << zitiert(t.spalten.last());
            t.typen << s.wert(2).toString();
            t.klassen << typklasse(t.typen.last());
            t.berechneteVorgaben << s.wert(4).toString();
        }
    }
    for (int i = 0; i < t.spalten.size(); ++i) {
        QVariant v = nullWert();
        if (!t.berechneteVorgaben[i].isEmpty()) {
            Schritt s(anweisung("SELECT " + t.berechneteVorgaben[i]));
            if (s.weiter())
                v = s.wert(0, t.klassen[i]);
        }
        t.vorgaben << v;
        // Literal defaults keep their value; only an expression such as today's date is evaluated anew.
        if (!t.berechneteVorgaben[i].startsWith('('))
            t.berechneteVorgaben[i].clear();
    }
    t.zeileLesen = "SELECT " + t.zitierteSpalten.join(',') + " FROM " + t.zitiert + " WHERE rowid = ?1";
    auto beschreibung = std::make_shared<const Tabelle>(std::move(t));
    m_tabellen.insert(schlüssel, beschreibung);
    return beschreibung;
}

QVector<QVariant> Verbindung::vorgabenJetzt(const Tabelle& t) {
    QVector<QVariant> v = t.vorgaben;
    for (int i = 0; i < t.spalten.size(); ++i) {
        if (t.berechneteVorgaben[i].isEmpty())
            continue;
        Schritt s(anweisung("SELECT " + t.berechneteVorgaben[i]));
        if (s.weiter())
            v[i] = s.wert(0, t.klassen[i]);
    }
    return v;
}

namespace {
// Texts with keys spliced in are rarely seen twice: the kept ones start afresh when there are many.
constexpr int FormenHöchstens = 4 * Verbindung::AnweisungenImCache;

template <typename Wert> void merken(QHash<QString, Wert>& formen, const QString& text, Wert wert) {
    if (formen.size() >= FormenHöchstens)
        formen.clear();
    formen.insert(text, std::move(wert));
}
} // namespace

Übersetzung Verbindung::übersetzung(const QString& dialekt) {
    if (const auto it = m_übersetzungen.constFind(dialekt); it != m_übersetzungen.cend())
        return *it;
    Übersetzung ü = übersetzen(dialekt);
    merken(m_übersetzungen, dialekt, ü);
    return ü;
}

std::shared_ptr<const Abfrageform> Verbindung::abfrageform(const QString& sql) const {
    return m_abfrageformen.value(sql);
}

void Verbindung::abfrageformMerken(const QString& sql, std::shared_ptr<const Abfrageform> form) {
    merken(m_abfrageformen, sql, std::move(form));
}

void Verbindung::schemaGeändert() {
    m_abfrageformen.clear();
    m_tabellen.clear();
    m_anweisungen.clear();
    m_zuletzt.clear();
}

bool Verbindung::anweisungLäuft() const {
    for (sqlite3_stmt* s = sqlite3_next_stmt(m_db, nullptr); s; s = sqlite3_next_stmt(m_db, s))
        if (sqlite3_stmt_busy(s))
            return true;
    return false;
}

// Under WAL a connection still reading from an older snapshot is refused the lock at once when
// another writer has committed since; from a fresh snapshot it waits under the busy timeout. Every
// statement is reset when its rows are read, so that each new try starts from a fresh snapshot.
void Verbindung::beginnen() {
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
int Verbindung::beenden() noexcept {
    if (sqlite3_get_autocommit(m_db))
        return SQLITE_ABORT;
    const int rc = sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
    if (rc != SQLITE_OK)
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    return rc;
}

void Verbindung::sperreNehmen() {
    if (m_sperren == 0)
        beginnen();
    ++m_sperren;
}

void Verbindung::sperreAbgeben() {
    assert(m_sperren > 0);
    if (--m_sperren > 0)
        return;
    if (const int rc = beenden(); rc == SQLITE_ABORT)
        throw Fehler(3000 + SQLITE_ABORT, "Die Änderungen wurden nach einem Fehler des Speichers verworfen");
    else if (rc != SQLITE_OK)
        sqliteFehler(m_db, rc, "COMMIT");
}

void Verbindung::sperreLösen() noexcept {
    assert(m_sperren > 0);
    if (--m_sperren == 0)
        beenden();
}

// The holds of record sets that an error left inside the unit are given back later; they find the
// transaction ended and commit nothing.
void Verbindung::sperreVerwerfen() noexcept {
    assert(m_sperren > 0);
    --m_sperren;
    if (!sqlite3_get_autocommit(m_db))
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
}

Schreibsperre::Schreibsperre(Verbindung& v) : m_v(&v) {
    v.sperreNehmen();
}

Schreibsperre::~Schreibsperre() {
    if (m_v)
        m_v->sperreLösen();
}

void Schreibsperre::abgeben() {
    Verbindung* v = std::exchange(m_v, nullptr);
    v->sperreAbgeben();
}

Schritt::~Schritt() {
    sqlite3_reset(m_s.get());
    sqlite3_clear_bindings(m_s.get());
}

void Schritt::platzhalterBinden(const QVector<QVariant>& werte) {
    const int platzhalter = sqlite3_bind_parameter_count(m_s.get());
    if (platzhalter > werte.size())
        throw fehler::mit(fehler::ZuWenigeParameter, "Erwartet: " + QString::number(platzhalter));
    for (int i = 0; i < platzhalter; ++i)
        binden(i + 1, werte[i]);
}

void Schritt::binden(int index, const QVariant& wert) {
    if (istLeer(wert)) {
        sqlite3_bind_null(m_s.get(), index);
        return;
    }
    switch (wert.typeId()) {
    case QMetaType::Bool:
        sqlite3_bind_int(m_s.get(), index, wert.toBool() ? -1 : 0);
        return;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        sqlite3_bind_int64(m_s.get(), index, wert.toLongLong());
        return;
    case QMetaType::Double:
    case QMetaType::Float:
        sqlite3_bind_double(m_s.get(), index, wert.toDouble());
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
    sqlite3_bind_text(m_s.get(), index, b.constData(), int(b.size()), SQLITE_TRANSIENT);
}

bool Schritt::weiter() {
    const int rc = sqlite3_step(m_s.get());
    if (rc == SQLITE_ROW)
        return true;
    if (rc == SQLITE_DONE)
        return false;
    sqliteFehler(sqlite3_db_handle(m_s.get()), rc, utf8(sqlite3_sql(m_s.get())));
}

QVariant Schritt::wert(int spalte, Typklasse klasse) const {
    switch (sqlite3_column_type(m_s.get(), spalte)) {
    case SQLITE_NULL:
        return nullWert();
    case SQLITE_INTEGER:
        return QVariant(qlonglong(sqlite3_column_int64(m_s.get(), spalte)));
    case SQLITE_FLOAT:
        return sqlite3_column_double(m_s.get(), spalte);
    default: {
        const QString t =
            QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(m_s.get(), spalte)),
                              sqlite3_column_bytes(m_s.get(), spalte));
        if (klasse == Typklasse::Datum) {
            if (t.size() > 10) {
                const QDateTime dt = QDateTime::fromString(t, "yyyy-MM-dd HH:mm:ss");
                if (dt.isValid())
                    return dt;
            }
            const QDate d = QDate::fromString(t, Qt::ISODate);
            if (d.isValid())
                return d;
        }
        return t;
    }
    }
}

} // namespace vemo::detail
