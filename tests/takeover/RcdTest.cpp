#include "Uebernahmeumgebung.h"

#include "platform/Zahlformat.h"

using namespace vemo;
using test::Quellzeile;

namespace {

using RcdTest = test::Uebernahmeumgebung;

TEST_F(RcdTest, FiveRowBlockFillsOneRowAndTheNextValuesFollowOnIt) {
    einlesen({{"tFI S", "AC 180°", ""},
              {"tFI S", "30", "mA"},
              {"tFI S", "1", ""},
              {"tFI S", "38", "ms"},
              {"tFI S", "4,2", "V"},
              {"Zs", "0,45", "Ohm"},
              {"Ik", "0,511", "kA"}});
    übernehmen();
    EXPECT_EQ(spalte("StromkreisID"), QStringList{"400"});
    EXPECT_EQ(spalte("FGRAD"), QStringList{"AC 180°"});
    EXPECT_EQ(spalte("FIIDN"), QStringList{"30"});
    EXPECT_EQ(spalte("FIFaktor"), QStringList{"S x1"});
    EXPECT_EQ(spalte("FIT"), QStringList{"38"});
    EXPECT_EQ(spalte("FIUB"), QStringList{"4,2"});
    EXPECT_EQ(spalte("LOOPRS"), QStringList{"0,45"});
    EXPECT_EQ(spalte("LoopIKRS"), QStringList{"511"});
    EXPECT_TRUE(m_ui.meldungen.isEmpty());

    // Not selective, and cut short after the trip time: what came stays, the touch voltage is
    // missing and nothing after the block is read.
    einlesen({{"tRCD", "0°", ""}, {"tRCD", "30", "mA"}, {"tRCD", "5", ""}, {"tRCD", "12", "ms"}}, 2);
    übernehmen(2);
    EXPECT_EQ(spalte("FIFaktor"), (QStringList{"S x1", "x5"}));
    EXPECT_EQ(spalte("FIT"), (QStringList{"38", "12"}));
    EXPECT_EQ(spalte("FIUB"), (QStringList{"4,2", ""}));
}

TEST_F(RcdTest, BlocksWithMeasuredCurrentAndTouchVoltage) {
    einlesen({{"IdFI S", "0°", ""},
              {"IdFI S", "30", "mA"},
              {"IdFI S", "1", ""},
              {"IdFI S", "24", "mA"},
              {"IdFI S", "140", "ms"},
              {"IdFI S", "3,1", "V"}});
    übernehmen();
    einlesen({{"IdRCD S", "180°", ""},
              {"IdRCD S", "30", "mA"},
              {"Id", "22", "mA"},
              {"t", "30", "ms"},
              {"U", "2", "V"}},
             2);
    übernehmen(2);
    einlesen({{"UbFI S mA", "30", "mA"}, {"UbFI S", "2", ""}, {"UbFI S", "4,5", "V"}, {"Re", "150", "Ohm"}},
             3);
    übernehmen(3);
    einlesen({{"VcRCD mA", "100", "mA"}, {"Vc", "1,5", "V"}, {"Re", "15", "Ohm"}}, 4);
    übernehmen(4);
    EXPECT_EQ(spalte("FGRAD"), (QStringList{"0°", "180°", "", ""}));
    EXPECT_EQ(spalte("FIIDN"), (QStringList{"30", "30", "30", "100"}));
    EXPECT_EQ(spalte("FIFaktor"), (QStringList{"S x1", "S", "S x2", ""}));
    EXPECT_EQ(spalte("FIIMESS"), (QStringList{"24", "22", "", ""}));
    EXPECT_EQ(spalte("FIT"), (QStringList{"140", "30", "", ""}));
    EXPECT_EQ(spalte("FIUB"), (QStringList{"3,1", "2", "4,5", "1,5"}));
    EXPECT_EQ(spalte("FIRE"), (QStringList{"", "", "150", "15"}));
}

TEST_F(RcdTest, FollowingTestsTakeTheSettingsOfTheRowBefore) {
    // Without a row before, the settings stay empty.
    einlesen({{"Id", "26", "mA"}, {"t", "35", "ms"}, {"Ub", "3", "V"}});
    übernehmen();
    EXPECT_EQ(spalte("FIIMESS"), QStringList{"26"});
    EXPECT_EQ(spalte("FIIDN"), QStringList{""});

    sql(R"(UPDATE "0100_Messung" SET FGRAD = 'AC 0°', FIIDN = '30', FIFaktor = 'x1', FIIMESS = '27')");
    einlesen({{"Id", "26", "mA"}, {"t", "35", "ms"}, {"Ub", "3", "V"}}, 2);
    übernehmen(2);
    einlesen({{"t", "41", "ms"}, {"Ub", "3,5", "V"}}, 3);
    übernehmen(3);
    einlesen({{"Ub", "4", "V"}, {"Re", "133", "Ohm"}}, 4);
    übernehmen(4);
    // The row before the circuit's newest is the one of the block before.
    EXPECT_EQ(spalte("FGRAD"), (QStringList{"AC 0°", "AC 0°", "AC 0°", ""}));
    EXPECT_EQ(spalte("FIIDN"), (QStringList{"30", "30", "30", "30"}));
    EXPECT_EQ(spalte("FIFaktor"), (QStringList{"x1", "x1", "x1", "x1"}));
    EXPECT_EQ(spalte("FIIMESS"), (QStringList{"27", "26", "26", ""}));
    EXPECT_EQ(spalte("FIT"), (QStringList{"35", "35", "41", ""}));
    EXPECT_EQ(spalte("FIUB"), (QStringList{"3", "3", "3,5", "4"}));
    EXPECT_EQ(spalte("FIRE"), (QStringList{"", "", "", "133"}));
}

TEST_F(RcdTest, PairsConvertTheSecondValueByItsOwnName) {
    sql(R"(INSERT INTO "0100_TeilFunktion" VALUES ('IdN', 'FIIDN', 'mA'))");
    einlesen({{"T180", "25", "ms"}, {"IdN", "0,03", "A"}});
    übernehmen();
    einlesen({{"Ub", "4", "V"}, {"Id", "0,02", "A"}}, 2);
    übernehmen(2);
    einlesen({{"FI UB mA", "300", "mA"}, {"FI UB", "12", "V"}}, 3);
    übernehmen(3);
    EXPECT_EQ(spalte("FIT"), (QStringList{"25", "", ""}));
    EXPECT_EQ(spalte("FIIDN"), (QStringList{"30", "20", "300"}));
    EXPECT_EQ(spalte("FIUB"), (QStringList{"", "4", "12"}));
}

TEST_F(RcdTest, SettingRowsOfTheirOwn) {
    einlesen({{"m_FIFaktor", "x1", ""},
              {"RCD t, E, type :", "", "Selective"},
              {"RCD t, E, phase:", "", "180°"},
              {"FI Halbwelle", "neg", ""},
              {"RCD I, E, type :", "", "General"}});
    übernehmen();
    EXPECT_EQ(spalte("FIFaktor"), QStringList{"S x1"});
    EXPECT_EQ(spalte("FGRAD"), QStringList{"180° neg"});
}

// The limit row is made after the settings behind the head have been gathered, so that the trip
// times follow the factor.
TEST_F(RcdTest, TouchVoltageLimitAfterTheSettingsScan) {
    zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
    einlesen({{"RCD t, M, t", "25", "ms"},
              {"RCD t, M, Ub", "2,1", "V"},
              {"Ub max", "50", "V"},
              {"RCD t, E, Idn", "30", "mA"},
              {"RCD t, E, mult.:", "x2", ""},
              {"RCD t, E, phase:", "", "180°"},
              {"RCD t, E, type :", "", "AC"},
              {"m_Bemerkung", "nach dem Test", ""}});
    übernehmen();
    zahlformat::ausUmgebung();
    const QStringList ids = messIDs();
    ASSERT_EQ(ids.size(), 1);
    EXPECT_EQ(spalte("FIT"), QStringList{"25"});
    EXPECT_EQ(spalte("FIUB"), QStringList{"2,1"});
    EXPECT_EQ(spalte("FIIDN"), QStringList{"30"});
    EXPECT_EQ(spalte("FIFaktor"), QStringList{"x2"});
    EXPECT_EQ(spalte("FGRAD"), QStringList{"AC 180°"});
    EXPECT_EQ(spalte("Bemerkung"), QStringList{""}); // the scan used the run up
    EXPECT_EQ(grenzwert("FIUB", ids[0]), "<50");
    EXPECT_EQ(grenzwert("FIRE", ids[0]), "<1666,7");
    EXPECT_EQ(grenzwert("FIT MAX", ids[0]), "<150");

    // A selective type puts its mark before the factor; a limit with its sign keeps it.
    einlesen({{"RCD Uc, G, Ub", "<25", "V"}, {"FI Faktor", "x1", ""}, {"RCD Uc, E, type :", "", "Selective"}},
             2);
    übernehmen(2);
    const QString zweite = messIDs().value(1);
    EXPECT_EQ(spalte("FIFaktor").value(1), "S x1");
    EXPECT_EQ(grenzwert("FIUB", zweite), "<25");
    EXPECT_EQ(grenzwert("FIRE", zweite), ""); // no rated current
    EXPECT_EQ(grenzwert("FIT MIN", zweite), ">130");
}

TEST_F(RcdTest, FiUlGivesOneRowPerTimingPair) {
    einlesen({{"FI UL", "50", "V"},
              {"FI Faktor", "x1", ""},
              {"FI Halbwelle", "pos", ""},
              {"FI tmess mA", "15", "mA"},
              {"FI tmess ms", "20", "ms"},
              {"FI tmess mA", "16", "mA"},
              {"FI tmess ms", "22", "ms"},
              {"RCD t, E, Idn", "30", "mA"}});
    übernehmen();
    const QStringList ids = messIDs();
    ASSERT_EQ(ids.size(), 2);
    EXPECT_EQ(spalte("FIFaktor"), (QStringList{"x1", ""}));
    EXPECT_EQ(spalte("FGRAD"), (QStringList{"pos", ""}));
    EXPECT_EQ(spalte("FIT"), (QStringList{"20", "22"}));
    EXPECT_EQ(spalte("FIIDN"), (QStringList{"", "30"}));
    EXPECT_EQ(grenzwert("FIUB", ids[1]), "<50");
    EXPECT_EQ(grenzwert("FIRE", ids[1]), "<1666.7");
}

QList<Quellzeile> autoReiheHalbZuerst(const QString& art) {
    return {{"RCD AUTO, M, x1/2    0", ">300", "ms"}, {"RCD AUTO, M, x1/2  180", ">300", "ms"},
            {"RCD AUTO, M, x1      0", "24", "ms"},   {"RCD AUTO, M, x1    180", "26", "ms"},
            {"RCD AUTO, M, x5      0", "8", "ms"},    {"RCD AUTO, M, x5    180", "9", "ms"},
            {"RCD AUTO, M, Ub", "3,1", "V"},          {"RCD AUTO, E, Idn", "30", "mA"},
            {"RCD AUTO, E, type :", "", art}};
}

const QStringList autoFaktoren{"x1/2", "x1/2", "x1", "x1", "x5", "x5"};
const QStringList autoGrade{"0°", "180°", "0°", "180°", "0°", "180°"};

QStringList selektiv(const QStringList& faktoren) {
    QStringList s;
    for (const QString& f : faktoren)
        s << "S " + f;
    return s;
}

TEST_F(RcdTest, RcdAutoWithHalfFirstFillsSixRows) {
    QList<Quellzeile> zeilen = autoReiheHalbZuerst("General");
    zeilen << Quellzeile{"m_Bemerkung", "Reihe 1", ""};
    einlesen(zeilen);
    übernehmen();
    EXPECT_EQ(spalte("FIT"), (QStringList{">300", ">300", "24", "26", "8", "9"}));
    EXPECT_EQ(spalte("FIFaktor"), autoFaktoren);
    EXPECT_EQ(spalte("FGRAD"), autoGrade);
    EXPECT_EQ(spalte("FIIDN"), QStringList(6, "30"));
    EXPECT_EQ(spalte("FIUB"), (QStringList{"", "", "", "", "", "3,1"}));
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
    einlesen({{"RCD AUTO, M, x1/2    0", ">300", "ms"},
              {"RCD AUTO, M, x1/2  180", ">300", "ms"},
              {"RCD AUTO, M, x1      0", "24", "ms"},
              {"RCD AUTO, M, Ub", "3,1", "V"},
              {"RCD AUTO, E, Idn", "30", "mA"},
              {"m_Bemerkung", "nicht mehr", ""}});
    übernehmen();
    EXPECT_EQ(spalte("FIT"), (QStringList{">300", ">300", "24"}));
    EXPECT_EQ(spalte("FIIDN"), QStringList(3, ""));
    EXPECT_EQ(spalte("Bemerkung"), QStringList(3, ""));
    EXPECT_TRUE(m_ui.meldungen.isEmpty());

    // A seventh time where the touch voltage belongs.
    QList<Quellzeile> zeilen = autoReiheHalbZuerst("General");
    zeilen.insert(6, {"RCD AUTO, M, x5    180", "10", "ms"});
    einlesen(zeilen, 2);
    übernehmen(2);
    EXPECT_EQ(spalte("FIT").size(), 9);
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_EQ(m_ui.meldungen[0].text, "Fehler bei RCD AUTO");
    EXPECT_EQ(m_ui.meldungen[0].titel, "vemotrix professional");
}

TEST_F(RcdTest, RcdAutoWithNamedTimesInAnyOrder) {
    for (const QString art : {"General", "Selective"}) {
        const int block = art == "General" ? 1 : 2;
        einlesen({{"RCD AUTO, M, t1", ">300", "ms"},
                  {"RCD AUTO, M, Ub", "3,1", "V"},
                  {"RCD AUTO, M, t2", ">300", "ms"},
                  {"RCD AUTO, M, t3", "24", "ms"},
                  {"RCD AUTO, E, Idn", "30", "mA"},
                  {"RCD AUTO, M, t4", "26", "ms"},
                  {"RCD AUTO, M, t5", "8", "ms"},
                  {"RCD AUTO, M, t6", "9", "ms"},
                  {"RCD AUTO, E, type :", "", art}},
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
    EXPECT_EQ(spalte("FGRAD").mid(7, 6), autoGrade);
}

} // namespace
