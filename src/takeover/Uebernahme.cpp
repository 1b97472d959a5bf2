#include "takeover/Uebernahme.h"

#include "core/Laufschluessel.h"
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "core/Vorbelegung.h"
#include "grid/EinleseDatenController.h"
#include "parsers/Primitive.h"
#include "parsers/PruefgeraetEintragen.h"
#include "platform/Ui.h"
#include "store/Datenbank.h"
#include "store/Variant.h"
#include "takeover/ErdWert.h"
#include "takeover/MesswertUebernehmen.h"
#include "takeover/MesswertUebernehmenZertifikat.h"
#include "takeover/Messzeilen.h"
#include "takeover/Zertifikatssatz.h"

#include <QDate>

namespace vemo {
namespace {

const QString EnglischUK = "English (United Kingdom)";

bool gesetzt(const QVariant& schlüssel) {
    return !istLeer(schlüssel) && zahl(schlüssel) != 0;
}
bool nummerLeer(const QString& nummer) {
    return nummer.isEmpty() || nummer == "0";
}

class Lauf {
public:
    explicit Lauf(EinleseDatenController& form)
        : m_form(form), m_englisch(modul().sprachen.Sprache() == EnglischUK) {}

    void zeilenÜbernehmen(Recordset& zeile);
    void erdungswiderständeSchreiben();

private:
    bool genugZugeordnet(const Recordset& z) const;
    void anlage(const Recordset& z);
    void prüfung(const Recordset& z);
    void neuePrüfung();
    void verteilerUndStromkreis(const Recordset& z);
    void werteÜbernehmen(const Recordset& z);

