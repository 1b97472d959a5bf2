#include "takeover/MesswertUebernehmenZertifikat.h"

#include "core/ModulState.h"
#include "platform/Zahlformat.h"
#include "store/Recordset.h"
#include "store/Transaktion.h"
#include "store/Variant.h"
#include "takeover/ProcMax.h"

#include <functional>
#include <map>

namespace vemo {
namespace {

// The mapping of one block: what a "Store" row kept for the rows that follow it.
struct Zertifikatslauf {
    Zertifikatsschlüssel schlüssel;
    QVariant gespeichert;
};

using Prozedur = std::function<void(Zertifikatslauf&, const Zertifikatswert&)>;

const std::map<QString, Prozedur>& prozeduren() {
    static const std::map<QString, Prozedur> p{
        {"Store", [](Zertifikatslauf& l, const Zertifikatswert& w) { l.gespeichert = w.wert; }},
        {"Max", [](Zertifikatslauf& l, const Zertifikatswert& w) { ProcMaxMin(true, w, l.schlüssel); }},
        {"Min", [](Zertifikatslauf& l, const Zertifikatswert& w) { ProcMaxMin(false, w, l.schlüssel); }},
        {"MaxBoard", [](Zertifikatslauf& l,
                        const Zertifikatswert& w) { ProcMaxMinBoard(true, w, l.schlüssel.verteilerID); }},
        {"MaxRoot", [](Zertifikatslauf& l,
                       const Zertifikatswert& w) { ProcMaxMinRoot(true, w, l.schlüssel.prüfungID); }},
    };
    return p;
}

void prozedurAusführen(Zertifikatslauf& l, const QString& prozedur, const Zertifikatswert& w) {
    if (const auto p = prozeduren().find(prozedur); p != prozeduren().end())
        p->second(l, w);
    else if (const RcdHandler* h = rcdHandlerFür(prozedur))
        ProcMaxRcd(*h, l.gespeichert, w, l.schlüssel);
}

// The values in the order the instrument sent them, since a factor row refers to the time before
// it. The inner join drops every function the certificate does not name.
Recordset zuordnungÖffnen(const QVariant& messungID) {
    return db().OpenRecordset(
        "SELECT [0100_EinleseMessDaten].Funktion, [0100_EinleseMessDaten].Wert, "
        "[0100_EinleseMessDaten].Einheit, [0100_TeilfunktionUK].Tabelle, [0100_TeilfunktionUK].SpaltenName, "
        "[0100_TeilfunktionUK].Prozedur, [0100_TeilfunktionUK].Zertifikat, [0100_EinleseMessDaten].MessungID "
        "FROM 0100_EinleseMessDaten INNER JOIN 0100_TeilfunktionUK ON [0100_EinleseMessDaten].Funktion = "
        "[0100_TeilfunktionUK].TeilFunktion WHERE Zertifikat = '" +
        ZertifikatNiceic + "' AND MessungID = " + text(messungID) +
        " ORDER BY [0100_EinleseMessDaten].rowid, [0100_TeilfunktionUK].TeilfunktionUKID");
}

// The certificate records the prospective fault current in kA, and values are compared without
// their unit: a current an instrument gives in A goes over to kA first, its sign kept, or 657 A
// would beat 0,82 kA.
bool istFehlerstromspalte(const QString& spalte) {
    return spalte.compare("IpfMax", Qt::CaseInsensitive) == 0;
}

QVariant inKiloampere(const QVariant& wert, const QString& einheit) {
    if (einheit.trimmed().compare("A", Qt::CaseInsensitive) != 0)
        return wert;
    QString w = text(wert).trimmed();
    QString zeichen;
    if (w.startsWith('>') || w.startsWith('<')) {
        zeichen = w.left(1);
        w = w.mid(1).trimmed();
    }
    const auto ampere = zahlformat::zahl(w);
    return ampere ? QVariant(zeichen + zahlformat::text(*ampere / 1000)) : wert;
}

Zertifikatswert zertifikatswert(const Recordset& rs) {
    Zertifikatswert w{rs.Text("tabelle"), rs.Text("spaltenname"), rs.Field("wert")};
    if (istFehlerstromspalte(w.spaltenname))
        w.wert = inKiloampere(w.wert, rs.Text("einheit"));
    return w;
}

void zuordnen(const QVariant& messungID, const Zertifikatsschlüssel& schlüssel) {
    Zertifikatslauf lauf{schlüssel, {}};
    for (Recordset rs = zuordnungÖffnen(messungID); !rs.Eof(); rs.MoveNext())
        prozedurAusführen(lauf, rs.Text("prozedur"), zertifikatswert(rs));
}

qint64 schlüssel(const QVariant& v) {
    return istLeer(v) ? 0 : ganzzahl(v);
}

} // namespace

void MesswertÜbernehmenZertifikat(const QVariant& messungID, const QVariant& stromkreisID,
                                  const QVariant& verteilerID, const QVariant& prüfungID) {
    try {
        zuordnen(messungID, {schlüssel(stromkreisID), schlüssel(verteilerID), schlüssel(prüfungID)});
    } catch (const Fehler& f) {
        // A column the mapping names wrongly: the mapping ends here. The store failing is no bad
        // mapping: it ends the row, which stays read in.
        if (istSpeicherausfall(f))
            throw;
    } catch (const std::exception&) {
    }
}

} // namespace vemo
