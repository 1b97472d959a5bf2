#include "grid/ZuordnenDialog.h"

#include "core/ModulState.h"
#include "grid/Anzeigetext.h"
#include "grid/GrundText.h"
#include "store/Literal.h"
#include "store/Variant.h"

namespace vemo {

namespace {

QVariant neuestesGerät() {
    Recordset geräte = db().OpenRecordset("0100_EinleseGeräteDaten");
    geräte.MoveLast();
    return geräte.Field("GeräteID");
}

// The plant numbers that the device recorded.
QStringList anlagenNummernDesGeräts(const QVariant& gerät) {
    Recordset rs =
        db().OpenRecordset("SELECT DISTINCT AnlageNr FROM 0100_EinleseDaten WHERE GeräteID = " + text(gerät));
    QStringList nummern;
    for (; !rs.Eof(); rs.MoveNext())
        nummern << rs.Text("AnlageNr");
    return nummern;
}

} // namespace

frmZuordnen::frmZuordnen(QObject* eltern) : DialogController(eltern) {
    m_texte = {xText("vemotrix 0100"),
               xText("Eingelesene Messungen Zuordnen zu "),
               xText("Kunde:"),
               xText("Anlage:"),
               xText("Prüfung:"),
               xText("Weiter"),
               xText("Messungen Zuordnen Hilfe")};
    mitFalle([this] {
        Recordset kunden = db().OpenRecordset("SELECT * FROM Kunde ORDER BY Name");
        for (; !kunden.Eof(); kunden.MoveNext())
            m_kunde.einträge.append({kunden.Text("Name"), kunden.Field("KundeID")});
    });
    m_anlage.aktiv = false;
    m_prüfung.aktiv = false;
}

void frmZuordnen::kundeKlick(int index) {
    m_kunde.listIndex = index;
    mitFalle([this] { anlagenFüllen(); });
    emit aktualisiert();
}

void frmZuordnen::anlagenFüllen() {
    if (!m_kunde.gewählt())
        return;
    const QStringList nummern = anlagenNummernDesGeräts(neuestesGerät());
    QueryDef abfrage = db().QueryDefs("AnlagenVonKunde");
    abfrage.Parameters("paraKundeID") = m_kunde.schlüssel();
    Recordset anlagen = abfrage.OpenRecordset();
    m_anlage.einträge.clear();
    m_anlage.listIndex = -1;
    if (anlagen.Eof())
        return;
    if (nummern.size() != 1) {
        m_anlage.aktiv = false;
        m_prüfung.aktiv = false;
        return;
    }
    m_anlage.aktiv = true;
    // The plant number is the dump's text: a literal of the criterion, whatever it holds.
    const QString nummer = nummern.first();
    anlagen.FindFirst("Code =" + literal(nummer));
    QString gemerkt;
    int vorwahl = -1;
    if (anlagen.NoMatch() && !nummer.isEmpty()) {
        // A plant the customer does not have yet: the take-over makes it with this code.
        m_anlage.einträge.append({nummer.trimmed(), QVariant()});
        vorwahl = 0;
    } else if (nummer.isEmpty()) {
        vorwahl = 0;
        m_prüfung.aktiv = false;
    } else {
        gemerkt = nummer;
    }
    for (anlagen.MoveFirst(); !anlagen.Eof(); anlagen.MoveNext()) {
        m_anlage.einträge.append(
            {codeNrName(anlagen.Field("Code"), anlagen.Field("Nr"), anlagen.Field("Name")),
             anlagen.Field("AnlageID")});
        if (!gemerkt.isEmpty() && anlagen.Text("Code") == gemerkt) {
            vorwahl = int(m_anlage.einträge.size()) - 1;
            m_prüfung.aktiv = true;
        }
    }
    anlageKlick(vorwahl);
}

void frmZuordnen::anlageKlick(int index) {
    m_anlage.listIndex = index;
    mitFalle([this] { prüfungenFüllen(); });
    emit aktualisiert();
}

void frmZuordnen::prüfungenFüllen() {
    m_prüfung.einträge.clear();
    m_prüfung.listIndex = -1;
    if (!m_anlage.gewählt())
        return;
    QueryDef abfrage = db().QueryDefs("PrüfungenVonAnlage");
    abfrage.Parameters("paraAnlageID") = m_anlage.schlüssel();
    for (Recordset rs = abfrage.OpenRecordset(); !rs.Eof(); rs.MoveNext())
        m_prüfung.einträge.append(
            {rs.Text("Datum") + " " + GrundText(rs) + " " + rs.Text("ProtokollNr"), rs.Field("PrüfungID")});
}

void frmZuordnen::prüfungKlick(int index) {
    m_prüfung.listIndex = index;
    emit aktualisiert();
}

void frmZuordnen::weiterKlick() {
    mitFalle([this] {
        Recordset zeilen =
            db().OpenRecordset("SELECT * FROM 0100_EinleseDaten WHERE GeräteID = " + text(neuestesGerät()));
        // A plant offered by its number alone has no key yet: the row gets 0 and keeps its number.
        const auto schreiben = [&zeilen](const char* feld, const Zuordnungsliste& liste) {
            if (!liste.gewählt())
                return;
            zeilen.Edit();
            zeilen.setField(feld, istLeer(liste.schlüssel()) ? QVariant(0) : liste.schlüssel());
            zeilen.Update();
        };
        for (; !zeilen.Eof(); zeilen.MoveNext()) {
            schreiben("KundeID", m_kunde);
            schreiben("AnlageID", m_anlage);
            schreiben("PrüfungID", m_prüfung);
        }
    });
    schließen();
}

} // namespace vemo