    EinleseDatenController& m_form;
    const bool m_englisch;
    Laufschlüssel& m_schlüssel = laufschlüssel();
    QVariant m_letztesGerät = 0;
    QList<QVariant> m_prüfungen; // touched in this run, in order of first touch, with repeats
    Recordset m_anlage, m_prüfung, m_verteiler, m_stromkreis;
};

bool Lauf::genugZugeordnet(const Recordset& z) const {
    if (m_englisch)
        return gesetzt(z.Field("KundeID")) && gesetzt(z.Field("AnlageID")) && gesetzt(z.Field("PrüfungID"));
    // The typed numbers decide: a row with keys of board and circuit but no numbers is not taken.
    return gesetzt(z.Field("KundeID")) && (gesetzt(z.Field("AnlageID")) || !z.Text("AnlageNr").isEmpty()) &&
           !nummerLeer(z.Text("VerteilerNr")) && !nummerLeer(z.Text("StromkreisNr"));
}

void Lauf::anlage(const Recordset& z) {
    const QString kunde = z.Text("KundeID");
    if (!m_anlage.istOffen() || m_anlage.Eof() || !gleich(m_anlage.Field("AnlageID"), z.Field("AnlageID")) ||
        !gleich(m_anlage.Field("KundeID"), z.Field("KundeID")))
        m_anlage = db().OpenRecordset("SELECT * FROM 0100_Anlage WHERE KundeID = " + kunde +
                                      " AND AnlageID = " + z.Text("AnlageID"));
    if (!m_anlage.Eof()) {
        m_schlüssel.anlageID = m_anlage.Field("AnlageID");
        return;
    }
    // The plant number goes into the statement as it stands: an apostrophe in it fails the look-up.
    m_anlage = db().OpenRecordset("SELECT * FROM 0100_Anlage where KundeID = " + kunde + " AND Code ='" +
                                  z.Text("AnlageNr") + "'");
    if (!m_anlage.Eof()) {
        m_schlüssel.anlageID = m_anlage.Field("AnlageID");
    } else if (z.Text("AnlageNr").isEmpty()) {
        // The row lands on the plant of the row before: that is how the run has always behaved.
        ui().MsgBox(" " + xText("keine Anlage"), modul().anwendungstitel);
    } else {
        m_anlage.AddNew();
        const qint32 neu = NeueID("", m_anlage.Name());
        m_anlage.setField("AnlageID", neu);
        NeueZeileVorbelegen("Anlage", m_anlage, z.Field("KundeID"), Vorgabecode::VomAufrufer);
        m_anlage.setField("Code", z.Text("AnlageNr"));
        m_anlage.setField("KundeID", z.Field("KundeID"));
        m_anlage.setField("Nr", QString()); // a plant made by the run has only its code
        m_anlage.setField("Name", QString());
        m_schlüssel.anlageID = neu;
        m_anlage.Update();
    }
}

void Lauf::prüfung(const Recordset& z) {
    const QString anlage = text(m_schlüssel.anlageID);
    const bool bleibt = m_prüfung.istOffen() && !m_prüfung.Eof() &&
                        gleich(m_prüfung.Field("AnlagenID"), m_schlüssel.anlageID) &&
                        gleich(m_prüfung.Field("PrüfungID"), z.Field("PrüfungID"));
    if (!bleibt) {
        m_prüfung = db().OpenRecordset("SELECT * FROM 0100_Prüfung WHERE AnlagenID = " + anlage +
                                       " AND PrüfungID = " + z.Text("PrüfungID"));
        if (!m_prüfung.Eof()) {
            m_prüfungen << m_prüfung.Field("PrüfungID");
            m_letztesGerät = 0;
        }
    }
    // Rows of one plant without an inspection share the one that the first of them created.
    if (m_prüfung.Eof())
        m_prüfung = db().OpenRecordset("SELECT * FROM 0100_Prüfung WHERE AnlagenID = " + anlage +
                                       " AND PrüfungID = " + text(m_schlüssel.prüfungID));
    if (!m_prüfung.Eof())
        m_schlüssel.prüfungID = m_prüfung.Field("PrüfungID");
    else
        neuePrüfung();
}

void Lauf::neuePrüfung() {
    m_prüfung.AddNew();
    const qint32 neu = NeueID("", m_prüfung.Name());
    m_prüfung.setField("PrüfungID", neu);
    NeueZeileVorbelegen("Prüfung", m_prüfung, m_schlüssel.anlageID);
    m_schlüssel.prüfungID = neu;
    m_prüfungen << neu;
    m_letztesGerät = 0;
    m_prüfung.setField("AnlagenID", m_schlüssel.anlageID);
    m_prüfung.Update();
    m_prüfung.setBookmark(m_prüfung.LastModified());

    ZertifikatssatzAnlegen(neu);
    BetriebsmittelAnlegen(neu);

    const QString anlage = text(m_schlüssel.anlageID);
    const Recordset neueste = db().OpenRecordset(
        "SELECT [0100_Prüfung].Datum FROM [0100_Prüfung] Where ((([0100_Prüfung].AnlagenID) = " + anlage +
        "))ORDER BY [0100_Prüfung].Datum DESC , [0100_Prüfung].PrüfungID DESC;");
    Recordset plan = db().OpenRecordset("SELECT [0100_Anlage].Intervall, [0100_Anlage].NächstePrüfung FROM "
                                        "[0100_Anlage] Where ([0100_Anlage].AnlageID = " +
                                        anlage + ")");
    if (!plan.Eof() && !istLeer(plan.Field("Intervall")) && !neueste.Eof()) {
        plan.Edit();
        plan.setField("NächstePrüfung",
                      neueste.Field("Datum").toDate().addMonths(int(ganzzahl(plan.Field("Intervall")))));
        plan.Update();
    }
}

void Lauf::verteilerUndStromkreis(const Recordset& z) {
    m_schlüssel.verteilerID = 0;
    m_schlüssel.stromkreisID = 0;
    const QString verteilerNr = z.Text("VerteilerNr");
    const QString stromkreisNr = z.Text("StromkreisNr");
    if (nummerLeer(verteilerNr))
        return;
    const QString prüfung = text(m_schlüssel.prüfungID);
    if (!m_verteiler.istOffen() || m_verteiler.Eof() ||
        !gleich(m_verteiler.Field("PrüfungID"), m_schlüssel.prüfungID) ||
        !gleich(m_verteiler.Field("VerteilerID"), z.Field("VerteilerID")))
        m_verteiler = db().OpenRecordset("SELECT * FROM 0100_Verteiler WHERE PrüfungID = " + prüfung +
                                         " AND VerteilerID = " + z.Text("VerteilerID"));
    if (m_verteiler.Eof()) // the board number as it stands: an apostrophe in it fails the look-up
        m_verteiler = db().OpenRecordset("SELECT * FROM 0100_Verteiler WHERE PrüfungID = " + prüfung +
                                         " AND Code ='" + verteilerNr + "'");
    if (!m_verteiler.Eof()) {
        m_schlüssel.verteilerID = m_verteiler.Field("VerteilerID");
    } else {
        m_verteiler.AddNew();
        const qint32 neu = NeueID("", m_verteiler.Name());
        m_verteiler.setField("VerteilerID", neu);
        NeueZeileVorbelegen("Verteiler", m_verteiler, m_schlüssel.prüfungID, Vorgabecode::VomAufrufer);
        m_schlüssel.verteilerID = neu;
        m_verteiler.setField("PrüfungID", m_schlüssel.prüfungID);
        m_verteiler.setField("Name", QString());
        m_verteiler.setField("Nr", QString());
        m_verteiler.setField("Code", verteilerNr);
        m_verteiler.Update();
        m_verteiler.setBookmark(m_verteiler.LastModified());
    }
    if (nummerLeer(stromkreisNr))
        return;
    const QString verteiler = text(m_schlüssel.verteilerID);
    if (!m_stromkreis.istOffen() || m_stromkreis.Eof() ||
        !gleich(m_stromkreis.Field("VerteilerID"), m_schlüssel.verteilerID) ||
        !gleich(m_stromkreis.Field("StromkreisID"), z.Field("StromkreisID")))
        m_stromkreis = db().OpenRecordset("SELECT * FROM 0100_STROMKREIS WHERE VerteilerID = " + verteiler +
                                          " AND StromkreisID = " + z.Text("StromkreisID"));
    if (m_stromkreis.Eof()) // the circuit number as it stands: an apostrophe in it fails the look-up
        m_stromkreis = db().OpenRecordset("SELECT * FROM 0100_STROMKREIS WHERE VerteilerID = " + verteiler +
                                          " AND Code ='" + stromkreisNr + "'");
    if (!m_stromkreis.Eof()) {
        m_schlüssel.stromkreisID = m_stromkreis.Field("StromkreisID");
        return;
    }
    m_stromkreis.AddNew();
    const qint32 neu = NeueID("", m_stromkreis.Name());
    m_stromkreis.setField("StromkreisID", neu);
    NeueZeileVorbelegen("Stromkreis", m_stromkreis, m_schlüssel.verteilerID, Vorgabecode::VomAufrufer);
    m_schlüssel.stromkreisID = neu;
    m_stromkreis.setField("VerteilerID", m_schlüssel.verteilerID);
    m_stromkreis.setField("Name", QString());
    m_stromkreis.setField("Nr", QString());
    m_stromkreis.setField("Code", stromkreisNr);
    m_stromkreis.Update();
    m_stromkreis.setBookmark(m_stromkreis.LastModified());
    if (istZertifikat(m_schlüssel.prüfungID)) {
        Recordset messung = db().OpenRecordset("SELECT * FROM 0100_Messung");
        NewMessung(messung); // a certificate circuit always has its one measurement row
    }
}

void Lauf::werteÜbernehmen(const Recordset& z) {
    if (istZertifikat(m_schlüssel.prüfungID))
        MesswertÜbernehmenZertifikat(z.Field("MessungID"), m_schlüssel.stromkreisID, m_schlüssel.verteilerID,
                                     m_schlüssel.prüfungID);
    else
        MesswertÜbernehmen(z.Field("MessungID"), z.Field("Datum"), z.Field("Uhrzeit"));
}

void Lauf::zeilenÜbernehmen(Recordset& z) {
    Fortschritt balken = m_form.fortschritt();
    while (!z.Eof()) {
        if (!genugZugeordnet(z)) {
            z.MoveNext();
            continue;
        }
        anlage(z);
        prüfung(z);
        if (!gleich(z.Field("GeräteID"), m_letztesGerät)) {
            m_letztesGerät = z.Field("GeräteID");
            PrüfgerätEintragen(m_letztesGerät, m_prüfung, z);
        }
        verteilerUndStromkreis(z);
        werteÜbernehmen(z);
        modul().ListeKundeID = z.Field("KundeID");
        modul().ListeAnlageID = m_schlüssel.anlageID;
        modul().ListePrüfungID = m_schlüssel.prüfungID;
        z.Delete();
        z.MoveNext();
        balken.Value = std::min(balken.Max, balken.Value + 1);
        m_form.setFortschritt(balken);
    }
}

void Lauf::erdungswiderständeSchreiben() {
    for (const QVariant& schlüssel : std::as_const(m_prüfungen)) {
        Recordset p = db().OpenRecordset("SELECT * FROM 0100_Prüfung WHERE PrüfungID = " + text(schlüssel));
        p.Edit();
        p.setField("Erdungswiderstand", GetErdWertMax(schlüssel));
        p.Update();
    }
}

// The form after the run: closed when nothing is left, else showing exactly the rows that stay.
void formNachDemLauf(EinleseDatenController& form) {
    Fortschritt balken = form.fortschritt();
    balken.Value = 1;
    balken.sichtbar = false;
    form.setFortschritt(balken);
    Recordset rest = db().OpenRecordset("0100_EinleseDaten");
    Schaltflächen knöpfe = form.schaltflächen();
    knöpfe.löschen = false;
    if (rest.Eof()) {
        db().Execute("DELETE * FROM 0100_EinleseGeräteDaten");
        knöpfe.übernehmen = false;
        form.setSchaltflächen(knöpfe);
        form.EinleseGridRefresh(1, 0);
        form.auswahlEreignis();
        form.schließen(0);
        return;
    }
    rest.MoveLast();
    form.EinleseGridRefresh(1, rest.RecordCount());
    knöpfe = form.schaltflächen();
    knöpfe.löschen = false;
    knöpfe.editResults = false;
    form.setSchaltflächen(knöpfe);
}

} // namespace

void Übernehmen(EinleseDatenController& form) {
    modul().EinlesedatenID = 0;
    modul().EinlesedatenIDRow = 0;
    bool gelaufen = false;
    mitFalle([&] {
        Recordset zeilen = db().OpenRecordset("0100_EinleseDaten");
        if (zeilen.Eof())
            return;
        gelaufen = true;
        ui().sanduhr(true);
        zeilen.MoveLast();
        zeilen.MoveFirst();
        form.setFortschritt({1, int(std::max(1L, zeilen.RecordCount())), 1, true});
        form.setAnzahlZeilen(QString());
        laufschlüssel().prüfungID = 0;
        Lauf lauf(form);
        const TeilFunktionenMerken zuordnungen;
        // An error ends the run: the rows taken so far are gone from the read-in table, the others stay.
        mitFalle([&] {
            lauf.zeilenÜbernehmen(zeilen);
            lauf.erdungswiderständeSchreiben();
        });
        ui().sanduhr(false);
    });
    if (!gelaufen)
        return;
    ui().DoEvents();
    mitFalle([&] { formNachDemLauf(form); });
}

} // namespace vemo
