#include "Uebernahmeumgebung.h"

#include "takeover/MesswertUebernehmen.h"
#include "takeover/Messzeilen.h"

using namespace vemo;

namespace {

using WerteTest = test::Uebernahmeumgebung;

TEST_F(WerteTest, ControlRowStartsARowOfNoCircuitYet) {
    einlesen({"m_Bemerkung|vorher|", "s_NEW||", "m_Bemerkung|nachher|", "g_ErdRE|<200|Ohm", "s_ANDERS||",
              "m_ErdRE|150|Ohm"});
    sql(R"(INSERT INTO "0100_TeilFunktion" VALUES ('s_ANDERS', 'keine***', ''))");
    übernehmen();
    const QStringList ids = messIDs();
    ASSERT_EQ(ids.size(), 2);
    EXPECT_EQ(reihen("StromkreisID|Bemerkung|ErdRE"), (QStringList{"400|vorher|", "|nachher|150"}));
    EXPECT_EQ(grenzwert("ErdRE", ids[0]) + " " + grenzwert("ErdRE", ids[1]), " <200");
}

} // namespace
