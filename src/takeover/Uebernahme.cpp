#include "takeover/Uebernahme.h"

#include "core/Laufschluessel.h"
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "core/Vorbelegung.h"
#include "grid/EinleseDatenController.h"
#include "parsers/Primitive.h"
#include "parsers/PruefgeraetEintragen.h"
#include "platform/Fehler.h"
#include "platform/Ui.h"
#include "store/Datenbank.h"
#include "store/Transaktion.h"
#include "store/Variant.h"
#include "takeover/ErdWert.h"
#include "takeover/MesswertUebernehmen.h"
#include "takeover/MesswertUebernehmenZertifikat.h"
#include "takeover/Messzeilen.h"
#include "takeover/Wartezeilen.h"
#include "takeover/Zertifikatssatz.h"

#include <QDate>
#include <QHash>

namespace vemo {
namespace {

const QString EnglischUK = "English (United Kingdom)";

// Locks the read-in row and reads it again; false when it is gone.
bool nochEingelesen(Recordset& z) {
    try {
        z.Edit();
    } catch (const Fehler& f) {
        if (f.nummer() != fehler::DatensatzGelöscht)
            throw;
        return false;
    }
    z.CancelUpdate();
    return true;
}

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
    void zeileÜbernehmen(Recordset& z);
    bool genugZugeordnet(const Recordset& z) const;
    void anlage(const Recordset& z);
    void prüfung(Recordset& z);
    void neuePrüfung();
    QList<QVariant> wartendeZeilen(Recordset& z);
    QVariant anlageDerFolgezeile(const Recordset& z);
    bool eigenePrüfungGilt(const QVariant& prüfungID);
    void verteilerUndStromkreis(const Recordset& z);
    void werteÜbernehmen(const Recordset& z);

    EinleseDatenController& m_form;
    const bool m_englisch;
    Laufschlüssel& m_schlüssel = laufschlüssel();
    QVariant m_letztesGerät = 0;
    QList<QVariant> m_prüfungen; // touched in this run, in order of first touch, with repeats
    Recordset m_anlage, m_prüfung, m_verteiler, m_stromkreis;
    // What a look at the rows that follow found, for the length of one look.
    QHash<QString, QVariant> m_anlagenDerFolgezeilen;
    QHash<QString, bool> m_geltendePrüfungen;
};

bool Lauf::genugZugeordnet(const Recordset& z) const {
    if (m_englisch)
        return gesetzt(z.Field("KundeID")) && gesetzt(z.Field("AnlageID")) && gesetzt(z.Field("PrüfungID"));
    // The typed numbers decide: a row with keys of board and circuit but no numbers is not taken.
    return gesetzt(z.Field("KundeID")) && (gesetzt(z.Field("AnlageID")) || !z.Text("AnlageNr").isEmpty()) &&
           !nummerLeer(z.Text("VerteilerNr")) && !nummerLeer(z.Text("StromkreisNr"));
}

void Lauf::anlage(const Recordset& z) {
    const QVariant kunde = z.Field("KundeID");
    if (!m_anlage.istOffen() || m_anlage.Eof() || !gleich(m_anlage.Field("AnlageID"), z.Field("AnlageID")) ||
        !gleich(m_anlage.Field("KundeID"), kunde))
        m_anlage = db().OpenRecordset("SELECT * FROM 0100_Anlage WHERE KundeID = ? AND AnlageID = ?",
                                      {kunde, z.Field("AnlageID")});
    if (!m_anlage.Eof()) {
        m_schlüssel.anlageID = m_anlage.Field("AnlageID");
        return;
    }
    m_anlage = db().OpenRecordset("SELECT * FROM 0100_Anlage where KundeID = ? AND Code = ?",
                                  {kunde, z.Text("AnlageNr")});
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
        anlageWeitergeben(neu, kunde, z.Text("AnlageNr"), z.Field("MessungID"));
    }
}

