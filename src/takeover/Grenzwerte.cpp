#include "takeover/Grenzwerte.h"

#include "core/ModulState.h"
#include "store/Literal.h"
#include "store/Transaktion.h"
#include "store/Variant.h"
#include "takeover/Grenzwertrechnung.h"
#include "takeover/Messzeilen.h"

namespace vemo {
namespace {

// The circuit with its cable, fuse and RCD type. The statement keeps the bracketed form in which
// the host's database holds it.
QString stromkreisMitTypen(const QVariant& stromkreisID) {
    return "(SELECT [0100_Stromkreis].VerteilerID, [0100_Stromkreis].StromkreisID, [0100_Stromkreis].Code, "
           "[0100_Stromkreis].Nr, [0100_Kabeltyp].KabeltypID, [0100_Kabeltyp].Name, "
           "[0100_Sicherungstyp].SicherungstypID, [0100_Sicherungstyp].Name, [0100_Sicherungstyp].Grenzwert, "
           "[0100_RCDtyp].RCDtypID, [0100_RCDtyp].Name, [0100_Stromkreis].Name, [0100_Stromkreis].Bemerkung "
           "FROM [0100_Sicherungstyp] RIGHT JOIN ([0100_RCDtyp] RIGHT JOIN ([0100_Kabeltyp] RIGHT JOIN "
           "[0100_Stromkreis] ON [0100_Kabeltyp].KabeltypID = [0100_Stromkreis].KabelTypID) ON "
           "[0100_RCDtyp].RCDtypID = [0100_Stromkreis].RCDTypID) ON [0100_Sicherungstyp].SicherungstypID = "
           "[0100_Stromkreis].SicherungsTypID WHERE StromkreisID = " +
           text(stromkreisID) +
           " ORDER BY [0100_Stromkreis].Code, [0100_Stromkreis].Nr, [0100_Stromkreis].Name;)";
}

// Limits are copied by position: the standard row has the columns of the limit table in the same
// order. The key in front and the last two columns are the row's own; "s_" columns stay empty.
void standardÜbernehmen(Recordset& rsGrenzwert) {
    const Recordset standard = db().OpenRecordset("0100_GrenzwertStandard");
    for (int i = 1; i <= rsGrenzwert.FieldCount() - 3; ++i)
        if (standard.FieldName(i).left(2) != "s_")
            rsGrenzwert.setField(i, standard.Field(i));
}

void isolationNachPrüfspannung(Recordset& rsGrenzwert, const Recordset& rsMessung) {
    const Recordset iso = db().OpenRecordset("SELECT * FROM 0100_GrenzwertISO WHERE Prüfspannung = " +
                                             literal(rsMessung.Text("VISO")));
    if (!iso.Eof())
        rsGrenzwert.setField("RISO", iso.Text("Grenzwert"));
}

// A measurement row that belongs to no circuit yet has no fuse either.
void schleifeNachSicherung(Recordset& rsGrenzwert, const Recordset& rsMessung) {
    const QVariant stromkreisID = rsMessung.Field("StromkreisID");
    if (istLeer(stromkreisID))
        return;
    const Recordset kreis = db().OpenRecordset(stromkreisMitTypen(stromkreisID));
    if (kreis.Eof())
        return;
    const QVariant sicherung = kreis.Field("SicherungsTypID");
    if (istLeer(sicherung) || zahl(sicherung) == 0)
        return;
    const QString abschaltstrom = kreis.Text("Grenzwert");
    const QString schleife = LoopGrenzwert(abschaltstrom);
    rsGrenzwert.setField("LoopIKRS", abschaltstrom);
    rsGrenzwert.setField("LOOPRS", schleife);
    rsGrenzwert.setField("LoopIKRI", abschaltstrom);
    rsGrenzwert.setField("LOOPRI", schleife);
}

// The factor goes into the statement unquoted, so that "1/2" is read as a half.
void auslösezeitNachFaktor(Recordset& rsGrenzwert, const Recordset& rsMessung) {
    const QString faktor = rsMessung.Text("FIFaktor");
    QString zahl = FaktorZahl(faktor);
    if (zahl.isEmpty())
        zahl = "1";
    const QString selektiv = faktor.contains('S', Qt::CaseInsensitive) ? "-1" : "0";
    const Recordset rcd = db().OpenRecordset("SELECT * FROM 0100_GrenzwertRCD WHERE Faktor = " + zahl +
                                             " AND Selektive = " + selektiv);
    if (rcd.Eof())
        return;
    rsGrenzwert.setField("FIT MIN", rcd.Field("FIT MIN"));
    rsGrenzwert.setField("FIT MAX", rcd.Field("FIT MAX"));
}

void grenzwertzeileAnlegen(Recordset& rsGrenzwert, const Recordset& rsMessung) {
    rsGrenzwert.AddNew();
    standardÜbernehmen(rsGrenzwert);
    rsGrenzwert.setField("MessID", rsMessung.Field("MessID"));
    rsGrenzwert.setField("StromkreisID", rsMessung.Field("StromkreisID"));
    isolationNachPrüfspannung(rsGrenzwert, rsMessung);
    schleifeNachSicherung(rsGrenzwert, rsMessung);
    auslösezeitNachFaktor(rsGrenzwert, rsMessung);
    rsGrenzwert.Update();
    zurLetztenÄnderung(rsGrenzwert);
}

} // namespace

void GrenzwertHolen(Recordset& rsGrenzwert, const Recordset& rsMessung) {
    try {
        rsGrenzwert =
            db().OpenRecordset("SELECT * FROM 0100_Grenzwert WHERE MessID = " + rsMessung.Text("MessID"));
        if (rsGrenzwert.Eof())
            grenzwertzeileAnlegen(rsGrenzwert, rsMessung);
    } catch (const Fehler& f) {
        // The limits that could not be had stay as they were; the caller goes on, unless the
        // store itself failed.
        if (istSpeicherausfall(f))
            throw;
    }
}

} // namespace vemo
