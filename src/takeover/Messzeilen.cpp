#include "takeover/Messzeilen.h"

#include "core/Laufschluessel.h"
#include "core/Schluesselvergabe.h"

namespace vemo {

void NewMessung(Recordset& rsMessung) {
    weitereZeile(rsMessung);
    rsMessung.Update();
    zurLetztenÄnderung(rsMessung);
}

void weitereZeile(Recordset& rsMessung) {
    rsMessung.AddNew();
    rsMessung.setField("MessID", NeueID("", rsMessung.Name()));
    rsMessung.setField("StromkreisID", laufschlüssel().stromkreisID);
}

void zeileFürSpalte(Recordset& rsMessung, const QString& spalte) {
    if (rsMessung.Text(spalte).isEmpty())
        rsMessung.Edit();
    else
        weitereZeile(rsMessung);
}

void feldSchreiben(Recordset& rs, const QString& spalte, const QVariant& wert) {
    rs.Edit();
    rs.setField(spalte, wert);
    rs.Update();
}

void zurLetztenÄnderung(Recordset& rs) {
    rs.setBookmark(rs.LastModified());
}

} // namespace vemo