void Lauf::prüfung(Recordset& z) {
    const QVariant anlage = m_schlüssel.anlageID;
    const QVariant bisher = m_schlüssel.prüfungID;
    const QString abfrage = "SELECT * FROM 0100_Prüfung WHERE AnlagenID = ? AND PrüfungID = ?";
    const bool bleibt = m_prüfung.istOffen() && !m_prüfung.Eof() &&
                        gleich(m_prüfung.Field("AnlagenID"), anlage) &&
                        gleich(m_prüfung.Field("PrüfungID"), z.Field("PrüfungID"));
    if (!bleibt) {
        m_prüfung = db().OpenRecordset(abfrage, {anlage, z.Field("PrüfungID")});
        if (!m_prüfung.Eof()) {
            m_prüfungen << m_prüfung.Field("PrüfungID");
            m_letztesGerät = 0;
        }
    }
    // Rows of one plant without an inspection share the one that the first of them created.
    if (m_prüfung.Eof())
        m_prüfung = db().OpenRecordset(abfrage, {anlage, bisher});
    if (!m_prüfung.Eof())
        m_schlüssel.prüfungID = m_prüfung.Field("PrüfungID");
    else
        neuePrüfung();
    // The current inspection is run state: the rows that follow it by that alone are given its key.
    if (!gleich(m_schlüssel.prüfungID, bisher))
        prüfungWeitergeben(m_schlüssel.prüfungID, wartendeZeilen(z));
}

// The rows behind this one that the run takes into the current inspection because it is current:
// rows of the same plant without a valid inspection of their own, up to the first taken row that
// goes elsewhere.
QList<QVariant> Lauf::wartendeZeilen(Recordset& z) {
    QList<QVariant> wartende;
    const long hier = z.AbsolutePosition();
    m_anlagenDerFolgezeilen.clear();
    m_geltendePrüfungen.clear();
    for (z.MoveNext(); !z.Eof(); z.MoveNext()) {
        if (!genugZugeordnet(z))
            continue;
        if (!gleich(anlageDerFolgezeile(z), m_schlüssel.anlageID))
            break;
        const QVariant eigene = z.Field("PrüfungID");
        if (gleich(eigene, m_schlüssel.prüfungID))
            continue;
        if (eigenePrüfungGilt(eigene))
            break;
        wartende << z.Field("MessungID");
    }
    z.setAbsolutePosition(hier);
    return wartende;
}

// The plant a later row will find, as anlage() finds it; Null where it will make a new one.
QVariant Lauf::anlageDerFolgezeile(const Recordset& z) {
    const QString schlüssel = z.Text("KundeID") + '|' + z.Text("AnlageID") + '|' + z.Text("AnlageNr");
    if (const auto it = m_anlagenDerFolgezeilen.constFind(schlüssel); it != m_anlagenDerFolgezeilen.cend())
        return *it;
    const QVariant kunde = z.Field("KundeID");
    QStringList gefunden = db().ersteSpalte(
        "SELECT AnlageID FROM 0100_Anlage WHERE KundeID = ? AND AnlageID = ?", {kunde, z.Field("AnlageID")});
    if (gefunden.isEmpty())
        gefunden = db().ersteSpalte("SELECT AnlageID FROM 0100_Anlage WHERE KundeID = ? AND Code = ?",
                                    {kunde, z.Text("AnlageNr")});
    QVariant anlage = nullWert();
    if (!gefunden.isEmpty())
        anlage = gefunden.first().toLongLong();
    else if (z.Text("AnlageNr").isEmpty())
        anlage = m_schlüssel.anlageID; // no plant: the row stays on the plant of the row before
    m_anlagenDerFolgezeilen.insert(schlüssel, anlage);
    return anlage;
}

