#include "store/Verbindung.h"

#include "platform/Fehler.h"
#include "platform/Zahlformat.h"
#include "store/Variant.h"
#include "store/postgres/PostgresVerbindung.h"
#include "store/sqlite/SqliteVerbindung.h"

#include <QDate>
#include <QDateTime>
#include <cassert>
#include <cmath>

namespace vemo::detail {

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

std::optional<QVariant> datumAusText(const QString& t) {
    if (t.size() > 10) {
        const QDateTime dt = QDateTime::fromString(t.left(19), "yyyy-MM-dd HH:mm:ss");
        if (dt.isValid())
            return dt;
    }
    const QDate d = QDate::fromString(t, Qt::ISODate);
    if (d.isValid())
        return d;
    return std::nullopt;
}

bool Verbindung::istServer(const QString& name) {
    return name.startsWith("postgresql://") || name.startsWith("postgres://");
}

std::shared_ptr<Verbindung> Verbindung::öffnen(const QString& name, bool anlegen) {
    if (istServer(name))
        return std::make_shared<PostgresVerbindung>(name, anlegen);
    return std::make_shared<SqliteVerbindung>(name, anlegen);
}

Verbindung::~Verbindung() {
    assert(m_sperren == 0); // every hold belongs to a record set, which keeps its connection
}

int Verbindung::Tabelle::index(const QString& spalte) const {
    for (int i = 0; i < spalten.size(); ++i)
        if (spalten[i].compare(spalte, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

Anweisung Verbindung::anweisung(const QString& sql) {
    if (auto it = m_anweisungen.constFind(sql); it != m_anweisungen.cend()) {
        m_zuletzt.splice(m_zuletzt.begin(), m_zuletzt, *it);
        return m_zuletzt.front().second;
    }
    Anweisung s = vorbereiten(sql);
    m_zuletzt.emplace_front(sql, std::move(s));
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
    t.name = tabellenName(name);
    if (t.name.isEmpty())
        return nullptr;
    const auto zitiert = [](QString n) { return "\"" + n.replace('"', "\"\"") + "\""; };
    t.zitiert = zitiert(t.name);
    for (const Spaltenbeschreibung& s : spaltenBeschreiben(t.zitiert)) {
        t.spalten << s.name;
        t.schreibweisen << (s.schreibweise.isEmpty() ? s.name : s.schreibweise);
        t.zitierteSpalten << zitiert(s.name);
        t.typen << s.typ;
        t.klassen << typklasse(s.typ);
        QVariant v = nullWert();
        if (!s.vorgabe.isEmpty()) {
            Schritt w(anweisung("SELECT " + s.vorgabe));
            if (w.weiter())
                v = w.wert(0, t.klassen.last());
        }
        t.vorgaben << v;
        // Literal defaults keep their value; only an expression such as today's date is evaluated anew.
        t.berechneteVorgaben << (s.berechnet ? s.vorgabe : QString());
    }
    t.zeileLesen =
        "SELECT " + t.zitierteSpalten.join(',') + " FROM " + t.zitiert + " WHERE rowid = ?1" + zeileSperren();
    t.einfügenZusatz = einfügenZusatz();
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
    zwischenspeicherGeleert();
}

void Verbindung::sperreNehmen() {
    if (m_sperren == 0)
        beginnen();
    ++m_sperren;
}

void Verbindung::sperreAbgeben() {
    assert(m_sperren > 0);
    if (--m_sperren == 0)
        festschreiben();
}

void Verbindung::sperreLösen() noexcept {
    assert(m_sperren > 0);
    if (--m_sperren > 0)
        return;
    try {
        festschreiben();
    } catch (const Fehler&) {
        // Given back without a caller to tell: what was written then is gone with the rollback.
    }
}

// The holds of record sets that an error left inside the unit are given back later; they find the
// transaction ended and commit nothing.
void Verbindung::sperreVerwerfen() noexcept {
    assert(m_sperren > 0);
    --m_sperren;
    zurückrollen();
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

void Schritt::platzhalterBinden(const QVector<QVariant>& werte) {
    const int platzhalter = m_s->platzhalter();
    if (platzhalter > werte.size())
        throw fehler::mit(fehler::ZuWenigeParameter, "Erwartet: " + QString::number(platzhalter));
    for (int i = 0; i < platzhalter; ++i)
        binden(i + 1, werte[i]);
}

} // namespace vemo::detail
