#include "core/Vorbelegung.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "platform/Zahlformat.h"
#include "store/Literal.h"
#include "store/Recordset.h"
#include "store/Variant.h"

#include <QDate>

namespace vemo {

void NeueZeileVorbelegen(const QString& art, Recordset& rs, const QVariant& eltern, Vorgabecode code) {
    const auto ersterCode = [&](const QVariant& elternSchlüssel) {
        if (code == Vorgabecode::Erster)
            rs.setField("Code", NeuerCode(art, elternSchlüssel));
    };
    const auto leer = [&rs](std::initializer_list<const char*> felder) {
        for (const char* f : felder)
            rs.setField(f, QString());
    };
    const auto istNull = [](const QVariant& v) { return !istLeer(v) && zahlformat::val(text(v)) == 0; };
    const QDate heute = QDate::currentDate();
    if (art == "Kunde") {
        rs.setField("Name", "xxxxx");
        leer({"Kundennummer", "Kontakt", "Tel", "Fax", "email", "Firma", "Abteilung", "Strasse", "Plz",
              "Stadt", "Anmerkung"});
    } else if (art == "Anlage") {
        rs.setField("Name", "xxxxx");
        rs.setField("KundeID", eltern);
        ersterCode(eltern);
        leer({"Nr", "Strasse", "Plz", "Stadt", "Kontakt", "Tel", "Fax", "email", "Anlagenplaner",
              "Bemerkung"});
        rs.setField("NächstePrüfung", heute);
        rs.setField("Intervall", 48);
        leer({"Bild"});
    } else if (art == "Prüfung") {
        rs.setField("Datum", heute);
        rs.setField("typ", "DACH2010");
        rs.setField("AnlagenID", eltern);
        for (int i = 1; i <= 4; ++i) {
            rs.setField(QString("Prüfgerät%1ID").arg(i), 0);
            rs.setField(QString("PrüfgerätName%1").arg(i), QString());
        }
        rs.setField("Grund1", 1);
        for (int i = 2; i <= 4; ++i)
            rs.setField(QString("Grund%1").arg(i), 0);
        leer({"GrundText"});
        for (int i = 1; i <= 6; ++i)
            rs.setField(QString("Erprobung%1").arg(i), 0);
        for (int i = 1; i <= 17; ++i)
            rs.setField(QString("Besichtigung%1").arg(i), 0);
        leer({"BesichtigungText16", "BesichtigungText17", "AuftragNr"});
        rs.setField("ProtokollNr", NächsteProtokollNr());
        leer({"Bemerkung", "ZusatzmessungDatei"});
        for (int i = 1; i <= 4; ++i)
            rs.setField(QString("echeck%1").arg(i), 0);
        leer({"echecktext"});
        rs.setField("PrüferID", 0);
        leer({"PrüferName"});
        rs.setField("Status", 0);
        rs.setField("erledigt", 0);
    } else if (art == "Verteiler") {
        rs.setField("Name", "xxxxx");
        if (!istNull(eltern))
            rs.setField("PrüfungID", eltern);
        ersterCode(rs.Field("PrüfungID"));
        leer({"Nr"});
    } else if (art == "Stromkreis") {
        rs.setField("Name", "xxxxx");
        if (!istNull(eltern))
            rs.setField("VerteilerID", eltern);
        rs.setField("StromkreistypID", 0);
        ersterCode(rs.Field("VerteilerID"));
        leer({"Nr"});
        rs.setField("KabelTypID", 0);
        rs.setField("SicherungsTypID", 0);
        rs.setField("RCDTypID", 0);
    }
}

void BetriebsmittelAnlegen(const QVariant& prüfungID) {
    Recordset ziel = db().OpenRecordset("0100_Betriebsmittel");
    Recordset vorlage = db().OpenRecordset("SELECT * FROM 0100_Betriebsmittelstandard WHERE SPRACHE = " +
                                           literal(modul().sprachen.Sprache()));
    for (; !vorlage.Eof(); vorlage.MoveNext()) {
        ziel.AddNew();
        ziel.setField("BetriebsmittelID", NeueID("", ziel.Name()));
        ziel.setField("PrüfungID", prüfungID);
        ziel.setField("Zeile", vorlage.Field("Zeile"));
        ziel.setField("Spalte", vorlage.Field("Spalte"));
        ziel.setField("inhalt", vorlage.Field("inhalt"));
        ziel.Update();
    }
}

} // namespace vemo