bool Lauf::eigenePrüfungGilt(const QVariant& prüfungID) {
    if (!gesetzt(prüfungID))
        return false;
    const QString schlüssel = text(prüfungID);
    if (const auto it = m_geltendePrüfungen.constFind(schlüssel); it != m_geltendePrüfungen.cend())
        return *it;
    const bool gilt =
        !db().ersteSpalte("SELECT PrüfungID FROM 0100_Prüfung WHERE AnlagenID = ? AND PrüfungID = ?",
                          {m_schlüssel.anlageID, prüfungID})
             .isEmpty();
    m_geltendePrüfungen.insert(schlüssel, gilt);
    return gilt;
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
    const QVariant prüfung = m_schlüssel.prüfungID;
    if (!m_verteiler.istOffen() || m_verteiler.Eof() || !gleich(m_verteiler.Field("PrüfungID"), prüfung) ||
        !gleich(m_verteiler.Field("VerteilerID"), z.Field("VerteilerID")))
        m_verteiler =
            db().OpenRecordset("SELECT * FROM 0100_Verteiler WHERE PrüfungID = ? AND VerteilerID = ?",
                               {prüfung, z.Field("VerteilerID")});
    if (m_verteiler.Eof())
        m_verteiler = db().OpenRecordset("SELECT * FROM 0100_Verteiler WHERE PrüfungID = ? AND Code = ?",
                                         {prüfung, verteilerNr});
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
        verteilerWeitergeben(neu, prüfung, verteilerNr, z.Field("MessungID"));
    }
    if (nummerLeer(stromkreisNr))
        return;
    const QVariant verteiler = m_schlüssel.verteilerID;
    if (!m_stromkreis.istOffen() || m_stromkreis.Eof() ||
        !gleich(m_stromkreis.Field("VerteilerID"), verteiler) ||
        !gleich(m_stromkreis.Field("StromkreisID"), z.Field("StromkreisID")))
        m_stromkreis =
            db().OpenRecordset("SELECT * FROM 0100_STROMKREIS WHERE VerteilerID = ? AND StromkreisID = ?",
                               {verteiler, z.Field("StromkreisID")});
    if (m_stromkreis.Eof())
        m_stromkreis = db().OpenRecordset("SELECT * FROM 0100_STROMKREIS WHERE VerteilerID = ? AND Code = ?",
                                          {verteiler, stromkreisNr});
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
    stromkreisWeitergeben(neu, verteiler, stromkreisNr, z.Field("MessungID"));
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
        zeileÜbernehmen(z);
        z.MoveNext();
        balken.Value = std::min(balken.Max, balken.Value + 1);
        m_form.setFortschritt(balken);
    }
}

// Everything a read-in row causes, and its leaving the read-in table, commits together or not at
// all: a run broken off anywhere leaves each row either taken over whole or still read in.
//
// Other workplaces may take over the same rows at the same time. Taking a row over writes into the
// rows of its customer that follow it, so one customer's rows are taken by one workplace at a time;
// a row another workplace took over while this one waited is gone and is passed by, and one it
// assigned on meanwhile is taken as it stands now.
void Lauf::zeileÜbernehmen(Recordset& z) {
    Transaktion zeile(db());
    zeile.bereichSperren("0100_EinleseDaten KundeID " + z.Text("KundeID"));
    if (!nochEingelesen(z) || !genugZugeordnet(z))
        return;
    anlage(z);
    prüfung(z);
    if (!gleich(z.Field("GeräteID"), m_letztesGerät)) {
        m_letztesGerät = z.Field("GeräteID");
        PrüfgerätEintragen(m_letztesGerät, m_prüfung, z);
    }
    verteilerUndStromkreis(z);
    werteÜbernehmen(z);
    const QVariant kunde = z.Field("KundeID");
    z.Delete();
    zeile.commit();
    modul().ListeKundeID = kunde;
    modul().ListeAnlageID = m_schlüssel.anlageID;
    modul().ListePrüfungID = m_schlüssel.prüfungID;
}

void Lauf::erdungswiderständeSchreiben() {
    for (const QVariant& schlüssel : std::as_const(m_prüfungen)) {
        Recordset p = db().OpenRecordset("SELECT * FROM 0100_Prüfung WHERE PrüfungID = ?", {schlüssel});
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
