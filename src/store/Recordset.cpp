#include "store/Recordset.h"

#include "platform/Fehler.h"
#include "store/Dialekt.h"
#include "store/Kriterium.h"
#include "store/Variant.h"
#include "store/Verbindung.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <cassert>
#include <climits>
#include <deque>
#include <map>
#include <optional>

namespace vemo {
namespace detail {

struct Spalte {
    QString name;
    QString typ;
    Typklasse klasse = Typklasse::Frei;
    int tabellenIndex = -1; // the column of the writable table it comes from
};

// What the rows of a statement hold, noted once for each statement text.
struct Abfrageform {
    QVector<Spalte> spalten;
    QVector<int> quellen;
    QHash<QString, int> spaltenIndex;
    std::shared_ptr<const Verbindung::Tabelle> tabelle;
    int ergebnisspalten = 0; // as the statement was prepared when the form was noted
};

struct Zeile {
    qint64 rowid = 0;
    Bookmark marke = 0;
    QVector<QVariant> werte;
};

struct RecordsetDaten {
    enum class Modus { Keiner, Neu, Ändern };
    static constexpr int Seitengröße = 64;

    std::shared_ptr<Verbindung> v;
    QString name;
    bool offen = true;

    bool seitenweise = false;                           // a table opened by name
    std::shared_ptr<const Verbindung::Tabelle> tabelle; // the table rows are written to; null: read-only
    QString abfrage;
    bool mitRowid = false;
    QVector<QVariant> parameter;
    QVector<Spalte> spalten;
    QVector<int> quellen;             // the column of the statement's rows each field reads
    QHash<QString, int> spaltenIndex; // by lower-case name, and by the name as spelled

    // Rows taken over or deleted while the cursor walks forward leave from the front: a deque lets
    // them go without moving all the rows behind them.
    std::deque<Zeile> zeilen;
    bool vollständig = false;
    qint64 letzteRowid = LLONG_MIN;
    std::map<qint64, Bookmark> vorgemerkt; // rows added here that paging has not reached yet
    Bookmark nächsteMarke = 1;

    long pos = 0;
    bool nachLöschen = false;
    long besucht = 0;
    Bookmark zuletztGeändert = 0;
    bool noMatch = false;

    Modus modus = Modus::Keiner;
    QVector<QVariant> puffer;
    QVector<bool> gesetzt;
    std::optional<Schreibsperre> sperre; // held from AddNew or Edit to Update, as the host locks

    void prüfeOffen() const {
        if (!offen)
            throw Fehler(3420, "Objekt ungültig oder nicht mehr festgelegt.");
    }
    long anzahlGeladen() const { return long(zeilen.size()); }

    Bookmark markeFür(qint64 rowid) {
        if (auto it = vorgemerkt.find(rowid); it != vorgemerkt.end()) {
            const Bookmark m = it->second;
            vorgemerkt.erase(it);
            return m;
        }
        return nächsteMarke++;
    }

    void seiteLaden() {
        Schritt s(v->anweisung("SELECT rowid, " + tabelle->zitierteSpalten.join(',') + " FROM " +
                               tabelle->zitiert + " WHERE rowid > ?1 ORDER BY rowid LIMIT " +
                               QString::number(Seitengröße)));
        s.binden(1, QVariant(qlonglong(letzteRowid)));
        int n = 0;
        while (s.weiter()) {
            Zeile z;
            z.rowid = s.wert(0).toLongLong();
            z.werte.reserve(spalten.size());
            for (int i = 0; i < spalten.size(); ++i)
                z.werte << s.wert(i + 1, spalten[i].klasse);
            z.marke = markeFür(z.rowid);
            letzteRowid = z.rowid;
            zeilen.push_back(std::move(z));
            ++n;
        }
        if (n < Seitengröße)
            vollständig = true;
    }

    // Makes row i available if the set has it.
    bool holen(long i) {
        while (i >= anzahlGeladen() && !vollständig)
            seiteLaden();
        return i >= 0 && i < anzahlGeladen();
    }
    void allesLaden() { holen(LONG_MAX - 1); }

