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

// The command-protocol family starts without the current instrument; a query-protocol family keeps
// the one it started with for an instrument the register does not know, read from a file.
// Registering and finding an instrument are each family's read-in tests' (FremdtextTest for all).
TEST_F(GerätAnmeldenTest, OnlyTheQueryProtocolFamiliesStartWithTheCurrentInstrument) {
    modul().aktuellesPrüfgerät = 55;
    modul().dateinameGewählt = "/tmp/alt.ser";
    EXPECT_EQ(GerätAnmelden(familie::Kontalex, {"KONTALEX", "2.1", "118-0042"}), 10000);
    EXPECT_EQ(neueste(), "KONTALEX|2.1|0");
    EXPECT_EQ(GerätAnmelden(familie::abfrageprotokoll(105), {"ZEMAK 3720", "V1.03", "4711"}), 10001);
    EXPECT_EQ(neueste(), "ZEMAK 3720|V1.03|55");
    EXPECT_EQ(anzahl("Prüfgerät"), 0);
    EXPECT_TRUE(m_settings.werte.isEmpty());
}

} // namespace
