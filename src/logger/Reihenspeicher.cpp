#include "logger/Reihenspeicher.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "core/Vorbelegung.h"
#include "grid/GrundText.h"
#include "platform/Ui.h"
#include "platform/Zahlformat.h"
#include "store/Transaktion.h"
#include "store/Variant.h"

namespace vemo {
namespace {

// Points go in a few statements of this many rows each, well below the store's limit of bound
// values in one statement.
constexpr int PunkteJeAnweisung = 500;

struct Punkt {
    double wert;
    QDateTime zeit;
};

bool gewählt(const QVariant& schlüssel) {
    return !istLeer(schlüssel) && zahl(schlüssel) != 0;
}

void fehltMelden(const QString& text) {
    ui().MsgBox(xText(text), modul().anwendungstitel, {MsgKnöpfe::Ok, MsgSymbol::Warnung});
}

// Every point as a number, before anything is written; a text that is none raises 13.
QList<Punkt> punkteLesen(const Diagramm& diagramm) {
    QList<Punkt> punkte;
    for (const Messpunkt& p : diagramm.reihe(0)) {
        const std::optional<double> wert = zahlformat::zahl(p.wert.trimmed());
        if (!wert)
            throw fehler::mit(fehler::TypenUnverträglich, p.wert);
        punkte << Punkt{*wert, p.zeit};
    }
    return punkte;
}

QString kopfzeile(const Recordset& prüfung) {
    return zahlformat::datumText(prüfung.Field("Datum").toDate()) + " " + GrundText(prüfung) + " " +
           prüfung.Text("ProtokollNr");
}

// The new inspection of the selected plant, with the defaults of a new one; its head line for the
// series.
QString prüfungAnlegen(qint32 prüfungID) {
    Recordset prüfung = db().OpenRecordset("0100_Prüfung");
    prüfung.AddNew();
    prüfung.setField("PrüfungID", prüfungID);
    NeueZeileVorbelegen("Prüfung", prüfung, modul().ListeAnlageID);
    prüfung.Update();
    prüfung.setBookmark(prüfung.LastModified());
    return kopfzeile(prüfung);
}

// The captions as the data pool shows them: text, an empty one empty.
void reihenkopfSchreiben(qint32 iddatlog, qint32 prüfungID, const QString& überschrift,
                         const Reihenkopf& kopf) {
    db().Execute("INSERT INTO datlog37 (IDDATLOG, PrüfungID, xText, yText, headline, Datum, "
                 "Anzahlmessungen, Intervall, Max, Min) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                 {iddatlog, prüfungID, QString("Zeit"), QString("Spannung"), überschrift, kopf.start,
                  QString(kopf.anzahl), QString(kopf.intervall), QString(kopf.maximum),
                  QString(kopf.minimum)});
}

void punkteSchreiben(qint32 iddatlog, const QList<Punkt>& punkte) {
    for (qsizetype anfang = 0; anfang < punkte.size(); anfang += PunkteJeAnweisung) {
        const QList<Punkt> teil = punkte.mid(anfang, PunkteJeAnweisung);
        QStringList zeilen;
        QVector<QVariant> werte;
        for (const Punkt& p : teil) {
            zeilen << "(?, ?, ?)";
            werte << iddatlog << p.wert << p.zeit;
        }
        db().Execute("INSERT INTO messreihe37 (IDDATLOG, wert, Datum) VALUES " + zeilen.join(", "), werte);
    }
}

void zertifikatAnlegen(qint32 prüfungID) {
    Recordset zertifikat = db().OpenRecordset("0100U_CertNic");
    zertifikat.AddNew();
    zertifikat.setField("pid", prüfungID);
    zertifikat.Update();
}

} // namespace

bool fnVorZuordnenAuswahlPrüfen() {
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
    return true;
}

void reiheSpeichern(const Reihenkopf& kopf, const Diagramm& diagramm) {
    const QList<Punkt> punkte = punkteLesen(diagramm);
    // The inspection, its head row and points stand or fall together: a fault leaves no empty
    // inspection behind.
    Transaktion transaktion(db());
    const qint32 prüfungID = NeueID("", "0100_Prüfung");
    const QString überschrift = prüfungAnlegen(prüfungID);
    const qint32 iddatlog = NeueID("", "datlog37");
    reihenkopfSchreiben(iddatlog, prüfungID, überschrift, kopf);
    punkteSchreiben(iddatlog, punkte);
    zertifikatAnlegen(prüfungID);
    BetriebsmittelAnlegen(prüfungID);
    transaktion.commit();
    modul().loggerPrüfungID = prüfungID;
    modul().ListePrüfungID = prüfungID;
    modul().loggerIDDATLOG = iddatlog;
}

} // namespace vemo
