#include "import/Messimport.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "core/Vorbelegung.h"
#include "store/Datenbank.h"

#include <QDate>
#include <QRegularExpression>

namespace vemo {

namespace {

const QString OhneVerteilername = "Neuer Verteiler";

// A type row found by its columns, or added with them; the key of the new row comes from NeueID.
QVariant typFinden(const QString& tabelle, const QString& schlüssel, const QStringList& spalten,
                   const QVector<QVariant>& werte) {
    QStringList bedingungen;
    for (const QString& s : spalten)
        bedingungen << s + " = ?";
    const Recordset gefunden = db().OpenRecordset(
        "SELECT " + schlüssel + " FROM " + tabelle + " WHERE " + bedingungen.join(" AND "), werte);
    if (!gefunden.Eof())
        return gefunden.Field(schlüssel);
    return {};
}

QVariant typAnlegen(const QString& tabelle, const QString& schlüssel,
                    const QList<std::pair<QString, QVariant>>& felder) {
    Recordset rs = db().OpenRecordset(tabelle);
    rs.AddNew();
    const qint32 neu = NeueID("", rs.Name());
    rs.setField(schlüssel, neu);
    for (const auto& [name, wert] : felder)
        rs.setField(name, wert);
    rs.Update();
    return neu;
}

} // namespace

Messimport::Messimport()
    : m_verteiler(db().OpenRecordset("0100_Verteiler")), m_stromkreis(db().OpenRecordset("0100_Stromkreis")),
      m_messung(db().OpenRecordset("0100_Messung")) {}

void Messimport::einlesen(const Messtext& text, const QVariant& prüfungID, const QVariant& datum) {
    QHash<QString, QVariant> verteilerNachCode;
    QHash<QString, QVariant> stromkreisNachPlatz;
    for (const Messkreis& k : text.kreise) {
        if (!verteilerNachCode.contains(k.verteilerCode))
            verteilerNachCode.insert(
                k.verteilerCode,
                verteiler(k.verteilerCode, text.verteilernamen.value(k.verteilerCode), prüfungID));
        const QString platz = k.verteilerCode + "/" + k.stromkreisCode;
        if (!stromkreisNachPlatz.contains(platz))
            stromkreisNachPlatz.insert(platz, stromkreis(k, verteilerNachCode.value(k.verteilerCode)));
        messung(k, stromkreisNachPlatz.value(platz), datum);
    }
}

QVariant Messimport::verteiler(const QString& code, const QString& name, const QVariant& prüfungID) {
    m_verteiler.AddNew();
    const qint32 neu = NeueID("", m_verteiler.Name());
    m_verteiler.setField("VerteilerID", neu);
    NeueZeileVorbelegen("Verteiler", m_verteiler, prüfungID);
    m_verteiler.setField("PrüfungID", prüfungID);
    m_verteiler.setField("Code", code);
    m_verteiler.setField("Name", name.isEmpty() ? OhneVerteilername : name);
    m_verteiler.Update();
    return neu;
}

QVariant Messimport::stromkreis(const Messkreis& k, const QVariant& verteilerID) {
    m_stromkreis.AddNew();
    const qint32 neu = NeueID("", m_stromkreis.Name());
    m_stromkreis.setField("StromkreisID", neu);
    NeueZeileVorbelegen("Stromkreis", m_stromkreis, verteilerID);
    m_stromkreis.setField("VerteilerID", verteilerID);
    m_stromkreis.setField("Code", k.stromkreisCode);
    m_stromkreis.setField("Name", k.name);
    m_stromkreis.setField("KabelTypID", kabeltyp(k.kabel));
    m_stromkreis.setField("SicherungsTypID", sicherungstyp(k.sicherung));
    m_stromkreis.setField("RCDTypID", rcdtyp(k.fiStrom, k.fiArt));
    m_stromkreis.Update();
    return neu;
}

void Messimport::messung(const Messkreis& k, const QVariant& stromkreisID, const QVariant& datum) {
    m_messung.AddNew();
    m_messung.setField("MessID", NeueID("", m_messung.Name()));
    m_messung.setField("StromkreisID", stromkreisID);
    m_messung.setField("Datum", datum.toDate().toString("dd.MM.yyyy"));
    for (size_t i = 0; i < k.werte.size(); ++i)
        if (!k.werte[i].isEmpty())
            m_messung.setField(Messtextwerte[i], k.werte[i]);
    m_messung.Update();
}

QVariant Messimport::gemerkt(const QString& merker, const std::function<QVariant()>& findenOderAnlegen) {
    const auto it = m_typen.constFind(merker);
    if (it != m_typen.constEnd())
        return *it;
    const QVariant id = findenOderAnlegen();
    m_typen.insert(merker, id);
    return id;
}

// "NYM-J 3x1,5": the kind before the blank, conductors and cross-section after it.
QVariant Messimport::kabeltyp(const QString& name) {
    if (name.isEmpty())
        return 0;
    return gemerkt("Kabeltyp|" + name.toLower(), [&] {
        const QVariant id = typFinden("0100_Kabeltyp", "KabeltypID", {"Name"}, {name});
        if (id.isValid())
            return id;
        static const QRegularExpression leiter("(\\d+)\\s*[xX]\\s*([\\d,.]+)");
        const auto t = leiter.match(name);
        return typAnlegen("0100_Kabeltyp", "KabeltypID",
                          {{"Name", name},
                           {"art", name.section(' ', 0, 0)},
                           {"Anzahl_Leiter", t.hasMatch() ? QVariant(t.captured(1).toInt()) : QVariant()},
                           {"Querschnitt", t.hasMatch() ? t.captured(2) : QString()}});
    });
}

// "B16": the characteristic in letters, the rated current in digits.
QVariant Messimport::sicherungstyp(const QString& name) {
    if (name.isEmpty())
        return 0;
    return gemerkt("Sicherungstyp|" + name.toLower(), [&] {
        const QVariant id = typFinden("0100_Sicherungstyp", "SicherungstypID", {"Name"}, {name});
        if (id.isValid())
            return id;
        static const QRegularExpression teile("^([^\\d]*)([\\d,.]*)");
        const auto t = teile.match(name);
        return typAnlegen("0100_Sicherungstyp", "SicherungstypID",
                          {{"Name", name},
                           {"Charakteristik", t.captured(1).trimmed()},
                           {"NennStrom", t.captured(2)},
                           {"Bezeichnung", name}});
    });
}

QVariant Messimport::rcdtyp(const QString& strom, const QString& art) {
    if (strom.isEmpty() && art.isEmpty())
        return 0;
    return gemerkt("RCDtyp|" + strom.toLower() + "|" + art.toLower(), [&] {
        const QVariant id = typFinden("0100_RCDtyp", "RCDtypID", {"Nennfehlerstrom", "Art"}, {strom, art});
        if (id.isValid())
            return id;
        return typAnlegen("0100_RCDtyp", "RCDtypID",
                          {{"Name", ("FI " + strom + " mA " + art).simplified()},
                           {"Nennfehlerstrom", strom},
                           {"Art", art}});
    });
}

} // namespace vemo