    void abfrageLaden() {
        Schritt s(v->anweisung(abfrage));
        s.platzhalterBinden(parameter);
        while (s.weiter()) {
            Zeile z;
            z.rowid = mitRowid ? s.wert(0).toLongLong() : 0;
            z.werte.reserve(spalten.size());
            for (int i = 0; i < spalten.size(); ++i)
                z.werte << s.wert(quellen[i], spalten[i].klasse);
            z.marke = nächsteMarke++;
            zeilen.push_back(std::move(z));
        }
        vollständig = true;
    }

    void laden() {
        zeilen.clear();
        vollständig = false;
        letzteRowid = LLONG_MIN;
        pos = 0;
        nachLöschen = false;
        besucht = 0;
        if (seitenweise)
            holen(0);
        else
            abfrageLaden();
        besuchen();
    }

    void besuchen() {
        if (pos >= 0 && holen(pos))
            besucht = std::max(besucht, pos + 1);
    }

    bool eof() { return pos >= 0 && !holen(pos); }
    bool leer() { return !holen(0); }

    // By lower-case name, and by the name as the statement spells it: the logic asks for fields row
    // after row in the spelling of the schema, which then needs no folding.
    void spaltenErfassen() {
        for (int i = 0; i < spalten.size(); ++i)
            spaltenIndex.insert(spalten[i].name.toLower(), i);
        // A name with capitals never meets a lower-case one; it finds what its folding finds.
        for (const Spalte& s : std::as_const(spalten))
            if (const QString klein = s.name.toLower(); klein != s.name)
                spaltenIndex.insert(s.name, spaltenIndex.value(klein));
    }

    int index(const QString& feld) const {
        if (const auto it = spaltenIndex.constFind(feld); it != spaltenIndex.cend())
            return *it;
        if (const auto it = spaltenIndex.constFind(feld.toLower()); it != spaltenIndex.cend())
            return *it;
        // "[0100_Anlage].Code" and "Kunde.Name" name the column of a table.
        static const QRegularExpression klammern("[\\[\\]]");
        const QString ohne = QString(feld).remove(klammern).toLower();
        if (const auto it = spaltenIndex.constFind(ohne); it != spaltenIndex.cend())
            return *it;
        if (const auto it = spaltenIndex.constFind(ohne.section('.', -1)); it != spaltenIndex.cend())
            return *it;
        return -1;
    }
    int indexOderFehler(const QString& feld) const {
        const int i = index(feld);
        if (i < 0)
            throw fehler::mit(fehler::ElementNichtGefunden, feld);
        return i;
    }

    Zeile& aktuelle() {
        if (nachLöschen)
            throw fehler::mit(fehler::DatensatzGelöscht);
        if (pos < 0 || !holen(pos))
            throw fehler::mit(fehler::KeinAktuellerDatensatz);
        return zeilen[size_t(pos)];
    }

    QVariant lesen(int i) {
        prüfeOffen();
        if (i < 0 || i >= spalten.size())
            throw fehler::mit(fehler::ElementNichtGefunden, QString::number(i));
        if (modus != Modus::Keiner)
            return puffer[i];
        return aktuelle().werte[i];
    }

    void schreiben(int i, const QVariant& wert) {
        prüfeOffen();
        if (i < 0 || i >= spalten.size())
            throw fehler::mit(fehler::ElementNichtGefunden, QString::number(i));
        if (modus == Modus::Keiner)
            throw fehler::mit(fehler::OhneAddNewEdit);
        if (spalten[i].tabellenIndex < 0)
            throw Fehler(3164, "Das Feld kann nicht aktualisiert werden: " + spalten[i].name);
        puffer[i] = wert;
        gesetzt[i] = true;
    }

    // A pending AddNew or Edit ends, and with it the hold on the write lock.
    void bearbeitungBeenden() {
        modus = Modus::Keiner;
        sperre.reset();
    }

    // The current row as the table holds it now: another writer may have changed it since it was
    // read. Raises 3167 when it has been deleted meanwhile.
    void zeileNeuLesen() {
        assert(v->sperreGehalten());
        assert(pos >= 0 && pos < anzahlGeladen() && !nachLöschen);
        Zeile& z = zeilen[size_t(pos)];
        Schritt s(v->anweisung(tabelle->zeileLesen));
        s.binden(1, QVariant(qlonglong(z.rowid)));
        if (!s.weiter())
            throw fehler::mit(fehler::DatensatzGelöscht);
        for (int i = 0; i < spalten.size(); ++i)
            if (spalten[i].tabellenIndex >= 0)
                z.werte[i] = s.wert(spalten[i].tabellenIndex, spalten[i].klasse);
    }

