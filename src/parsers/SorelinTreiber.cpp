#include "parsers/SorelinTreiber.h"

#include "platform/Fehler.h"
#include "platform/Zahlformat.h"
#include "store/Datenbank.h"
#include "store/Variant.h"

#include <algorithm>

namespace vemo {
namespace {

const QString KeinOverflow = "Kein Overflow";
constexpr int ListenAnfang = 2; // pairs of columns from column 2 on

// The columns of a record set by their number: the table's column "7" need not be its seventh.
QHash<int, int> spaltenNachNummer(const Recordset& rs) {
    QHash<int, int> index;
    for (int i = 0; i < rs.FieldCount(); ++i) {
        bool istNummer = false;
        const int nummer = rs.FieldName(i).toInt(&istNummer);
        if (istNummer && nummer >= 1)
            index.insert(nummer, i);
    }
    return index;
}

Treiberzeile zeileLesen(const Recordset& rs, const QHash<int, int>& spalten) {
    Treiberzeile z;
    int letzte = 0;
    for (auto it = spalten.cbegin(); it != spalten.cend(); ++it)
        letzte = std::max(letzte, it.key());
    for (int nummer = 1; nummer <= letzte; ++nummer)
        z.spalten << (spalten.contains(nummer) ? text(rs.Field(spalten.value(nummer))) : QString());
    return z;
}

} // namespace

Wertgruppe Wertgruppe::aus(const Treiberzeile& zeile, int spalte) {
    Wertgruppe g;
    g.größe = int(zahlformat::val(zeile.spalte(spalte)));
    g.maske = zeile.spalte(spalte + 1).trimmed();
    g.name = zeile.spalte(spalte + 2);
    g.einheit = zeile.spalte(spalte + 3);
    g.vorname = zeile.spalte(spalte + 4);
    g.skala = zeile.spalte(spalte + 5).trimmed();
    g.überlauf = zeile.spalte(spalte + 6).trimmed();
    g.stellen = zeile.spalte(spalte + 7).trimmed();
    return g;
}

QString SorelinTreiber::tabellenname(int typ) {
    return QString::number(typ) + "Sorelin";
}

SorelinTreiber SorelinTreiber::öffnen(const Datenbank& db, int typ) {
    Recordset rs = db.OpenRecordset(tabellenname(typ));
    const QHash<int, int> spalten = spaltenNachNummer(rs);
    SorelinTreiber t;
    t.m_tabelle = tabellenname(typ);
    for (; !rs.Eof(); rs.MoveNext()) {
        t.m_zeilen << zeileLesen(rs, spalten);
        const QString schlüssel = t.m_zeilen.last().spalte(1).toLower();
        if (!t.m_nachSchlüssel.contains(schlüssel))
            t.m_nachSchlüssel.insert(schlüssel, t.m_zeilen.size() - 1);
    }
    return t;
}

const Treiberzeile* SorelinTreiber::zeile(const QString& schlüssel) const {
    const auto it = m_nachSchlüssel.constFind(schlüssel.toLower());
    return it == m_nachSchlüssel.cend() ? nullptr : &m_zeilen[*it];
}

const Treiberzeile& SorelinTreiber::messblock(int id) const {
    const Treiberzeile* z = zeile(messblockSchlüssel(id));
    if (!z)
        throw fehler::mit(fehler::KeinAktuellerDatensatz, m_tabelle + ": " + messblockSchlüssel(id));
    return *z;
}

QString SorelinTreiber::version() const {
    const Treiberzeile* z = zeile("Version");
    return z ? z->spalte(2) : QString();
}

QString SorelinTreiber::name() const {
    const Treiberzeile* z = zeile("NameDE");
    return z ? z->spalte(2) : QString();
}

std::optional<uchar> SorelinTreiber::startblock() const {
    const Treiberzeile* z = zeile("StartBlock");
    if (!z || z->spalte(2).trimmed().isEmpty())
        return std::nullopt;
    return uchar(zahlformat::val(z->spalte(2)));
}

QList<std::pair<quint32, QString>> SorelinTreiber::liste(const QString& name) const {
    QList<std::pair<quint32, QString>> paare;
    const Treiberzeile* z = name.isEmpty() ? nullptr : zeile(name);
    for (int spalte = ListenAnfang; z && !z->spalte(spalte).trimmed().isEmpty(); spalte += 2)
        paare.append({treiberHexZahl(z->spalte(spalte)), z->spalte(spalte + 1)});
    return paare;
}

std::optional<QString> SorelinTreiber::ausListe(const QString& name, quint32 zahl) const {
    for (const auto& [muster, ergebnis] : liste(name))
        if ((zahl & muster) == muster)
            return ergebnis;
    return std::nullopt;
}

quint32 treiberHexZahl(const QString& text) {
    QString ziffern = text.trimmed();
    if (ziffern.startsWith("&H", Qt::CaseInsensitive))
        ziffern = ziffern.mid(2);
    bool ok = false;
    const quint32 zahl = ziffern.toUInt(&ok, 16);
    if (!ok)
        throw fehler::mit(fehler::TypenUnverträglich, text);
    return zahl;
}

quint32 rohzahl(const QByteArray& bild, qsizetype position, int größe) {
    if (größe < 1 || größe > 4)
        throw fehler::mit(fehler::TypenUnverträglich, QString::number(größe));
    if (position < 0 || position + größe > bild.size())
        throw fehler::mit(fehler::IndexAußerhalb);
    quint32 zahl = 0;
    for (int i = 0; i < größe; ++i)
        zahl = zahl << 8 | uchar(bild.at(position + i));
    return zahl;
}

QString GetSorelinWert(const QByteArray& bild, qsizetype position, const SorelinTreiber& treiber,
                       const Treiberzeile& zeile, int spalte) {
    const Wertgruppe g = Wertgruppe::aus(zeile, spalte);
    const quint32 ganz = rohzahl(bild, position, g.größe);
    const quint32 roh = g.maske.isEmpty() ? ganz : ganz & treiberHexZahl(g.maske);
    double wert = roh;
    if (const auto teiler = treiber.ausListe(g.skala, ganz)) {
        const double t = zahlformat::val(*teiler);
        if (t == 0)
            throw fehler::mit(fehler::DivisionDurchNull, g.skala);
        wert = roh / t;
    }
    QString vorzeichen;
    if (const auto ü = treiber.ausListe(g.überlauf, ganz); ü && *ü != KeinOverflow)
        vorzeichen = *ü;
    const int stellen = std::clamp(int(zahlformat::val(g.stellen)), 0, 9);
    return vorzeichen + QString::number(wert, 'f', stellen);
}

qsizetype werteBeginn(const QByteArray& bild, qsizetype position) {
    return rohzahl(bild, position, 1) & 0x80 ? position + 1 : position;
}

Blockart blockartBei(const QByteArray& bild, qsizetype position, qsizetype datenende,
                     const SorelinTreiber& treiber) {
    if (position >= datenende)
        return Blockart::Ende;
    const auto start = treiber.startblock();
    return start && rohzahl(bild, position, 1) == *start ? Blockart::StartBlock : Blockart::Messblock;
}

Blockende GetMessBlockEnd(const QByteArray& bild, qsizetype position, qsizetype datenende,
                          const SorelinTreiber& treiber) {
    const Treiberzeile& zeile = treiber.messblock(int(rohzahl(bild, position, 1)));
    qsizetype ende = werteBeginn(bild, position);
    const int anzahl = int(zahlformat::val(zeile.spalte(7)));
    for (int k = 0; k < anzahl; ++k)
        ende += Wertgruppe::aus(zeile, Wertgruppe::ErsteSpalte + k * Wertgruppe::Breite).größe;
    // A block is at least its id, so that the walk always moves on.
    ende = std::max(ende, position + 1);
    return {ende, blockartBei(bild, ende, datenende, treiber)};
}

} // namespace vemo
