#include "grid/GridDurchlauf.h"

#include "core/ModulState.h"
#include "grid/Anzeigetext.h"
#include "grid/GrundText.h"
#include "platform/Zahlformat.h"
#include "store/Textvergleich.h"
#include "store/Variant.h"

#include <QDate>

namespace vemo {

namespace {

QString kriterium(const Recordset& einlese) {
    return "MessungID = " + text(einlese.Field("MessungID"));
}

QString feld(const char* alias, const char* name) {
    return QString(alias) + "_" + name;
}

bool istNull0(const QVariant& v) {
    return gleich(v, 0);
}

// Instruments whose clock is trusted for the date of an inspection that is still to be created.
bool datumVertrauenswürdig(const QString& prüfgerätName) {
    for (const char* name : {"KONTAlex", "VOLTIRa 9KV", "ZEMAK 3710", "ZEMAK 3710B"})
        if (prüfgerätName.compare(name, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

} // namespace

GridDurchlauf::Abfragezeile::Abfragezeile(const Recordset& abfrage)
    : m_rs(abfrage), m_hatZeile(!abfrage.Eof() && !abfrage.Bof()) {}

QVariant GridDurchlauf::Abfragezeile::operator[](const QString& feld) const {
    if (!m_hatZeile)
        return nullWert();
    auto it = m_index.find(feld);
    if (it == m_index.end())
        it = m_index.insert(feld, m_rs.FieldIndex(feld));
    return m_rs.Field(it.value());
}

void GridDurchlauf::Schlüsseländerungen::setzen(const Recordset& zeile, const QString& feld,
                                                const QVariant& wert) {
    if (!gleich(zeile.Field(feld), wert))
        felder.append({feld, wert});
}

void GridDurchlauf::Schlüsseländerungen::nullen(const Recordset& zeile, const QString& feld) {
    if (!istNull0(zeile.Field(feld)))
        felder.append({feld, 0});
}

GridDurchlauf::GridDurchlauf(EinleseGrid& grid, bool englischUK)
    : m_grid(grid), m_englischUK(englischUK), m_heute(zahlformat::datumText(QDate::currentDate())) {}

bool GridDurchlauf::durchlaufen(Recordset& einlese, Recordset& abfrage, long ersteZeile, long letzteZeile) {
    m_geräteID = 0;
    m_geräteZähler = 0;
    m_messungZähler = 0;
    m_geändert = false;

    einlese.setAbsolutePosition(ersteZeile - 1);
    abfrage.FindFirst(kriterium(einlese));
    while (!einlese.Eof() && einlese.AbsolutePosition() <= letzteZeile - 1) {
        zeileFüllen(einlese, Abfragezeile(abfrage), ersteZeile == 1);
        einlese.MoveNext();
        // A miss leaves the query where it stands: the row is then judged against the row before.
        if (!einlese.Eof())
            abfrage.FindNext(kriterium(einlese));
    }
    return m_geändert;
}

void GridDurchlauf::zeileFüllen(Recordset& einlese, const Abfragezeile& abfrage, bool mitZähler) {
    const int zeile = int(einlese.AbsolutePosition()) + 1;
    gerätMerken(einlese.Field("GeräteID"), mitZähler, zeile);

    Schlüsseländerungen ä;
    kunde(einlese, abfrage, zeile, ä);
    nummernebene(Anlagenebene, einlese, abfrage, zeile, ä);
    prüfung(einlese, abfrage, zeile, ä);
    nummernebene(Verteilerebene, einlese, abfrage, zeile, ä);
    nummernebene(Stromkreisebene, einlese, abfrage, zeile, ä);
    messzeitpunkt(einlese, zeile);

    if (ä.felder.isEmpty())
        return;
    einlese.Edit();
    for (const auto& [name, wert] : std::as_const(ä.felder))
        einlese.setField(name, wert);
    einlese.Update();
    m_geändert = true;
}

void GridDurchlauf::gerätMerken(const QVariant& geräteID, bool mitZähler, int gridZeile) {
    const bool neu = !istNull(geräteID) && !gleich(geräteID, m_geräteID);
    if (neu) {
        // A read-in whose instrument row has gone is read as an unknown instrument.
        const Recordset gerät =
            db().OpenRecordset("SELECT * FROM 0100_EinleseGeräteDaten WHERE GeräteID = " + text(geräteID));
        m_prüfgerätName = gerät.Eof() ? QString() : gerät.Text("PrüfgerätName");
    }
    if (mitZähler) {
        if (neu) {
            ++m_geräteZähler;
            m_messungZähler = 1;
        } else {
            ++m_messungZähler;
        }
        m_grid.setTextMatrix(gridZeile, 0,
                             QString::number(m_geräteZähler) + "." + QString::number(m_messungZähler));
    }
    if (!istNull(geräteID))
        m_geräteID = geräteID;
}

// A customer is never created: a number without a record stays unresolved.
void GridDurchlauf::kunde(const Recordset& einlese, const Abfragezeile& a, int zeile,
                          Schlüsseländerungen& ä) {
    const QString kundeNr = einlese.Text("KundeNr");
    const QString aufgelöst = ohneRandblanks(text(a["Nummernkreis"]) + " " + text(a["Kunde_Name"]));
    if (gleich(a["Kunde_KundeID"], einlese.Field("KundeID"))) {
        m_grid.setzen(zeile, 1, aufgelöst, Zellzustand::Aufgelöst);
    } else if (!kundeNr.isEmpty() && textGleich(kundeNr, text(a["Nummernkreis"]))) {
        ä.setzen(einlese, "KundeID", a["Kunde_1_KundeID"]);
        m_grid.setzen(zeile, 1, aufgelöst, Zellzustand::Aufgelöst);
    } else {
        m_grid.setzen(zeile, 1, kundeNr.isEmpty() ? "???" : kundeNr, Zellzustand::Offen);
        ä.nullen(einlese, "KundeID");
    }
}

void GridDurchlauf::nummernebene(const Nummernebene& e, const Recordset& einlese, const Abfragezeile& a,
                                 int zeile, Schlüsseländerungen& ä) {
    const auto zeigen = [&](const char* alias) {
        return codeNrName(a[feld(alias, "Code")], a[feld(alias, "Nr")], a[feld(alias, "Name")]);
    };
    const QVariant schlüssel1 = a[feld(e.alias1, e.schlüssel)];
    if (gleich(a[feld(e.alias, e.schlüssel)], einlese.Field(e.schlüssel))) {
        m_grid.setzen(zeile, e.spalte, zeigen(e.alias), Zellzustand::Aufgelöst);
    } else if (!text(schlüssel1).isEmpty() && !text(a[feld(e.alias1, "Code")]).isEmpty()) {
        ä.setzen(einlese, e.schlüssel, schlüssel1);
        m_grid.setzen(zeile, e.spalte, zeigen(e.alias1), Zellzustand::Aufgelöst);
    } else {
        const QString nummer = einlese.Text(e.nummer);
        if (!nummer.isEmpty())
            m_grid.setzen(zeile, e.spalte, nummer, Zellzustand::Anzulegen);
        else if (e.ohneNummer)
            m_grid.setzen(zeile, e.spalte, xText(e.ohneNummer), Zellzustand::Anzulegen);
        else
            m_grid.setzen(zeile, e.spalte, "???", Zellzustand::Offen);
        ä.nullen(einlese, e.schlüssel);
    }
}

void GridDurchlauf::prüfung(const Recordset& einlese, const Abfragezeile& a, int zeile,
                            Schlüsseländerungen& ä) {
    if (gleich(a["Prüfung_PrüfungID"], einlese.Field("PrüfungID"))) {
        const QString grund = GrundText(a.recordset());
        m_grid.setzen(zeile, 3, text(a["Prüfung_Datum"]) + " " + grund + " " + text(a["Prüfung_ProtokollNr"]),
                      Zellzustand::Aufgelöst);
        return;
    }
    // The certificate rules know no inspection made by the take-over: one must be chosen.
    if (m_englischUK)
        m_grid.setzen(zeile, 3, "???", Zellzustand::Offen);
    else
        m_grid.setzen(zeile, 3, datumDerNeuenPrüfung(einlese) + " " + xText("Grund1"),
                      Zellzustand::Anzulegen);
    ä.nullen(einlese, "PrüfungID");
}

// Only the instruments with a trusted clock give the date of a new inspection; for all others it
// is today.
QString GridDurchlauf::datumDerNeuenPrüfung(const Recordset& einlese) const {
    const QString datum = einlese.Text("Datum");
    if (datumVertrauenswürdig(m_prüfgerätName) && zahlformat::datum(datum))
        return datum;
    return m_heute;
}

void GridDurchlauf::messzeitpunkt(const Recordset& einlese, int zeile) {
    const QString datum = einlese.Text("Datum");
    const QString uhrzeit = einlese.Text("Uhrzeit");
    // A row without a moment shows none, not that of the row that stood there before a deletion.
    if (ohneRandblanks(datum + " " + uhrzeit).isEmpty()) {
        m_grid.setTextMatrix(zeile, 6, QString());
        return;
    }
    m_grid.setTextMatrix(zeile, 6, datum + " " + uhrzeit);
    m_grid.setFesterHintergrund(zeile, 6);
}

} // namespace vemo
