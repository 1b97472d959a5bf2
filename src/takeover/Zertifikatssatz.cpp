#include "takeover/Zertifikatssatz.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "core/Vorbelegung.h"
#include "store/Recordset.h"
#include "store/Variant.h"
#include "takeover/MesswertUebernehmenZertifikat.h"

namespace vemo {

void ZertifikatssatzAnlegen(const QVariant& prüfungID) {
    Recordset zertifikat = db().OpenRecordset("0100U_CertNic");
    zertifikat.AddNew();
    zertifikat.setField("pid", prüfungID);
    zertifikat.Update();
}

qint32 ZertifikatsprüfungAnlegen(const QVariant& anlageID) {
    Recordset p = db().OpenRecordset("0100_Prüfung");
    p.AddNew();
    const qint32 neu = NeueID("", p.Name());
    p.setField("PrüfungID", neu);
    NeueZeileVorbelegen("Prüfung", p, anlageID);
    p.setField("AnlagenID", anlageID);
    p.setField("typ", ZertifikatNiceic);
    p.Update();
    ZertifikatssatzAnlegen(neu);
    BetriebsmittelAnlegen(neu);
    return neu;
}

bool istZertifikat(const QVariant& prüfungID) {
    const Recordset rs = db().OpenRecordset("SELECT typ FROM 0100_Prüfung WHERE PrüfungID = ?", {prüfungID});
    if (rs.Eof())
        return false;
    const QVariant typ = rs.Field("typ");
    return !istLeer(typ) && text(typ) != "DACH" && text(typ) != "DACH2010";
}

} // namespace vemo
