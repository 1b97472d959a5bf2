#include "parsers/PruefgeraetEintragen.h"

#include "core/ModulState.h"
#include "store/Datenbank.h"
#include "store/Variant.h"

namespace vemo {
namespace {

// The first slot whose name is blank; a Null name does not count as free.
int freierPlatz(const Recordset& prüfung) {
    for (int i = 1; i <= 4; ++i) {
        const QVariant name = prüfung.Field(QString("PrüfgerätName%1").arg(i));
        if (!istNull(name) && text(name).trimmed().isEmpty())
            return i;
    }
    return 0;
}

bool schonEingetragen(const Recordset& prüfung, const QVariant& prüfgerätID) {
    for (int i = 1; i <= 4; ++i)
        if (gleich(prüfung.Field(QString("Prüfgerät%1ID").arg(i)), prüfgerätID))
            return true;
    return false;
}

// An instrument the register does not know is named by its text with the key 0.
bool schonGenannt(const Recordset& prüfung, const QString& name) {
    for (int i = 1; i <= 4; ++i)
        if (gleich(prüfung.Field(QString("Prüfgerät%1ID").arg(i)), 0) &&
            prüfung.Text(QString("PrüfgerätName%1").arg(i)) == name)
            return true;
    return false;
}

void platzBeschreiben(Recordset& prüfung, int platz, const QString& name, const QVariant& id) {
    prüfung.Edit();
    prüfung.setField(QString("PrüfgerätName%1").arg(platz), name);
    prüfung.setField(QString("Prüfgerät%1ID").arg(platz), id);
    prüfung.Update();
    prüfung.setBookmark(prüfung.LastModified());
}

// The instruments whose own date of a measurement is trusted for the inspection.
bool datumVertraut(const QString& prüfgerätName) {
    for (const char* modell : {"KONTAlex", "VOLTIRa 9KV", "ZEMAK 3710", "ZEMAK 3710B"})
        if (prüfgerätName.toUpper() == QString(modell).toUpper())
            return true;
    return false;
}

} // namespace

void PrüfgerätEintragen(const QVariant& geräteID, Recordset& prüfung, const Recordset& einlesezeile) {
    mitSchrittfalle([&] {
        const int platz = freierPlatz(prüfung);
        if (platz == 0)
            return;
        const Recordset gerät =
            db().OpenRecordset("SELECT * FROM 0100_EinleseGeräteDaten WHERE GeräteID = " + text(geräteID));
        if (gerät.Eof())
            return;
        const Recordset register_ = db().OpenRecordset("SELECT * FROM Prüfgerät WHERE PrüfgerätID = " +
                                                       text(gerät.Field("PrüfgerätID")));
        const QString serNr = " " + xText("Ser. Nr.:") + " ";
        if (!register_.Eof()) {
            const QVariant id = register_.Field("PrüfgerätID");
            if (schonEingetragen(prüfung, id))
                return;
            QString name = register_.Text("Bezeichnung") + serNr + register_.Text("Seriennummer");
            if (!register_.Text("Inventarnummer").isEmpty())
                name += " " + xText("Inv. Nr.:") + " " + register_.Text("Inventarnummer");
            platzBeschreiben(prüfung, platz, name, id);
        } else {
            // Named once, like a registered one: a take-over that resumes after an interruption
            // enters the instrument of its inspection again.
            const QString name = gerät.Text("PrüfgerätName") + serNr + gerät.Text("Seriennummer");
            if (schonGenannt(prüfung, name))
                return;
            platzBeschreiben(prüfung, platz, name, 0);
        }
        if (datumVertraut(gerät.Text("PrüfgerätName")) && istNull(prüfung.Field("Datum"))) {
            prüfung.Edit();
            prüfung.setField("Datum", einlesezeile.Field("Datum"));
            prüfung.Update();
            prüfung.setBookmark(prüfung.LastModified());
        }
    });
}

} // namespace vemo
