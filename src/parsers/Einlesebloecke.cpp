#include "parsers/Einlesebloecke.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "store/Variant.h"

namespace vemo {

Einleseblöcke::Einleseblöcke()
    : m_daten(db().OpenRecordset("0100_EinleseDaten")),
      m_messDaten(db().OpenRecordset("0100_EinleseMessDaten")) {}

qint32 Einleseblöcke::neuerBlock(qint32 geräteID, const QString& verteilerNr, const QString& stromkreisNr) {
    m_daten.AddNew();
    const qint32 messungID = NeueID("", m_daten.Name());
    m_daten.setField("MessungID", messungID);
    m_daten.setField("GeräteID", geräteID);
    m_daten.setField("AnlageNr", QString());
    m_daten.setField("VerteilerNr", verteilerNr);
    m_daten.setField("StromkreisNr", stromkreisNr);
    m_daten.setField("Uhrzeit", QString());
    m_daten.setField("Datum", QString());
    m_daten.Update();
    return messungID;
}

void Einleseblöcke::neuerWert(qint32 messungID, const QString& funktion, const QString& wert,
                              const QString& einheit) {
    m_messDaten.AddNew();
    m_messDaten.setField("MessungID", messungID);
    m_messDaten.setField("wert", wert);
    m_messDaten.setField("Funktion", funktion);
    m_messDaten.setField("Einheit", einheit);
    m_messDaten.Update();
}

std::optional<qint32> Einleseblöcke::letzterBlockMit(const QString& stromkreisNr) {
    if (m_daten.Bof() && m_daten.Eof())
        return std::nullopt;
    m_daten.MoveLast();
    if (m_daten.Text("StromkreisNr") != stromkreisNr)
        return std::nullopt;
    return qint32(ganzzahl(m_daten.Field("MessungID")));
}

QString vierstellig(const QString& nummer) {
    return QString("0000" + nummer).right(4);
}

} // namespace vemo
