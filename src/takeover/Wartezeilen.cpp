#include "takeover/Wartezeilen.h"

#include "core/ModulState.h"
#include "store/Datenbank.h"

namespace vemo {

void anlageWeitergeben(const QVariant& anlageID, const QVariant& kundeID, const QString& anlageNr,
                       const QVariant& messungID) {
    db().Execute("UPDATE 0100_EinleseDaten SET AnlageID = ? WHERE KundeID = ? AND AnlageNr = ? AND "
                 "MessungID <> ? AND NOT EXISTS (SELECT * FROM 0100_Anlage AS A WHERE A.KundeID = ? AND "
                 "A.AnlageID = [0100_EinleseDaten].AnlageID)",
                 {anlageID, kundeID, anlageNr, messungID, kundeID});
}

void prüfungWeitergeben(const QVariant& prüfungID, const QList<QVariant>& messungIDs) {
    for (const QVariant& messungID : messungIDs)
        db().Execute("UPDATE 0100_EinleseDaten SET PrüfungID = ? WHERE MessungID = ?",
                     {prüfungID, messungID});
}

void verteilerWeitergeben(const QVariant& verteilerID, const QVariant& prüfungID, const QString& verteilerNr,
                          const QVariant& messungID) {
    db().Execute("UPDATE 0100_EinleseDaten SET VerteilerID = ? WHERE PrüfungID = ? AND VerteilerNr = ? AND "
                 "MessungID <> ? AND NOT EXISTS (SELECT * FROM 0100_Verteiler AS V WHERE V.PrüfungID = ? AND "
                 "V.VerteilerID = [0100_EinleseDaten].VerteilerID)",
                 {verteilerID, prüfungID, verteilerNr, messungID, prüfungID});
}

void stromkreisWeitergeben(const QVariant& stromkreisID, const QVariant& verteilerID,
                           const QString& stromkreisNr, const QVariant& messungID) {
    db().Execute(
        "UPDATE 0100_EinleseDaten SET StromkreisID = ? WHERE VerteilerID = ? AND StromkreisNr = ? AND "
        "MessungID <> ? AND NOT EXISTS (SELECT * FROM 0100_Stromkreis AS S WHERE S.VerteilerID = ? "
        "AND S.StromkreisID = [0100_EinleseDaten].StromkreisID)",
        {stromkreisID, verteilerID, stromkreisNr, messungID, verteilerID});
}

} // namespace vemo
