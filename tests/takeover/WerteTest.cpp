#include "Uebernahmeumgebung.h"

#include "takeover/MesswertUebernehmen.h"
#include "takeover/Messzeilen.h"

using namespace vemo;

namespace {

using WerteTest = test::Uebernahmeumgebung;

TEST_F(WerteTest, EveryBlockStartsOnANewRowOfTheCurrentCircuit) {
    sql(R"(INSERT INTO "0100_Messung" (MessID, StromkreisID, LOW) VALUES (1, 400, '0,1'))");
    einlesen({"LOW Ohm|0,2|Ohm", "R ISO, M, R|0,5|GOhm", "Spannung f|50|Hz"});
    übernehmen();
    EXPECT_EQ(reihen("LOW|RISO|Frequenz|StromkreisID"), (QStringList{"0,1|||400", "0,2|500|50|400"}));

    // A block without values adds nothing. A bare "3" of a phase rotation is no direction; a
    // sequence the mapping does not know is kept as it came.
    übernehmen(7);
    EXPECT_EQ(anzahl("0100_Messung"), 2);
    einlesen({"Phase|3|"}, 2);
    einlesen({"PHASE ROTATION, M, P.R.|L1 L3 L2|"}, 3);
    übernehmen(2);
    übernehmen(3);
    EXPECT_EQ(spalte("DREH").mid(2), (QStringList{"", "L1 L3 L2"}));
}

TEST_F(WerteTest, RepeatedValuesSpreadOverRows) {
    einlesen({"m_Bemerkung|L1-N|", "m_Bemerkung|L2-N|", "m_Gibtsnicht|9|", "Z LOOP, M, Z|0,31|Ohm",
              "Z LOOP, M, Isc|0,74|KA", "Z LOOP, M, Z|0,35|Ohm"});
    übernehmen();
    EXPECT_EQ(reihen("Bemerkung|LOOPRS|LoopIKRS"), (QStringList{"L1-N||", "L2-N|0,31|740", "|0,35|"}));
}

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
