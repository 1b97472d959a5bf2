#include "parsers/GeraetAnmelden.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "parsers/Dumpkopf.h"
#include "platform/SettingsStore.h"
#include "platform/Zahlformat.h"
#include "store/Literal.h"
#include "store/Recordset.h"
#include "store/Variant.h"

namespace vemo {
namespace {

void alsLetztesPrüfgerätMerken(const Gerätefamilie& familie, double prüfgerätID) {
    if (familie.einstellungMerken)
        settings().SaveSetting("Application", "PrüfgeräteID", zahlformat::text(prüfgerätID));
}

// The instrument of this read-in from now on: the current one of the component and that of the row.
void alsAktuellesPrüfgerät(Recordset& geräteDaten, double prüfgerätID) {
    modul().aktuellesPrüfgerät = prüfgerätID;
    geräteDaten.setField("PrüfgerätID", prüfgerätID);
}

double registrieren(Recordset& prüfgeräte, const Gerätefamilie& familie, const Recordset& geräteDaten) {
    prüfgeräte.AddNew();
    const qint32 id = NeueID("", prüfgeräte.Name());
    prüfgeräte.setField("PrüfgerätID", id);
    prüfgeräte.setField("Bezeichnung", familie.bezeichnung.isEmpty() ? geräteDaten.Text("PrüfgerätName")
                                                                     : xText(familie.bezeichnung));
    prüfgeräte.setField("typ", familie.typ);
    prüfgeräte.setField("Seriennummer", geräteDaten.Text("Seriennummer"));
    prüfgeräte.setField("Inventarnummer", QString());
    prüfgeräte.Update();
    return id;
}

} // namespace

QString kennungName(const QString& zeile) {
    const qsizetype erstes = zeile.indexOf(',');
    if (erstes < 0)
        throw fehler::mit(fehler::UngültigerAufruf);
    return zeile.left(erstes);
}

QString kennungVersion(const QString& zeile) {
    const qsizetype erstes = zeile.indexOf(',');
    const qsizetype letztes = zeile.lastIndexOf(',');
    if (erstes < 0 || letztes == erstes)
        throw fehler::mit(fehler::UngültigerAufruf);
    return zeile.mid(erstes + 1, letztes - erstes - 1);
}

QString kennungSeriennummer(const QString& zeile) {
    return zeile.mid(zeile.lastIndexOf(',') + 1);
}

Kennung kennzeileZerlegen(const QString& zeile) {
    return {kennungName(zeile), kennungVersion(zeile), kennungSeriennummer(zeile)};
}

std::optional<qint32> GerätAnmelden(const Gerätefamilie& familie, const Kennung& kennung) {
    Recordset geräteDaten = db().OpenRecordset("0100_EinleseGeräteDaten");
    geräteDaten.AddNew();
    const qint32 geräteID = NeueID("", geräteDaten.Name());
    geräteDaten.setField("GeräteID", geräteID);
    geräteDaten.setField("PrüfgerätName", familie.name.isEmpty() ? kennung.name : familie.name);
    geräteDaten.setField("Seriennummer", kennung.seriennummer);
    if (kennung.version)
        geräteDaten.setField("Versionsnummer", *kennung.version);
    if (familie.mitAktuellemPrüfgerät)
        geräteDaten.setField("PrüfgerätID", modul().aktuellesPrüfgerät);

    // The serial number is the instrument's own text: as a literal it is only ever compared.
    Recordset prüfgeräte =
        db().OpenRecordset("SELECT * FROM Prüfgerät WHERE Seriennummer = " + literal(kennung.seriennummer));
    if (!prüfgeräte.Eof()) {
        const double gefunden = zahl(prüfgeräte.Field("PrüfgerätID"));
        alsAktuellesPrüfgerät(geräteDaten, gefunden);
        alsLetztesPrüfgerätMerken(familie, gefunden);
    } else if (modul().dateinameGewählt.isEmpty()) {
        // Only what came over the serial line is the user's own instrument; a saved file may come
        // from anywhere, and its instrument stays out of the register.
        if (familie.ohneSeriennummerKopfFehlt && kennung.seriennummer.trimmed().isEmpty()) {
            kopfFehlt();
            return std::nullopt;
        }
        const double neu = registrieren(prüfgeräte, familie, geräteDaten);
        alsAktuellesPrüfgerät(geräteDaten, neu);
        alsLetztesPrüfgerätMerken(familie, neu);
    }
    geräteDaten.Update();
    return geräteID;
}

} // namespace vemo
