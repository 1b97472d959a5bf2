#include "import/Pruefungsdaten.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "core/Vorbelegung.h"
#include "import/Altdatum.h"
#include "store/Datenbank.h"
#include "store/Variant.h"

#include <QRegularExpression>
#include <array>

namespace vemo {

namespace {

struct Spalte {
    const char* ziel;
    const char* quelle;
};

// Column of 0100_Prüfung from column of the old table kunden, which is named after the control of
// the old input mask that held it.
constexpr Spalte spalten[]{
    {"AuftragNr", "Auftragsnr"},
    {"Grund1", "kopf_Check3d10"},
    {"Grund2", "kopf_Check3d11"},
    {"Grund3", "kopf_Check3d12"},
    {"Grund4", "kopf_Check3d13"},
    {"Besichtigung1", "Besichtigung_check3d1"},
    {"Besichtigung2", "Besichtigung_check3d2"},
    {"Besichtigung3", "Besichtigung_check3d3"},
    {"Besichtigung4", "Besichtigung_check3d4"},
    {"Besichtigung5", "Besichtigung_check3d5"},
    {"Besichtigung6", "Besichtigung_check3d6"},
    {"Besichtigung7", "Besichtigung_check3d7"},
    {"Besichtigung8", "Besichtigung_check3d8"},
    {"Besichtigung9", "Besichtigung_check3d9"},
    {"Besichtigung10", "Besichtigung_check3d10"},
    {"Besichtigung11", "Besichtigung_check3d11"},
    {"Besichtigung12", "Besichtigung_check3d12"},
    {"Besichtigung13", "Besichtigung_check3d13"},
    {"Besichtigung16", "Besichtigung_check3d14"},
    {"Besichtigung17", "Besichtigung_check3d15"},
    {"Besichtigung14", "Besichtigung_check3d16"},
    {"Besichtigung15", "Besichtigung_check3d17"},
    {"BesichtigungText16", "besichtigung_maskedEdit1"},
    {"BesichtigungText17", "besichtigung_maskedEdit2"},
    {"ErprobungBemerkung", "Erprobung_MaskedEdit1"},
    {"Erdungswiderstand", "Form1_MaskedEdit1"},
    {"SchutzleiterOK", "Form1_check3d1"},
    {"erledigt", "Reserve1"},
    {"ZählerNr", "kopf_label2"},
    {"checkSchaltungsunterlagen", "kopf_Check3d1"},
    {"CheckTN", "kopf_Check3d3"},
    {"CheckTT", "kopf_Check3d4"},
    {"CheckIT", "kopf_Check3d5"},
    {"TextDIN4", "Pruefung_nach"},
    {"Erprobung1", "Erprobung_check3d2"},
    {"Erprobung2", "Erprobung_check3d3"},
    {"Erprobung3", "Erprobung_check3d4"},
    {"Erprobung4", "Erprobung_check3d5"},
    {"Erprobung5", "Erprobung_check3d6"},
    {"Erprobung6", "Erprobung_check3d7"},
    {"Erprobung6Text", "Erprobung_maskedEdit2"},
    {"echeck1", "Erprobung_check3d9"},
    {"echeck2", "Erprobung_check3d10"},
    {"echeck3", "Erprobung_check3d11"},
    {"echeck4", "Erprobung_check3d12"},
    {"Status", "Form1_check3d3"},
    {"PlaketteEigeklebt", "Form1_check3d4"},
    {"ProtokollNr", "Puefprot_Nr"},
    {"ISOBusleitung", "Form1_MaskedEdit2"},
    {"DurchgängigkeitBus", "Form1_check3d2"},
    {"Netzspannung", "Netzspannung"},
    {"Zählerstand", "kopf_label3"},
    {"CheckEIB", "kopf_Check3d2"},
    {"CheckDIN3", "kopf_Check3d6"},
    {"CheckDIN1", "kopf_Check3d7"},
    {"CheckDIN4", "kopf_Check3d8"},
    {"CheckDIN2", "kopf_Check3d9"},
    {"Bemerkung", "Reserve2"},
    {"PrüferName", "Prüfer"},
};

// The name of each test instrument: two fields of the old mask, the first one with the serial
// number and the instrument line of the first measurement mask.
const std::array<QStringList, 4> prüfgeräte{{
    {"Form1_MaskedEdit3", "Form1_MaskedEdit5", "Seriennummer", "Messung_1_Label14"},
    {"Form1_MaskedEdit4", "Form1_MaskedEdit6"},
    {"Form1_MaskedEdit7", "Form1_MaskedEdit9"},
    {"Form1_MaskedEdit8", "Form1_MaskedEdit10"},
}};

QString prüfgerätName(const Quellzeile& z, const QStringList& felder) {
    QStringList teile;
    for (const QString& f : felder)
        teile << z.text(f).trimmed();
    return teile.join(' ').simplified();
}

QString erprobungText(const Quellzeile& z) {
    QStringList teile;
    for (int i = 3; i <= 6; ++i)
        teile << z.text(QString("Erprobung_Text%1").arg(i));
    return teile.join(" \r\n");
}

} // namespace

QVariant prüfdatum(const Quellzeile& z) {
    return altesDatum(z.feld("Pruefdatum"));
}

Pruefungsdaten::Pruefungsdaten()
    : m_prüfungen(db().OpenRecordset("0100_Prüfung")),
      m_betriebsmittel(db().OpenRecordset("0100_Betriebsmittel")) {}

QVariant Pruefungsdaten::prüfung(const Quellzeile& z, const QVariant& anlageID) {
    const QVariant datum = prüfdatum(z);
    m_prüfungen.AddNew();
    const qint32 neu = NeueID("", m_prüfungen.Name());
    m_prüfungen.setField("PrüfungID", neu);
    NeueZeileVorbelegen("Prüfung", m_prüfungen, anlageID);
    m_prüfungen.setField("AnlagenID", anlageID);
    // A column left without a value keeps the default of a new inspection.
    for (const Spalte& s : spalten)
        if (!istLeer(z.feld(s.quelle)))
            m_prüfungen.setField(s.ziel, z.feld(s.quelle));
    ProtokollNrGeschrieben(m_prüfungen.Field("ProtokollNr"));
    m_prüfungen.setField("echecktext", erprobungText(z));
    for (size_t i = 0; i < prüfgeräte.size(); ++i)
        m_prüfungen.setField(QString("PrüfgerätName%1").arg(i + 1), prüfgerätName(z, prüfgeräte[i]));
    if (!istLeer(datum))
        m_prüfungen.setField("Datum", datum);
    m_prüfungen.Update();
    return neu;
}

// The old equipment table is a text: one line a row, its cells separated by tabs; an empty cell
// gives no row.
void Pruefungsdaten::betriebsmittel(const Quellzeile& z, const QVariant& prüfungID) {
    static const QRegularExpression zeilenende("\r\n|\n|\r");
    const QStringList zeilen = z.text("Betriebsmittel").split(zeilenende);
    for (int zeile = 0; zeile < zeilen.size(); ++zeile) {
        const QStringList zellen = zeilen[zeile].split('\t');
        for (int spalte = 0; spalte < zellen.size(); ++spalte) {
            if (zellen[spalte].trimmed().isEmpty())
                continue;
            m_betriebsmittel.AddNew();
            m_betriebsmittel.setField("BetriebsmittelID", NeueID("", m_betriebsmittel.Name()));
            m_betriebsmittel.setField("PrüfungID", prüfungID);
            m_betriebsmittel.setField("Zeile", zeile + 1);
            m_betriebsmittel.setField("Spalte", spalte + 1);
            m_betriebsmittel.setField("inhalt", zellen[spalte]);
            m_betriebsmittel.Update();
        }
    }
}

} // namespace vemo
