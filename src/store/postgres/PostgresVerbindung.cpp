#include "store/postgres/PostgresVerbindung.h"

#include "platform/Fehler.h"
#include "store/Variant.h"
#include "store/postgres/PostgresSql.h"

#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QRegularExpression>
#include <sqlite3.h>

namespace vemo::detail {
namespace {

// The server's type numbers of the values it sends as text.
enum : Oid {
    Bool = 16,
    Int8 = 20,
    Int2 = 21,
    Int4 = 23,
    OidTyp = 26,
    Float4 = 700,
    Float8 = 701,
    Date = 1082,
    Timestamp = 1114,
    TimestampTz = 1184,
    Numeric = 1700,
    TextTyp = 25
};

QString utf8(const char* s) {
    return s ? QString::fromUtf8(s) : QString();
}

// The schema's spelling of its tables' columns, by "table.column" in lower case.
const QHash<QString, QString>& schemaSchreibweisen() {
    static const QHash<QString, QString> namen = [] {
        static const QRegularExpression tabelle(R"x(^CREATE TABLE "?([^"\s(]+))x");
        static const QRegularExpression spalte(R"x(^\s+"?([^"\s]+)"?\s+[A-Z])x");
        QHash<QString, QString> h;
        QFile f(":/data/schema.sql");
        f.open(QIODevice::ReadOnly);
        QString aktuelle;
        for (const QString& zeile : QString::fromUtf8(f.readAll()).split('\n')) {
            if (const auto t = tabelle.match(zeile); t.hasMatch())
                aktuelle = t.captured(1).toLower();
            else if (const auto s = spalte.match(zeile); s.hasMatch())
                h.insert(aktuelle + '.' + s.captured(1).toLower(), s.captured(1));
        }
        return h;
    }();
    return namen;
}

// A column of a table as the schema spells it; empty where the schema has no such column.
QString schemaSchreibweise(const QString& tabelle, const QString& spalte) {
    return schemaSchreibweisen().value(tabelle.toLower() + '.' + spalte.toLower());
}

// The server folds the names it gives back to lower case; the user reads a column's name as the
// statement or the schema writes it: an alias as the statement spells it, a table's column as the
// schema does.
QString schreibweise(const QString& name, const Ergebnisspalte& s, const QString& sql) {
    static const QRegularExpression alias(R"x(\bAS\s+\[?"?(\w+))x",
                                          QRegularExpression::CaseInsensitiveOption |
                                              QRegularExpression::UseUnicodePropertiesOption);
    for (auto it = alias.globalMatch(sql); it.hasNext();)
        if (const QString a = it.next().captured(1); a.compare(name, Qt::CaseInsensitive) == 0)
            return a;
    const QString geschrieben = name == s.ursprung ? schemaSchreibweise(s.tabelle, name) : QString();
    return geschrieben.isEmpty() ? name : geschrieben;
}

// The server's error as the store's, numbered as the system's messages number SQLite's: a lock
// waited for in vain is 3260 with SQLite's words, so that the user reads one message whichever
// engine holds the data; a lost connection is a failure of the store itself.
[[noreturn]] void postgresFehler(const QString& zustand, const QString& text, const QString& sql) {
    if (zustand == "55P03" || zustand == "40P01" || zustand == "40001")
        throw fehler::mit(fehler::Gesperrt, "database is locked");
    if (zustand.startsWith("23"))
        throw fehler::mit(fehler::DoppelterSchlüssel, text);
    if (zustand == "42P01") {
        static const QRegularExpression name("\"([^\"]*)\"");
        throw fehler::mit(fehler::TabelleNichtGefunden, name.match(text).captured(1));
    }
    if (zustand == "42703")
        throw fehler::mit(fehler::ZuWenigeParameter, text);
    if (zustand == "3D000" || zustand == "28000" || zustand == "28P01")
        throw fehler::mit(fehler::DatenbankNichtGefunden, text);
    if (zustand == "25P02")
        throw Fehler(3000 + SQLITE_ABORT, text);
    if (zustand.startsWith("22"))
        throw fehler::mit(fehler::TypenUnverträglich, text);
    if (zustand.startsWith("42") || zustand == "0A000")
        throw fehler::mit(fehler::SyntaxFehler, text + ": " + sql);
    throw Fehler(3000 + SQLITE_IOERR,
                 text.isEmpty() ? QString("Die Verbindung zum Server ist verloren") : text);
}

bool erfolgreich(const PGresult* r) {
    const auto s = r ? PQresultStatus(r) : PGRES_FATAL_ERROR;
    return s == PGRES_COMMAND_OK || s == PGRES_TUPLES_OK;
}

QString zustand(const PGresult* r) {
    return r ? utf8(PQresultErrorField(r, PG_DIAG_SQLSTATE)) : QString();
}

QVariant zeitpunkt(const QString& t) {
    const QDateTime dt = QDateTime::fromString(t.left(19), "yyyy-MM-dd HH:mm:ss");
    // The host's dates have no time where it is midnight: a day reads as a day.
    return dt.time() == QTime(0, 0) ? QVariant(dt.date()) : QVariant(dt);
}

// A prepared statement on the server. Its rows come in one result at the first step.
class PostgresBefehl : public Befehl {
public:
    PostgresBefehl(std::shared_ptr<Sitzung> s, QString text, QByteArray name, int platzhalter,
                   QVector<Ergebnisspalte> spalten, QVector<Oid> typen)
        : m_sitzung(std::move(s)), m_text(std::move(text)), m_name(std::move(name)),
          m_werte(size_t(platzhalter)), m_spalten(std::move(spalten)), m_typen(std::move(typen)) {}
    ~PostgresBefehl() override {
        if (PQstatus(m_sitzung->conn()) == CONNECTION_OK)
            PQclear(PQexec(m_sitzung->conn(), ("DEALLOCATE " + m_name).constData()));
    }

    QString text() const override { return m_text; }
    int platzhalter() const override { return int(m_werte.size()); }
    void binden(int index, const QVariant& wert) override;
    bool weiter() override;
    QVariant wert(int spalte, Typklasse klasse) const override;
    int spaltenAnzahl() const override { return int(m_spalten.size()); }
    Ergebnisspalte spalte(int i) const override { return m_spalten[i]; }
    void zurücksetzen() noexcept override {
        m_ergebnis.reset();
        m_zeile = -1;
        for (auto& w : m_werte)
            w.reset();
    }

private:
    std::shared_ptr<Sitzung> m_sitzung;
    QString m_text;
    QByteArray m_name;
    std::vector<std::optional<QByteArray>> m_werte;
    QVector<Ergebnisspalte> m_spalten;
    QVector<Oid> m_typen;
    Sitzung::Ergebnis m_ergebnis{nullptr, PQclear};
    int m_zeile = -1;
};

void PostgresBefehl::binden(int index, const QVariant& wert) {
    if (index < 1 || index > int(m_werte.size()))
        return;
    auto& ziel = m_werte[size_t(index - 1)];
    if (istLeer(wert)) {
        ziel.reset();
        return;
    }
    switch (wert.typeId()) {
    case QMetaType::Bool:
        ziel = wert.toBool() ? "-1" : "0";
        return;
    case QMetaType::Double:
    case QMetaType::Float:
        ziel = QByteArray::number(wert.toDouble(), 'g', 17);
        return;
    case QMetaType::QDate:
        ziel = wert.toDate().toString(Qt::ISODate).toUtf8();
        return;
    case QMetaType::QDateTime:
        ziel = wert.toDateTime().toString("yyyy-MM-dd HH:mm:ss").toUtf8();
        return;
    default:
        ziel = wert.toString().toUtf8();
    }
}

bool PostgresBefehl::weiter() {
    if (m_ergebnis) {
        ++m_zeile;
        return m_zeile < PQntuples(m_ergebnis.get());
    }
    std::vector<const char*> werte;
    for (const auto& w : m_werte)
        werte.push_back(w ? w->constData() : nullptr);
    m_ergebnis = m_sitzung->ausführen(
        [&] {
            return PQsendQueryPrepared(m_sitzung->conn(), m_name.constData(), int(werte.size()), werte.data(),
                                       nullptr, nullptr, 0);
        },
        m_text);
    const QByteArray art = PQcmdStatus(m_ergebnis.get());
    if (!art.startsWith("SELECT")) {
        m_sitzung->änderungen += QByteArray(PQcmdTuples(m_ergebnis.get())).toLongLong();
        if (!m_sitzung->inTransaktion())
            ++m_sitzung->commits;
    }
    m_zeile = 0;
    return m_zeile < PQntuples(m_ergebnis.get());
}

QVariant PostgresBefehl::wert(int spalte, Typklasse klasse) const {
    const PGresult* r = m_ergebnis.get();
    if (!r || m_zeile < 0 || m_zeile >= PQntuples(r) || spalte < 0 || spalte >= PQnfields(r) ||
        PQgetisnull(r, m_zeile, spalte))
        return nullWert();
    const QString t = QString::fromUtf8(PQgetvalue(r, m_zeile, spalte), PQgetlength(r, m_zeile, spalte));
    switch (PQftype(r, spalte)) {
    case Int2:
    case Int4:
    case Int8:
    case OidTyp:
        return QVariant(t.toLongLong());
    case Float4:
    case Float8:
    case Numeric:
        return QVariant(t.toDouble());
    case Bool:
        return QVariant(qlonglong(t == "t" ? -1 : 0));
    case Date:
        return QVariant(QDate::fromString(t, Qt::ISODate));
    case Timestamp:
    case TimestampTz:
        return zeitpunkt(t);
    default:
        if (klasse == Typklasse::Datum)
            if (const auto d = datumAusText(t))
                return *d;
        return t;
    }
}

} // namespace

Sitzung::Sitzung(const QString& uri) {
    m_conn = PQconnectdb(uri.toUtf8().constData());
    if (PQstatus(m_conn) != CONNECTION_OK) {
        const QString text = utf8(PQerrorMessage(m_conn)).trimmed();
        PQfinish(m_conn);
        throw fehler::mit(fehler::DatenbankNichtGefunden, uri + ": " + text);
    }
    PQsetClientEncoding(m_conn, "UTF8");
    try {
        // Another workplace's lock makes us wait, as the host's does on the file, then fail.
        befehl("SET lock_timeout = 15000; SET datestyle = 'ISO, MDY'; SET client_min_messages = warning");
    } catch (...) {
        PQfinish(m_conn);
        throw;
    }
}

Sitzung::~Sitzung() {
    PQfinish(m_conn);
}

bool Sitzung::inTransaktion() const {
    const auto s = PQtransactionStatus(m_conn);
    return s == PQTRANS_INTRANS || s == PQTRANS_INERROR;
}

Sitzung::Ergebnis Sitzung::prüfen(PGresult* r, const QString& sql) {
    Ergebnis e(r, PQclear);
    if (erfolgreich(r))
        return e;
    const QString text = r ? utf8(PQresultErrorField(r, PG_DIAG_MESSAGE_PRIMARY)) : QString();
    postgresFehler(zustand(r), text.isEmpty() ? utf8(PQerrorMessage(m_conn)).trimmed() : text, sql);
}

Sitzung::Ergebnis Sitzung::befehl(const QString& sql) {
    return prüfen(PQexec(m_conn, sql.toUtf8().constData()), sql);
}

// The results of one statement sent: the last of them, the others let go.
PGresult* Sitzung::ergebnisAbholen() {
    PGresult* letztes = nullptr;
    while (PGresult* r = PQgetResult(m_conn)) {
        PQclear(letztes);
        letztes = r;
        if (PQresultStatus(r) == PGRES_PIPELINE_SYNC)
            break;
    }
    return letztes;
}

// The savepoint, the statement and the savepoint's release go to the server together, so that
// the protection costs no round trips of its own; only a failed statement sends one more, to
// roll back to the savepoint.
Sitzung::Ergebnis Sitzung::ausführen(const std::function<int()>& senden, const QString& sql) {
    if (PQtransactionStatus(m_conn) != PQTRANS_INTRANS) {
        senden();
        return prüfen(ergebnisAbholen(), sql);
    }
    const auto ohneWerte = [this](const char* anweisung) {
        PQsendQueryParams(m_conn, anweisung, 0, nullptr, nullptr, nullptr, nullptr, 0);
    };
    PQenterPipelineMode(m_conn);
    ohneWerte("SAVEPOINT vemo_schritt");
    senden();
    ohneWerte("RELEASE SAVEPOINT vemo_schritt");
    PQpipelineSync(m_conn);
    PQclear(ergebnisAbholen());
    PGresult* r = ergebnisAbholen();
    PQclear(ergebnisAbholen());
    PQclear(ergebnisAbholen());
    PQexitPipelineMode(m_conn);
    if (!erfolgreich(r))
        PQclear(PQexec(m_conn, "ROLLBACK TO SAVEPOINT vemo_schritt; RELEASE SAVEPOINT vemo_schritt"));
    return prüfen(r, sql);
}

PostgresVerbindung::PostgresVerbindung(const QString& uri, bool anlegen)
    : Verbindung(uri), m_sitzung(std::make_shared<Sitzung>(uri)) {
    if (anlegen)
        m_sitzung->befehl(postgresGrundlagen());
}

PostgresVerbindung::~PostgresVerbindung() {
    schemaGeändert(); // lets go of the prepared statements while the session stands
}

void PostgresVerbindung::setWartezeit(std::chrono::milliseconds wartezeit) {
    m_sitzung->befehl("SET lock_timeout = " + QString::number(wartezeit.count()));
}

// A script runs as one transaction: hundreds of rows of host data commit once.
void PostgresVerbindung::skriptAusführen(const QString& sql) {
    const bool eigene = !m_sitzung->inTransaktion();
    if (eigene)
        m_sitzung->befehl("BEGIN");
    try {
        for (const QString& anweisung : skriptFürPostgres(sql))
            m_sitzung->befehl(anweisung);
        m_sitzung->befehl("CALL vemo_folgen_nachziehen()");
        if (eigene) {
            m_sitzung->befehl("COMMIT");
            ++m_sitzung->commits;
        }
    } catch (...) {
        if (eigene)
            PQclear(PQexec(m_sitzung->conn(), "ROLLBACK"));
        schemaGeändert();
        throw;
    }
    schemaGeändert();
}

std::pair<QString, QString> PostgresVerbindung::herkunft(Oid tabelle, int spalte, QString* typ) {
    const quint64 schlüssel = (quint64(tabelle) << 16) | quint64(spalte);
    if (!m_herkünfte.contains(schlüssel)) {
        const QByteArray oid = QByteArray::number(tabelle);
        const char* werte[] = {oid.constData()};
        const QString sql = "SELECT c.relname, a.attnum, a.attname, format_type(a.atttypid, a.atttypmod) "
                            "FROM pg_attribute a JOIN pg_class c ON c.oid = a.attrelid "
                            "WHERE a.attrelid = $1::oid AND a.attnum > 0";
        const auto r = m_sitzung->ausführen(
            [&] {
                return PQsendQueryParams(m_sitzung->conn(), sql.toUtf8().constData(), 1, nullptr, werte,
                                         nullptr, nullptr, 0);
            },
            sql);
        for (int i = 0; i < PQntuples(r.get()); ++i)
            m_herkünfte.insert((quint64(tabelle) << 16) |
                                   quint64(QByteArray(PQgetvalue(r.get(), i, 1)).toInt()),
                               {utf8(PQgetvalue(r.get(), i, 0)), utf8(PQgetvalue(r.get(), i, 2)),
                                utf8(PQgetvalue(r.get(), i, 3))});
    }
    const Spaltenherkunft h = m_herkünfte.value(schlüssel);
    *typ = h.typ;
    return {h.tabelle, h.spalte};
}

Anweisung PostgresVerbindung::vorbereiten(const QString& sql) {
    const QByteArray text = fürPostgres(sql).toUtf8();
    if (text.trimmed().isEmpty())
        throw fehler::mit(fehler::SyntaxFehler, sql);
    const QByteArray name = m_sitzung->neuerName().toUtf8();
    PGconn* c = m_sitzung->conn();
    try {
        m_sitzung->ausführen([&] { return PQsendPrepare(c, name.constData(), text.constData(), 0, nullptr); },
                             sql);
    } catch (const Fehler& f) {
        // A value alone in the select list ("SELECT ?1") has no type the server can see: it is text.
        static const QRegularExpression platzhalter(R"(\$(\d+))");
        int anzahl = 0;
        for (auto it = platzhalter.globalMatch(QString::fromUtf8(text)); it.hasNext();)
            anzahl = std::max(anzahl, it.next().captured(1).toInt());
        if (!f.beschreibung().contains("could not determine data type") || anzahl == 0)
            throw;
        const std::vector<Oid> typen(size_t(anzahl), TextTyp);
        m_sitzung->ausführen(
            [&] { return PQsendPrepare(c, name.constData(), text.constData(), anzahl, typen.data()); }, sql);
    }
    const auto beschreibung =
        m_sitzung->ausführen([&] { return PQsendDescribePrepared(c, name.constData()); }, sql);
    const PGresult* r = beschreibung.get();
    QVector<Ergebnisspalte> spalten;
    QVector<Oid> typen;
    for (int i = 0; i < PQnfields(r); ++i) {
        Ergebnisspalte s;
        s.name = utf8(PQfname(r, i));
        if (const Oid t = PQftable(r, i); t != InvalidOid) {
            const auto [tabelle, spalte] = herkunft(t, PQftablecol(r, i), &s.typ);
            s.tabelle = tabelle;
            s.ursprung = spalte;
        }
        s.name = schreibweise(s.name, s, sql);
        spalten << s;
        typen << PQftype(r, i);
    }
    return std::make_shared<PostgresBefehl>(m_sitzung, sql, name, PQnparams(r), spalten, typen);
}

QStringList PostgresVerbindung::tabellen() {
    QStringList namen;
    Schritt s(anweisung("SELECT c.relname FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace "
                        "WHERE n.nspname = current_schema() AND c.relkind IN ('r', 'p') ORDER BY c.relname"));
    while (s.weiter())
        namen << s.wert(0).toString();
    return namen;
}

// A lock of the server's own that names no row, taken by a number the name hashes to; two names
// sharing a number at worst wait for each other.
void PostgresVerbindung::bereichSperren(const QString& bereich) {
    Schritt s(anweisung("SELECT pg_advisory_xact_lock(hashtextextended(?1, 0))"));
    s.binden(1, bereich);
    s.weiter();
}

QString PostgresVerbindung::tabellenName(const QString& name) {
    Schritt alle(anweisung("SELECT c.relname FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace "
                           "WHERE n.nspname = current_schema() AND c.relkind IN ('r', 'v', 'p', 'm')"));
    while (alle.weiter())
        if (alle.wert(0).toString().compare(name, Qt::CaseInsensitive) == 0)
            return alle.wert(0).toString();
    return {};
}

QVector<Verbindung::Spaltenbeschreibung>
PostgresVerbindung::spaltenBeschreiben(const QString& zitierterName) {
    QVector<Spaltenbeschreibung> spalten;
    Schritt s(
        anweisung("SELECT a.attname, format_type(a.atttypid, a.atttypmod), pg_get_expr(d.adbin, d.adrelid) "
                  "FROM pg_attribute a LEFT JOIN pg_attrdef d ON d.adrelid = a.attrelid AND "
                  "d.adnum = a.attnum WHERE a.attrelid = ?1::text::regclass AND a.attnum > 0 AND NOT "
                  "a.attisdropped AND a.attname <> 'rowid' ORDER BY a.attnum"));
    s.binden(1, zitierterName);
    while (s.weiter()) {
        const QString vorgabe = text(s.wert(2));
        // A literal ('xxxxx'::character varying, 48) keeps its value; CURRENT_DATE is evaluated anew.
        const bool literal = vorgabe.startsWith('\'') || (!vorgabe.isEmpty() && vorgabe[0].isDigit());
        const QString name = s.wert(0).toString();
        spalten.push_back({name, s.wert(1).toString(), vorgabe, !vorgabe.isEmpty() && !literal,
                           schemaSchreibweise(QString(zitierterName).remove('"'), name)});
    }
    return spalten;
}

void PostgresVerbindung::beginnen() {
    m_sitzung->befehl("BEGIN");
}

void PostgresVerbindung::festschreiben() {
    const auto status = PQtransactionStatus(m_sitzung->conn());
    if (status != PQTRANS_INTRANS) {
        if (status == PQTRANS_INERROR)
            PQclear(PQexec(m_sitzung->conn(), "ROLLBACK"));
        throw Fehler(3000 + SQLITE_ABORT, "Die Änderungen wurden nach einem Fehler des Speichers verworfen");
    }
    m_sitzung->befehl("COMMIT");
    ++m_sitzung->commits;
}

void PostgresVerbindung::zurückrollen() noexcept {
    if (m_sitzung->inTransaktion())
        PQclear(PQexec(m_sitzung->conn(), "ROLLBACK"));
}

} // namespace vemo::detail