    void beschreibbarPrüfen() const {
        prüfeOffen();
        if (!tabelle)
            throw fehler::mit(fehler::Schreibgeschützt, name);
    }

    const QString& spaltenName(int i) const { return tabelle->zitierteSpalten[spalten[i].tabellenIndex]; }
    Typklasse klasse(int i) const { return tabelle->klassen[spalten[i].tabellenIndex]; }

    // The buffer's written columns as the table stores them; the cached row then equals the table's.
    QVector<int> geschriebene() {
        QVector<int> welche;
        for (int i = 0; i < spalten.size(); ++i) {
            if (!gesetzt[i])
                continue;
            puffer[i] = spaltenwert(puffer[i], klasse(i));
            welche << i;
        }
        return welche;
    }

    void einfügen() {
        const QVector<int> welche = geschriebene();
        QStringList namen, platz;
        for (int i : welche) {
            namen << spaltenName(i);
            platz << "?" + QString::number(namen.size());
        }
        const QString sql = (namen.isEmpty() ? "INSERT INTO " + tabelle->zitiert + " DEFAULT VALUES"
                                             : "INSERT INTO " + tabelle->zitiert + " (" + namen.join(',') +
                                                   ") VALUES (" + platz.join(',') + ")") +
                            tabelle->einfügenZusatz;
        Zeile z;
        {
            Schritt s(v->anweisung(sql));
            for (int k = 0; k < welche.size(); ++k)
                s.binden(k + 1, puffer[welche[k]]);
            z.rowid = s.weiter() ? s.wert(0).toLongLong() : v->letzteRowid();
        }
        z.werte = puffer;
        if (vollständig) {
            z.marke = nächsteMarke++;
            letzteRowid = std::max(letzteRowid, z.rowid);
            zeilen.push_back(std::move(z));
            zuletztGeändert = zeilen.back().marke;
        } else {
            zuletztGeändert = nächsteMarke++;
            vorgemerkt[z.rowid] = zuletztGeändert;
        }
    }

    void ändern() {
        Zeile& z = aktuelle();
        const QVector<int> welche = geschriebene();
        if (!welche.isEmpty()) {
            QStringList zuweisungen;
            for (int i : welche)
                zuweisungen << spaltenName(i) + " = ?" + QString::number(zuweisungen.size() + 1);
            Schritt s(v->anweisung("UPDATE " + tabelle->zitiert + " SET " + zuweisungen.join(", ") +
                                   " WHERE rowid = ?" + QString::number(welche.size() + 1)));
            for (int k = 0; k < welche.size(); ++k)
                s.binden(k + 1, puffer[welche[k]]);
            s.binden(int(welche.size()) + 1, QVariant(qlonglong(z.rowid)));
            s.weiter();
            for (int i : welche)
                z.werte[i] = puffer[i];
        }
        zuletztGeändert = z.marke;
    }

