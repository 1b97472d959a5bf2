#include "takeover/ErdWert.h"

#include "core/ModulState.h"
#include "platform/Zahlformat.h"

namespace vemo {
namespace {

// ErdRE of the first row of a saved query over the inspection's measurements, largest first.
QString größterWert(const QString& abfrage, const QVariant& prüfungID) {
    QueryDef q = db().QueryDefs(abfrage);
    q.Parameters("paraPrüfungID") = prüfungID;
    const Recordset rs = q.OpenRecordset();
    return rs.Eof() ? QString() : rs.Text("ErdRE");
}

// Values carry a decimal comma or point; a text that is no number counts as 0.
double vergleichszahl(const QString& wert) {
    return zahlformat::zahl(wert).value_or(zahlformat::val(QString(wert).replace(',', '.')));
}

} // namespace

QString GetErdWertMax(const QVariant& prüfungID) {
    const QString wert = größterWert("A_GrösterErdReWert", prüfungID);
    const QString überlauf = größterWert("A_GrösterErdReÜberlauf", prüfungID);
    if (überlauf.isEmpty())
        return wert;
    return vergleichszahl(überlauf.mid(1)) > vergleichszahl(wert) ? überlauf : wert;
}

} // namespace vemo
