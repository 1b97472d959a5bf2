#include "Uebernahmeumgebung.h"

#include "platform/Zahlformat.h"

using namespace vemo;

namespace {

using RcdTest = test::Uebernahmeumgebung;

// Blocks with their factor row are the Corvex sample's road (UebernahmeTest); without one, a
// selective test is still marked and another has no factor.
TEST_F(RcdTest, BlocksWithMeasuredCurrentAndTouchVoltage) {
    einlesen({"IdRCD S|180°|", "IdRCD S|30|mA", "Id|22|mA", "t|30|ms", "U|2|V"});
    übernehmen();
    einlesen({"VcRCD mA|100|mA", "Vc|1,5|V", "Re|15|Ohm"}, 2);
    übernehmen(2);
    EXPECT_EQ(reihen("FGRAD|FIIDN|FIFaktor|FIIMESS|FIT|FIUB|FIRE"),
              (QStringList{"180°|30|S|22|30|2|", "|100||||1,5|15"}));
}

TEST_F(RcdTest, FollowingTestsTakeTheSettingsOfTheRowBefore) {
    // Without a row before, the settings stay empty.
    einlesen({"Id|26|mA", "t|35|ms", "Ub|3|V"});
    übernehmen();
    EXPECT_EQ(reihen("FIIMESS|FIIDN"), QStringList{"26|"});

    sql(R"(UPDATE "0100_Messung" SET FGRAD = 'AC 0°', FIIDN = '30', FIFaktor = 'x1', FIIMESS = '27')");
    einlesen({"Id|26|mA", "t|35|ms", "Ub|3|V"}, 2);
    übernehmen(2);
    einlesen({"t|41|ms", "Ub|3,5|V"}, 3);
    übernehmen(3);
    einlesen({"Ub|4|V", "Re|133|Ohm"}, 4);
    übernehmen(4);
    // The row before the circuit's newest is the one of the block before.
    EXPECT_EQ(reihen("FGRAD|FIIDN|FIFaktor|FIIMESS|FIT|FIUB|FIRE"),
              (QStringList{"AC 0°|30|x1|27|35|3|", "AC 0°|30|x1|26|35|3|", "AC 0°|30|x1|26|41|3,5|",
                           "|30|x1|||4|133"}));
}

TEST_F(RcdTest, PairsConvertTheSecondValueByItsOwnName) {
    sql(R"(INSERT INTO "0100_TeilFunktion" VALUES ('IdN', 'FIIDN', 'mA'))");
    einlesen({"T180|25|ms", "IdN|0,03|A"});
    übernehmen();
    einlesen({"Ub|4|V", "Id|0,02|A"}, 2);
    übernehmen(2);
    einlesen({"FI UB mA|300|mA", "FI UB|12|V"}, 3);
    übernehmen(3);
    EXPECT_EQ(reihen("FIT|FIIDN|FIUB"), (QStringList{"25|30|", "|20|4", "|300|12"}));
}

TEST_F(RcdTest, SettingRowsOfTheirOwn) {
    einlesen({"m_FIFaktor|x1|", "RCD t, E, type :||Selective", "RCD t, E, phase:||180°", "FI Halbwelle|neg|",
              "RCD I, E, type :||General"});
    übernehmen();
    EXPECT_EQ(reihen("FIFaktor|FGRAD"), QStringList{"S x1|180° neg"});
}

// The limit row is made after the settings behind the head have been gathered, so that the trip
// times follow the factor (the 37xx samples' road shows it). A selective type puts its mark before
// the factor; a limit with its sign keeps it. No rated current, no earth resistance limit.
TEST_F(RcdTest, TouchVoltageLimitAfterTheSettingsScan) {
    einlesen({"RCD Uc, G, Ub|<25|V", "FI Faktor|x1|", "RCD Uc, E, type :||Selective"});
    übernehmen();
    EXPECT_EQ(spalte("FIFaktor"), QStringList{"S x1"});
    EXPECT_EQ(grenzwerte("FIUB|FIRE|FIT MIN", messIDs().value(0)), "<25||>130");
}

TEST_F(RcdTest, FiUlGivesOneRowPerTimingPair) {
    einlesen({"FI UL|50|V", "FI Faktor|x1|", "FI Halbwelle|pos|", "FI tmess mA|15|mA", "FI tmess ms|20|ms",
              "FI tmess mA|16|mA", "FI tmess ms|22|ms", "RCD t, E, Idn|30|mA"});
    übernehmen();
    const QStringList ids = messIDs();
    ASSERT_EQ(ids.size(), 2);
    EXPECT_EQ(reihen("FIFaktor|FGRAD|FIT|FIIDN"), (QStringList{"x1|pos|20|", "||22|30"}));
    EXPECT_EQ(grenzwerte("FIUB|FIRE", ids[1]), "<50|<1666.7");
}

QStringList autoReiheHalbZuerst(const QString& art) {
    return {
        "RCD AUTO, M, x1/2    0|>300|ms", "RCD AUTO, M, x1/2  180|>300|ms", "RCD AUTO, M, x1      0|24|ms",
        "RCD AUTO, M, x1    180|26|ms",   "RCD AUTO, M, x5      0|8|ms",    "RCD AUTO, M, x5    180|9|ms",
        "RCD AUTO, M, Ub|3,1|V",          "RCD AUTO, E, Idn|30|mA",         "RCD AUTO, E, type :||" + art};
}

// The six rows of a series: time, factor and phase, the rated current; the touch voltage on the last.
const QStringList autoReihen{">300|x1/2|0°|30|", ">300|x1/2|180°|30|", "24|x1|0°|30|",
                             "26|x1|180°|30|",   "8|x5|0°|30|",        "9|x5|180°|30|3,1"};

QStringList selektiv(const QStringList& faktoren) {
    QStringList s;
    for (const QString& f : faktoren)
        s << "S " + f;
    return s;
}

const QStringList autoFaktoren{"x1/2", "x1/2", "x1", "x1", "x5", "x5"};

TEST_F(RcdTest, RcdAutoWithHalfFirstFillsSixRows) {
    einlesen(autoReiheHalbZuerst("General") << "m_Bemerkung|Reihe 1|");
    übernehmen();
    EXPECT_EQ(reihen("FIT|FIFaktor|FGRAD|FIIDN|FIUB"), autoReihen);
    EXPECT_EQ(spalte("StromkreisID"), QStringList(6, "400"));
    // The series leaves its last row current.
    EXPECT_EQ(spalte("Bemerkung"), (QStringList{"", "", "", "", "", "Reihe 1"}));

    einlesen(autoReiheHalbZuerst("Selective"), 2);
    übernehmen(2);
    EXPECT_EQ(spalte("FIFaktor").mid(6), selektiv(autoFaktoren));
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

TEST_F(RcdTest, RcdAutoWithHalfFirstThatEndsEarlyOrLate) {
    // Three times, then the touch voltage: the series is short and ends the mapping.
    einlesen({"RCD AUTO, M, x1/2    0|>300|ms", "RCD AUTO, M, x1/2  180|>300|ms",
              "RCD AUTO, M, x1      0|24|ms", "RCD AUTO, M, Ub|3,1|V", "RCD AUTO, E, Idn|30|mA",
              "m_Bemerkung|nicht mehr|"});
    übernehmen();
    EXPECT_EQ(reihen("FIT|FIIDN|Bemerkung"), (QStringList{">300||", ">300||", "24||"}));
    EXPECT_TRUE(m_ui.meldungen.isEmpty());

    // A seventh time where the touch voltage belongs.
    QStringList zeilen = autoReiheHalbZuerst("General");
    zeilen.insert(6, "RCD AUTO, M, x5    180|10|ms");
    einlesen(zeilen, 2);
    übernehmen(2);
    EXPECT_EQ(anzahl("0100_Messung"), 9);
    EXPECT_EQ(m_ui.texte(), QStringList{"Fehler bei RCD AUTO"});
    EXPECT_EQ(m_ui.meldungen.value(0).titel, "vemotrix professional");
}

TEST_F(RcdTest, RcdAutoWithNamedTimesInAnyOrder) {
    for (const QString art : {"General", "Selective"}) {
        const int block = art == "General" ? 1 : 2;
        einlesen({"RCD AUTO, M, t1|>300|ms", "RCD AUTO, M, Ub|3,1|V", "RCD AUTO, M, t2|>300|ms",
                  "RCD AUTO, M, t3|24|ms", "RCD AUTO, E, Idn|30|mA", "RCD AUTO, M, t4|26|ms",
                  "RCD AUTO, M, t5|8|ms", "RCD AUTO, M, t6|9|ms", "RCD AUTO, E, type :||" + art},
                 block);
        übernehmen(block);
    }
    // Each series leaves one empty row behind its six.
    const QStringList fit = spalte("FIT");
    ASSERT_EQ(fit.size(), 14);
    EXPECT_EQ(fit.mid(0, 7), (QStringList{">300", ">300", "24", "26", "8", "9", ""}));
    EXPECT_EQ(spalte("FIUB").mid(0, 7), (QStringList(6, "3,1") << ""));
    EXPECT_EQ(spalte("FIIDN").mid(7, 6), QStringList(6, "30"));
    EXPECT_EQ(spalte("FIFaktor").mid(0, 6), autoFaktoren);
    EXPECT_EQ(spalte("FIFaktor").mid(7, 6), selektiv(autoFaktoren));
    EXPECT_EQ(spalte("FGRAD").mid(7, 6), (QStringList{"0°", "180°", "0°", "180°", "0°", "180°"}));
}

} // namespace