    bool finden(long ab, const QString& kriterien) {
        const Kriterium k(kriterien);
        const auto feld = [this](long zeile) {
            return [this, zeile](const QString& name) {
                int i = index(name);
                bool istZahl = false;
                const int n = name.toInt(&istZahl);
                if (i < 0 && istZahl)
                    i = n;
                if (i < 0 || i >= spalten.size())
                    throw fehler::mit(fehler::ElementNichtGefunden, name);
                return zeilen[size_t(zeile)].werte[i];
            };
        };
        for (long i = std::max(0L, ab); holen(i); ++i) {
            if (k.erfüllt(feld(i))) {
                pos = i;
                nachLöschen = false;
                besuchen();
                noMatch = false;
                return true;
            }
        }
        noMatch = true;
        return false;
    }
};

} // namespace detail

using detail::RecordsetDaten;

Recordset::Recordset() = default;
Recordset::~Recordset() = default;
Recordset::Recordset(const Recordset&) = default;
Recordset& Recordset::operator=(const Recordset&) = default;
Recordset::Recordset(std::shared_ptr<RecordsetDaten> d) : m_d(std::move(d)) {}

RecordsetDaten& Recordset::d() const {
    if (!m_d)
        throw Fehler(91, "Objektvariable oder With-Blockvariable nicht festgelegt");
    m_d->prüfeOffen();
    return *m_d;
}

bool Recordset::istOffen() const {
    return m_d && m_d->offen;
}
QString Recordset::Name() const {
    return d().name;
}

bool Recordset::Eof() const {
    return d().eof();
}
bool Recordset::Bof() const {
    return d().pos < 0 || d().leer();
}

void Recordset::MoveFirst() {
    auto& x = d();
    x.bearbeitungBeenden();
    if (x.leer())
        throw fehler::mit(fehler::KeinAktuellerDatensatz);
    x.pos = 0;
    x.nachLöschen = false;
    x.besuchen();
}

void Recordset::MoveLast() {
    auto& x = d();
    x.bearbeitungBeenden();
    x.allesLaden();
    if (x.zeilen.empty())
        throw fehler::mit(fehler::KeinAktuellerDatensatz);
    x.pos = x.anzahlGeladen() - 1;
    x.nachLöschen = false;
    x.besuchen();
}

void Recordset::MoveNext() {
    auto& x = d();
    x.bearbeitungBeenden();
    if (x.nachLöschen) {
        x.nachLöschen = false; // the row behind the deleted one moved into its place
    } else {
        if (x.eof())
            throw fehler::mit(fehler::KeinAktuellerDatensatz);
        ++x.pos;
    }
    x.besuchen();
}

void Recordset::MovePrevious() {
    auto& x = d();
    x.bearbeitungBeenden();
    if (x.pos < 0)
        throw fehler::mit(fehler::KeinAktuellerDatensatz);
    x.nachLöschen = false;
    if (x.eof()) {
        x.allesLaden();
        x.pos = x.anzahlGeladen();
    }
    --x.pos;
    x.besuchen();
}

void Recordset::Move(long anzahl) {
    auto& x = d();
    x.bearbeitungBeenden();
    if (anzahl == 0)
        return;
    if ((anzahl > 0 && x.eof()) || (anzahl < 0 && x.pos < 0))
        throw fehler::mit(fehler::KeinAktuellerDatensatz);
    long ziel = x.pos + anzahl - (x.nachLöschen && anzahl > 0 ? 1 : 0);
    x.nachLöschen = false;
    if (ziel < 0) {
        x.pos = -1;
        return;
    }
    if (!x.holen(ziel))
        ziel = x.anzahlGeladen();
    x.pos = ziel;
    x.besuchen();
}

long Recordset::RecordCount() const {
    return d().besucht;
}

long Recordset::AbsolutePosition() const {
    auto& x = d();
    return (x.pos >= 0 && !x.nachLöschen && x.holen(x.pos)) ? x.pos : -1;
}

void Recordset::setAbsolutePosition(long position) {
    auto& x = d();
    if (position < 0 || !x.holen(position))
        throw fehler::mit(fehler::UngültigerAufruf, "AbsolutePosition " + QString::number(position));
    x.bearbeitungBeenden();
    x.pos = position;
    x.nachLöschen = false;
    x.besuchen();
}

Bookmark Recordset::bookmark() const {
    return d().aktuelle().marke;
}

void Recordset::setBookmark(Bookmark marke) {
    auto& x = d();
    x.bearbeitungBeenden();
    const bool nochNichtGeladen =
        std::any_of(x.vorgemerkt.begin(), x.vorgemerkt.end(),
                    [marke](const auto& eintrag) { return eintrag.second == marke; });
    if (nochNichtGeladen)
        x.allesLaden(); // a row added here that paging has not reached yet
    // Rows added or changed last are what a bookmark is wanted for most: search from the end.
    for (long i = x.anzahlGeladen() - 1; i >= 0; --i) {
        if (x.zeilen[size_t(i)].marke == marke) {
            x.pos = i;
            x.nachLöschen = false;
            x.besuchen();
            return;
        }
    }
    throw Fehler(3159, "Kein gültiges Lesezeichen.");
}

Bookmark Recordset::LastModified() const {
    auto& x = d();
    if (x.zuletztGeändert == 0)
        throw Fehler(3159, "Kein gültiges Lesezeichen.");
    return x.zuletztGeändert;
}

QVariant Recordset::Field(const QString& name) const {
    return d().lesen(d().indexOderFehler(name));
}
QVariant Recordset::Field(int index) const {
    return d().lesen(index);
}
QString Recordset::Text(const QString& name) const {
    return text(Field(name));
}
void Recordset::setField(const QString& name, const QVariant& wert) {
    d().schreiben(d().indexOderFehler(name), wert);
}
void Recordset::setField(int index, const QVariant& wert) {
    d().schreiben(index, wert);
}
int Recordset::FieldCount() const {
    return int(d().spalten.size());
}

QString Recordset::FieldName(int index) const {
    auto& x = d();
    if (index < 0 || index >= x.spalten.size())
        throw fehler::mit(fehler::ElementNichtGefunden, QString::number(index));
    return x.spalten[index].name;
}

int Recordset::FieldIndex(const QString& name) const {
    return d().index(name);
}

int Recordset::FieldSize(const QString& name) const {
    static const QRegularExpression größe(R"(\((\d+)\))");
    const auto m = größe.match(d().spalten[d().indexOderFehler(name)].typ);
    return m.hasMatch() ? m.captured(1).toInt() : 255;
}

// A new row takes the write lock as a changed one does, so that a caller can look again for a row
// that another writer may have added meanwhile, and change that one instead.
void Recordset::AddNew() {
    auto& x = d();
    x.beschreibbarPrüfen();
    x.bearbeitungBeenden();
    detail::Schreibsperre sperre(*x.v);
    const QVector<QVariant> vorgaben = x.v->vorgabenJetzt(*x.tabelle);
    x.puffer.clear();
    for (const auto& s : std::as_const(x.spalten))
        x.puffer << (s.tabellenIndex >= 0 ? vorgaben[s.tabellenIndex] : nullWert());
    x.gesetzt = QVector<bool>(x.spalten.size(), false);
    x.sperre.emplace(std::move(sperre));
    x.modus = RecordsetDaten::Modus::Neu;
}

// Under the write lock the row is read again, so that a value counted on (a key counter) is the
// one the table holds, not the one this cursor saw before another writer changed it.
void Recordset::Edit() {
    auto& x = d();
    x.beschreibbarPrüfen();
    x.bearbeitungBeenden();
    x.aktuelle(); // raises where the cursor stands on no row
    detail::Schreibsperre sperre(*x.v);
    x.zeileNeuLesen();
    x.puffer = x.aktuelle().werte;
    x.gesetzt = QVector<bool>(x.spalten.size(), false);
    x.sperre.emplace(std::move(sperre));
    x.modus = RecordsetDaten::Modus::Ändern;
}

void Recordset::Update() {
    auto& x = d();
    const auto modus = x.modus;
    if (modus == RecordsetDaten::Modus::Keiner)
        throw fehler::mit(fehler::OhneAddNewEdit);
    assert(x.sperre);
    // The lock ends with this Update, written or not; a failed write leaves no pending row behind.
    detail::Schreibsperre sperre = std::move(*x.sperre);
    x.bearbeitungBeenden();
    if (modus == RecordsetDaten::Modus::Neu)
        x.einfügen();
    else
        x.ändern();
    sperre.abgeben();
}

void Recordset::CancelUpdate() {
    d().bearbeitungBeenden();
}

void Recordset::Delete() {
    auto& x = d();
    x.beschreibbarPrüfen();
    x.bearbeitungBeenden();
    const detail::Zeile& z = x.aktuelle();
    {
        detail::Schritt s(x.v->anweisung("DELETE FROM " + x.tabelle->zitiert + " WHERE rowid = ?1"));
        s.binden(1, QVariant(qlonglong(z.rowid)));
        s.weiter();
    }
    x.zeilen.erase(x.zeilen.begin() + x.pos);
    x.besucht = std::max(0L, x.besucht - 1);
    x.nachLöschen = true;
}

void Recordset::FindFirst(const QString& kriterien) {
    d().finden(0, kriterien);
}

void Recordset::FindNext(const QString& kriterien) {
    auto& x = d();
    x.finden(x.nachLöschen ? x.pos : x.pos + 1, kriterien);
}

bool Recordset::NoMatch() const {
    return d().noMatch;
}

void Recordset::Requery() {
    auto& x = d();
    x.bearbeitungBeenden();
    x.laden();
}

void Recordset::Close() {
    if (!m_d)
        return;
    m_d->bearbeitungBeenden();
    m_d->offen = false;
}

} // namespace vemo

