#include "logger/Reihenspeicher.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "core/Vorbelegung.h"
#include "grid/GrundText.h"
#include "platform/Ui.h"
#include "platform/Zahlformat.h"
#include "store/Variant.h"

namespace vemo {
namespace {

bool gewählt(const QVariant& schlüssel) {
    return !istLeer(schlüssel) && zahl(schlüssel) != 0;
}

void fehltMelden(const QString& text) {
    ui().MsgBox(xText(text), modul().anwendungstitel, {MsgKnöpfe::Ok, MsgSymbol::Warnung});
}

// The new inspection of the selected plant; it stays on its row for the head line.
Recordset neuePrüfung() {
    Recordset prüfung = db().OpenRecordset("0100_Prüfung");
    prüfung.AddNew();
    const qint32 neu = NeueID("", prüfung.Name());
    prüfung.setField("PrüfungID", neu);
    NeueZeileVorbelegen("Prüfung", prüfung, modul().ListeAnlageID);
    modul().loggerPrüfungID = neu;
    modul().ListePrüfungID = neu;
    prüfung.Update();
    prüfung.setBookmark(prüfung.LastModified());
    return prüfung;
}

QString kopfzeile(const Recordset& prüfung) {
    return zahlformat::datumText(prüfung.Field("Datum").toDate()) + " " + GrundText(prüfung) + " " +
           prüfung.Text("ProtokollNr");
}

void reihenkopfSchreiben(const Recordset& prüfung, const Reihenkopf& kopf) {
    Recordset datlog = db().OpenRecordset("datlog37");
    datlog.AddNew();
    const qint32 id = NeueID("", datlog.Name());
    datlog.setField("IDDATLOG", id);
    datlog.setField("PrüfungID", modul().loggerPrüfungID);
    datlog.setField("xText", "Zeit");
    datlog.setField("yText", "Spannung");
    datlog.setField("headline", kopfzeile(prüfung));
    datlog.setField("Datum", kopf.start);
    datlog.setField("Anzahlmessungen", kopf.anzahl);
    datlog.setField("Intervall", kopf.intervall);
    datlog.setField("Max", kopf.maximum);
    datlog.setField("Min", kopf.minimum);
    datlog.Update();
    modul().loggerIDDATLOG = id;
}

void zertifikatAnlegen(qint32 prüfungID) {
    Recordset zertifikat = db().OpenRecordset("0100U_CertNic");
    zertifikat.AddNew();
    zertifikat.setField("pid", prüfungID);
    zertifikat.Update();
}

} // namespace

bool fnVorZuordnenAuswahlPrüfen(const Reihenkopf& kopf) {
    if (modul().datenpoolModus != "DATEN LOGGER")
        return true;
    if (!gewählt(modul().ListeKundeID)) {
        fehltMelden("Zuvor einen Auftraggeber...");
        return false;
    }
    if (!gewählt(modul().ListeAnlageID)) {
        fehltMelden("Zuvor eine Anlage...");
        return false;
    }
    Recordset prüfung = neuePrüfung();
    reihenkopfSchreiben(prüfung, kopf);
    prüfung.Close();
    zertifikatAnlegen(modul().loggerPrüfungID);
    BetriebsmittelAnlegen(modul().loggerPrüfungID);
    return true;
}

void messreiheSpeichern(const Diagramm& diagramm) {
    Recordset reihe = db().OpenRecordset("messreihe37");
    for (const Messpunkt& p : diagramm.reihe(0)) {
        reihe.AddNew();
        reihe.setField("IDDATLOG", modul().loggerIDDATLOG);
        reihe.setField("wert", zahlformat::zahl(p.wert.trimmed()).value_or(zahlformat::val(p.wert)));
        reihe.setField("Datum", p.zeit);
        reihe.Update();
    }
    reihe.Close();
}

} // namespace vemo
