#include "parsers/GeraetAnmelden.h"
#include "support/Fehlernummer.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

TEST(Kennzeile, NameVersionAndSerialNumber) {
    const Kennung k = kennzeileZerlegen("ZEMAK 3720,V1.02,B,0815-4711");
    EXPECT_EQ(k.name + "|" + k.version.value_or("-") + "|" + k.seriennummer, "ZEMAK 3720|V1.02,B|0815-4711");
    EXPECT_EQ(test::fehlernummer([&] { kennzeileZerlegen("ohne Komma"); }), fehler::UngültigerAufruf);
}

} // namespace