namespace vemo::detail {

std::shared_ptr<RecordsetDaten> tabelleÖffnen(const std::shared_ptr<Verbindung>& v, const QString& name,
                                              std::shared_ptr<const Verbindung::Tabelle> t) {
    auto d = std::make_shared<RecordsetDaten>();
    d->v = v;
    d->name = name;
    d->seitenweise = true;
    d->tabelle = t;
    for (int i = 0; i < t->spalten.size(); ++i)
        d->spalten.push_back({t->schreibweisen[i], t->typen[i], t->klassen[i], i});
    d->spaltenErfassen();
    d->laden();
    return d;
}

// A column that is a table's row id is no field: the server's tables carry it as a column of
// their own, which "SELECT *" brings along.
bool istRowid(const Ergebnisspalte& s) {
    return !s.tabelle.isEmpty() && s.ursprung.compare("rowid", Qt::CaseInsensitive) == 0;
}

void spaltenLesen(RecordsetDaten& d, const Befehl& s, int versatz) {
    const int anzahl = s.spaltenAnzahl();
    QString tabellenName;
    QVector<Ergebnisspalte> herkunft;
    for (int i = versatz; i < anzahl; ++i) {
        const Ergebnisspalte e = s.spalte(i);
        if (istRowid(e))
            continue;
        Spalte sp;
        sp.name = e.name;
        sp.typ = e.typ;
        sp.klasse = typklasse(sp.typ);
        if (!e.tabelle.isEmpty() && tabellenName.isEmpty())
            tabellenName = e.tabelle;
        d.spalten.push_back(sp);
        d.quellen.push_back(i);
        herkunft.push_back(e);
    }
    if (d.mitRowid && !tabellenName.isEmpty()) {
        d.tabelle = d.v->tabelle(tabellenName);
        for (int i = 0; i < herkunft.size() && d.tabelle; ++i) {
            const Ergebnisspalte& e = herkunft[i];
            if (!e.ursprung.isEmpty() && tabellenName.compare(e.tabelle, Qt::CaseInsensitive) == 0)
                d.spalten[i].tabellenIndex = d.tabelle->index(e.ursprung);
        }
    }
    d.spaltenErfassen();
}

std::shared_ptr<RecordsetDaten> abfrageÖffnen(const std::shared_ptr<Verbindung>& v, const QString& name,
                                              const Übersetzung& ü, const QVector<QVariant>& parameter) {
    auto d = std::make_shared<RecordsetDaten>();
    d->v = v;
    d->name = name;
    d->parameter = parameter + ü.werte; // one of the two is empty: see Übersetzung
    // Held, not borrowed: looking up the table below prepares statements that may push it out of
    // the cache.
    Anweisung s;
    if (ü.einfacheAuswahl) {
        try {
            s = v->anweisung(ü.sqlMitRowid);
            d->abfrage = ü.sqlMitRowid;
            d->mitRowid = true;
        } catch (const Fehler&) {
            s = nullptr; // e.g. a view: read it as it is
        }
    }
    if (!s) {
        s = v->anweisung(ü.sql);
        d->abfrage = ü.sql;
    }
    const int versatz = d->mitRowid ? 1 : 0;
    // Another connection may have changed the table since the form was noted: its column count
    // tells that SQLite prepared the statement anew.
    const auto form = v->abfrageform(d->abfrage);
    if (form && form->ergebnisspalten == s->spaltenAnzahl()) {
        d->spalten = form->spalten;
        d->quellen = form->quellen;
        d->spaltenIndex = form->spaltenIndex;
        d->tabelle = form->tabelle;
    } else {
        spaltenLesen(*d, *s, versatz);
        v->abfrageformMerken(d->abfrage,
                             std::make_shared<const Abfrageform>(Abfrageform{
                                 d->spalten, d->quellen, d->spaltenIndex, d->tabelle, s->spaltenAnzahl()}));
    }
    d->laden();
    return d;
}

} // namespace vemo::detail
