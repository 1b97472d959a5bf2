#include "store/Datenbank.h"

#include "platform/Fehler.h"
#include "store/Dialekt.h"
#include "store/Variant.h"
#include "store/Verbindung.h"

namespace vemo {

namespace detail {
std::shared_ptr<RecordsetDaten> tabelleÖffnen(const std::shared_ptr<Verbindung>& v, const QString& name,
                                              std::shared_ptr<const Verbindung::Tabelle> t);
std::shared_ptr<RecordsetDaten> abfrageÖffnen(const std::shared_ptr<Verbindung>& v, const QString& name,
                                              const Übersetzung& ü, const QVector<QVariant>& parameter);
} // namespace detail

namespace {
// Saved queries live in a table of their own, in the dialect they were written in.
const char* const AbfragenTabelle = "Abfragen";

QString ohneKlammern(QString name) {
    name = name.trimmed();
    if (name.startsWith('[') && name.endsWith(']'))
        name = name.mid(1, name.size() - 2);
    return name;
}

bool ändertSchema(const QString& sql) {
    const QString wort = sql.section(' ', 0, 0, QString::SectionSkipEmpty).toUpper();
    return wort == "CREATE" || wort == "ALTER" || wort == "DROP";
}
} // namespace

Datenbank::Datenbank() = default;

Datenbank Datenbank::OpenDatabase(const QString& pfad, const QString&) {
    Datenbank db;
    db.m_v = detail::Verbindung::öffnen(pfad, false);
    return db;
}

Datenbank Datenbank::anlegen(const QString& pfad) {
    Datenbank db;
    db.m_v = detail::Verbindung::öffnen(pfad, true);
    return db;
}

bool Datenbank::istServer(const QString& name) {
    return detail::Verbindung::istServer(name);
}

detail::Verbindung& Datenbank::v() const {
    if (!m_v)
        throw Fehler(91, "Objektvariable oder With-Blockvariable nicht festgelegt");
    return *m_v;
}

std::shared_ptr<detail::Verbindung> Datenbank::verbindung() const {
    v();
    return m_v;
}

QString Datenbank::Name() const {
    return v().pfad();
}
void Datenbank::Close() {
    m_v.reset();
}

qint64 Datenbank::commits() const {
    return v().commits();
}

qint64 Datenbank::änderungen() const {
    return v().änderungen();
}

void Datenbank::setWartezeit(std::chrono::milliseconds wartezeit) const {
    v().setWartezeit(wartezeit);
}

Recordset Datenbank::OpenRecordset(const QString& quelle) const {
    const QString name = ohneKlammern(quelle);
    const bool istAnweisung = name.contains(' ') || name.contains('\n') || name.startsWith('(');
    if (!istAnweisung) {
        if (const auto t = v().tabelle(name))
            return Recordset(detail::tabelleÖffnen(m_v, quelle, t));
        if (abfrageVorhanden(name))
            return QueryDefs(name).OpenRecordset();
        throw fehler::mit(fehler::TabelleNichtGefunden, name);
    }
    return OpenRecordset(quelle, {});
}

Recordset Datenbank::OpenRecordset(const QString& anweisung, const QVector<QVariant>& werte) const {
    v(); // raises 91 when the database is closed
    return Recordset(detail::abfrageÖffnen(m_v, anweisung, v().übersetzung(anweisung), werte));
}

void Datenbank::Execute(const QString& anweisung) const {
    Execute(anweisung, {});
}

void Datenbank::Execute(const QString& anweisung, const QVector<QVariant>& werte) const {
    const Übersetzung ü = v().übersetzung(anweisung);
    {
        detail::Schritt s(v().anweisung(ü.sql));
        s.platzhalterBinden(werte + ü.werte); // one of the two is empty: see Übersetzung
        while (s.weiter()) {
        }
    }
    if (ändertSchema(ü.sql))
        v().schemaGeändert();
}

QStringList Datenbank::ersteSpalte(const QString& anweisung) const {
    return ersteSpalte(anweisung, {});
}

QStringList Datenbank::ersteSpalte(const QString& anweisung, const QVector<QVariant>& werte) const {
    const Übersetzung ü = v().übersetzung(anweisung);
    detail::Schritt s(v().anweisung(ü.sql));
    s.platzhalterBinden(werte + ü.werte); // one of the two is empty: see Übersetzung
    QStringList texte;
    while (s.weiter())
        texte << text(s.wert(0));
    return texte;
}

bool Datenbank::abfrageVorhanden(const QString& name) const {
    if (!hatTabelle(AbfragenTabelle))
        return false;
    detail::Schritt s(v().anweisung(QString("SELECT Name FROM ") + AbfragenTabelle));
    while (s.weiter())
        if (s.wert(0).toString().compare(name, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

bool Datenbank::hatTabelle(const QString& name) const {
    return v().tabelle(ohneKlammern(name)) != nullptr;
}

QStringList Datenbank::tabellen() const {
    return v().tabellen();
}

QString Datenbank::tabellenDefinition(const QString& name) const {
    const auto t = v().tabelle(ohneKlammern(name));
    if (!t)
        throw fehler::mit(fehler::TabelleNichtGefunden, name);
    QStringList spalten;
    for (int i = 0; i < t->spalten.size(); ++i)
        spalten << t->zitierteSpalten[i] + " " + t->typen[i];
    return "CREATE TABLE " + t->zitiert + " (" + spalten.join(", ") + ")";
}

void Datenbank::schlüsselNachziehen() const {
    v().schlüsselNachziehen();
}

void Datenbank::TableDefs(const QString& name) const {
    if (!hatTabelle(name))
        throw fehler::mit(fehler::TabelleNichtGefunden, name);
}

QueryDef Datenbank::QueryDefs(const QString& name) const {
    QueryDef q;
    q.m_v = m_v;
    if (hatTabelle(AbfragenTabelle)) {
        detail::Schritt s(v().anweisung(QString("SELECT Name, SQL FROM ") + AbfragenTabelle));
        while (s.weiter()) {
            if (s.wert(0).toString().compare(name, Qt::CaseInsensitive) == 0) {
                q.m_name = s.wert(0).toString();
                q.m_text = s.wert(1).toString();
            }
        }
    }
    if (q.m_name.isEmpty())
        throw fehler::mit(fehler::ElementNichtGefunden, name);
    q.m_parameter = übersetzen(q.m_text).parameter;
    q.m_werte = QVector<QVariant>(q.m_parameter.size(), nullWert());
    return q;
}

void Datenbank::skriptAusführen(const QString& sql) const {
    v().skriptAusführen(sql);
}

void Datenbank::abfrageSpeichern(const QString& name, const QString& text) const {
    skriptAusführen(QString("CREATE TABLE IF NOT EXISTS ") + AbfragenTabelle +
                    " (Name TEXT PRIMARY KEY COLLATE NOCASE, SQL TEXT)");
    {
        detail::Schritt weg(v().anweisung(QString("DELETE FROM ") + AbfragenTabelle + " WHERE Name = ?1"));
        weg.binden(1, name);
        weg.weiter();
    }
    detail::Schritt s(v().anweisung(QString("INSERT INTO ") + AbfragenTabelle + " VALUES (?1, ?2)"));
    s.binden(1, name);
    s.binden(2, text);
    s.weiter();
}

QVariant& QueryDef::Parameters(const QString& name) {
    for (int i = 0; i < m_parameter.size(); ++i)
        if (m_parameter[i].compare(name, Qt::CaseInsensitive) == 0)
            return m_werte[i];
    throw fehler::mit(fehler::ElementNichtGefunden, name);
}

Recordset QueryDef::OpenRecordset() const {
    if (!m_v)
        throw Fehler(91, "Objektvariable oder With-Blockvariable nicht festgelegt");
    return Recordset(detail::abfrageÖffnen(m_v, m_name, m_v->übersetzung(m_text), m_werte));
}

} // namespace vemo
