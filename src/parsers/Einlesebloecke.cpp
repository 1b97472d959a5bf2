#include "parsers/Einlesebloecke.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "store/Variant.h"

namespace vemo {

Einleseblöcke::Einleseblöcke()
    : m_daten(db().OpenRecordset("0100_EinleseDaten")),
      m_messDaten(db().OpenRecordset("0100_EinleseMessDaten")) {}

qint32 Einleseblöcke::neuerBlock(qint32 geräteID, const Blockkopf& kopf) {
    m_daten.AddNew();
    const qint32 messungID = NeueID("", m_daten.Name());
    m_daten.setField("MessungID", messungID);
    m_daten.setField("GeräteID", geräteID);
    m_daten.setField("KundeNr", kopf.kundeNr);
    m_daten.setField("AnlageNr", kopf.anlageNr);
    m_daten.setField("VerteilerNr", kopf.verteilerNr);
    m_daten.setField("StromkreisNr", kopf.stromkreisNr);
    m_daten.setField("Uhrzeit", kopf.uhrzeit);
    m_daten.setField("Datum", kopf.datum);
    m_daten.Update();
    return messungID;
}

qint32 Einleseblöcke::neuerBlock(qint32 geräteID, const QString& verteilerNr, const QString& stromkreisNr) {
    return neuerBlock(geräteID, {{}, {}, verteilerNr, stromkreisNr, {}, {}});
}

void Einleseblöcke::neuerWert(qint32 messungID, const QVariant& funktion, const QVariant& wert,
                              const QVariant& einheit) {
    m_messDaten.AddNew();
    m_messDaten.setField("MessungID", messungID);
    if (wert.isValid())
        m_messDaten.setField("wert", wert);
    if (funktion.isValid())
        m_messDaten.setField("Funktion", funktion);
    if (einheit.isValid())
        m_messDaten.setField("Einheit", einheit);
    m_messDaten.Update();
}

QString vierstellig(const QString& nummer) {
    return QString("0000" + nummer).right(4);
}

} // namespace vemo
