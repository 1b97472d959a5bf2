#include "logger/Reihenausgabe.h"

#include "core/ModulState.h"
#include "platform/Zahlformat.h"
#include "store/Variant.h"

#include <QJsonArray>

namespace vemo {

namespace {

QList<Messpunkt> punkteLesen(qint32 iddatlog) {
    QList<Messpunkt> punkte;
    for (Recordset p = db().OpenRecordset(
             "SELECT wert, Datum FROM messreihe37 WHERE IDDATLOG = ? ORDER BY Datum, messreihe37ID",
             {iddatlog});
         !p.Eof(); p.MoveNext())
        punkte << Messpunkt{p.Text("wert"), p.Field("Datum").toDateTime()};
    return punkte;
}

} // namespace

std::optional<GespeicherteReihe> reiheDerPrüfung(const QVariant& prüfungID) {
    const Recordset kopf =
        db().OpenRecordset("SELECT * FROM datlog37 WHERE PrüfungID = ? ORDER BY IDDATLOG", {prüfungID});
    if (kopf.Eof())
        return std::nullopt;
    GespeicherteReihe r;
    r.kopf = {kopf.Field("Datum").toDateTime(), kopf.Text("Anzahlmessungen"), kopf.Text("Intervall"),
              kopf.Text("Max"), kopf.Text("Min")};
    r.überschrift = kopf.Text("headline");
    r.diagramm.xText = xText(kopf.Text("xText"));
    r.diagramm.yText = xText(kopf.Text("yText"));
    r.diagramm.reihenNamen = {r.diagramm.yText, QString()};
    for (const Messpunkt& p : punkteLesen(qint32(ganzzahl(kopf.Field("IDDATLOG")))))
        r.diagramm.hinzufügen(0, p);
    return r;
}

QJsonObject reiheAlsJson(qint32 iddatlog) {
    const Recordset kopf = db().OpenRecordset("SELECT * FROM datlog37 WHERE IDDATLOG = ?", {iddatlog});
    if (kopf.Eof())
        return {};
    QJsonArray punkte;
    for (const Messpunkt& p : punkteLesen(iddatlog))
        punkte.append(QJsonObject{{"time", p.zeit.toString(Qt::ISODate)},
                                  {"value", zahlformat::zahl(p.wert).value_or(0)}});
    return {{"inspection", qint64(ganzzahl(kopf.Field("PrüfungID")))},
            {"series", iddatlog},
            {"headline", kopf.Text("headline")},
            {"start", kopf.Field("Datum").toDateTime().toString(Qt::ISODate)},
            {"count", kopf.Text("Anzahlmessungen")},
            {"interval", kopf.Text("Intervall")},
            {"max", kopf.Text("Max")},
            {"min", kopf.Text("Min")},
            {"points", punkte}};
}

} // namespace vemo
