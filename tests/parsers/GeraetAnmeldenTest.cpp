#include "parsers/GeraetAnmelden.h"
#include "store/Recordset.h"
#include "store/Variant.h"
#include "support/Fehlernummer.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

class GerätAnmeldenTest : public test::Testumgebung {
protected:
    // The newest read-in: name, version and instrument.
    QString neueste() const {
        Recordset r = db().OpenRecordset("SELECT * FROM 0100_EinleseGeräteDaten ORDER BY GeräteID DESC");
        return r.Text("PrüfgerätName") + "|" + r.Text("Versionsnummer") + "|" + text(r.Field("PrüfgerätID"));
    }
};

TEST(Kennzeile, NameVersionAndSerialNumber) {
    const Kennung k = kennzeileZerlegen("ZEMAK 3720,V1.02,B,0815-4711");
    EXPECT_EQ(k.name + "|" + k.version.value_or("-") + "|" + k.seriennummer, "ZEMAK 3720|V1.02,B|0815-4711");
    EXPECT_EQ(test::fehlernummer([&] { kennzeileZerlegen("ohne Komma"); }), fehler::UngültigerAufruf);
}

TEST_F(GerätAnmeldenTest, FamiliesDifferOnlyByTheirData) {
    // The command-protocol family starts without the current instrument and remembers the one found.
    modul().aktuellesPrüfgerät = 55;
    modul().dateinameGewählt = "/tmp/alt.txt";
    EXPECT_EQ(GerätAnmelden(familie::Kontalex, {"KONTALEX", "2.1", "118-0042"}), 10000);
    EXPECT_EQ(neueste(), "KONTALEX|2.1|0");
    EXPECT_EQ(anzahl("Prüfgerät"), 0);
    EXPECT_TRUE(m_settings.werte.isEmpty());

    modul().dateinameGewählt.clear();
    Gerätefamilie kontalex = familie::Kontalex;
    kontalex.bezeichnung = "0100-KONTAlex";
    EXPECT_EQ(GerätAnmelden(kontalex, {"KONTALEX", "2.1", "118-0042"}), 10001);
    EXPECT_EQ(wert("SELECT Bezeichnung & '|' & typ FROM Prüfgerät"), "0100-KONTAlex|101");
    EXPECT_EQ(neueste(), "KONTALEX|2.1|10000");
    EXPECT_EQ(modul().aktuellesPrüfgerät, 10000);
    EXPECT_EQ(m_settings.GetSetting("Application", "PrüfgeräteID"), "10000");

    // The query-protocol families name a new instrument as it names itself, and remember nothing.
    m_settings.werte.clear();
    modul().aktuellesPrüfgerät = 55;
    EXPECT_EQ(GerätAnmelden(familie::abfrageprotokoll(105), kennzeileZerlegen("ZEMAK 3720,V1.02,0815")),
              10002);
    EXPECT_EQ(wert("SELECT Bezeichnung & '|' & typ FROM Prüfgerät WHERE Seriennummer = '0815'"),
              "ZEMAK 3720|105");
    EXPECT_EQ(neueste(), "ZEMAK 3720|V1.02|10001");
    EXPECT_TRUE(m_settings.werte.isEmpty());

    modul().dateinameGewählt = "/tmp/alt.ser";
    EXPECT_EQ(GerätAnmelden(familie::abfrageprotokoll(105), {"ZEMAK 3720", "V1.03", "0815"}), 10003);
    EXPECT_EQ(neueste(), "ZEMAK 3720|V1.03|10001"); // known instruments are found from files too
    modul().aktuellesPrüfgerät = 55;
    EXPECT_EQ(GerätAnmelden(familie::abfrageprotokoll(105), {"ZEMAK 3720", "V1.03", "4711"}), 10004);
    EXPECT_EQ(neueste(), "ZEMAK 3720|V1.03|55"); // an unknown one keeps the instrument it started with
    EXPECT_EQ(anzahl("Prüfgerät"), 2);
}

} // namespace
