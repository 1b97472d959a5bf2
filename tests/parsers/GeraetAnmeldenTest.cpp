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

} // namespace
