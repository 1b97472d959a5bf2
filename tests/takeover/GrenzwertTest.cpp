#include "Uebernahmeumgebung.h"

#include "platform/Zahlformat.h"
#include "store/Recordset.h"
#include "takeover/Grenzwerte.h"
#include "takeover/Grenzwertrechnung.h"

using namespace vemo;

namespace {

class GrenzwertHolenTest : public test::Uebernahmeumgebung {
protected:
    // A measurement row of the circuit with the settings that decide its limits; rsGrenzwert is
    // then made for it.
    Recordset holen(int messID, const QString& viso, const QString& faktor) {
        ausführen("INSERT INTO 0100_Messung (MessID, StromkreisID, VISO, FIFaktor) VALUES (?, 400, ?, ?)",
                  {messID, viso, faktor});
        const Recordset messung =
            modul().db.OpenRecordset("SELECT * FROM 0100_Messung WHERE MessID = ?", {messID});
        Recordset grenzwert;
        GrenzwertHolen(grenzwert, messung);
        return grenzwert;
    }
    QString g(const QString& spalten, int messID) const {
        return grenzwerte(spalten, QString::number(messID));
    }
};

// Without a fuse type the standard stays; marks of the standard row are not limits.
TEST_F(GrenzwertHolenTest, StandardRowThenTestVoltageFuseAndRcd) {
    sql(R"(UPDATE "0100_GrenzwertStandard" SET LOOPRS = '<9', Grenzwert = 'std', StromkreisID = 7)");
    const Recordset rs = holen(1, "", "");
    EXPECT_EQ(rs.Text("MessID"), "1"); // it stands on the new row
    EXPECT_EQ(g("RISO|LOW|LOOPRS|FIUB|ErdRE|FIT MIN|FIT MAX|s_RISO|Grenzwert|StromkreisID", 1),
              ">1|<1|<9|<50|<100||<300|||400");

    holen(2, "250", "x1/2"); // the half is worked out by the statement
    EXPECT_EQ(g("RISO|FIT MIN", 2), ">0,5|>300");
    holen(3, "42", "S x2");
    EXPECT_EQ(g("RISO|FIT MIN|FIT MAX", 3), ">1|>60|<200");

    // The fuse of the circuit decides the loop limits.
    sql(R"(UPDATE "0100_Stromkreis" SET SicherungsTypID = 12)");
    holen(4, "", "");
    EXPECT_EQ(g("LoopIKRS|LoopIKRI|LOOPRS|LOOPRI", 4), ">230|>230|<1|<1");
    sql(R"(UPDATE "0100_Stromkreis" SET SicherungsTypID = 6)");
    holen(5, "", "");
    EXPECT_EQ(g("LOOPRS|LOOPRI|LoopIKRS", 5), "<1.44|<1.44|>160");
}

// A factor the statement cannot read leaves no half-made row behind; a row already made is the
// one every later value finds (WerteTest's reported limits).
TEST_F(GrenzwertHolenTest, AFactorThatCannotBeReadLeavesNoRow) {
    holen(1, "", "x1,5");
    EXPECT_EQ(anzahl("0100_Grenzwert"), 0);
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

// The limit arithmetic: 2.875 rounds half up, a breaking current of no positive number gives no
// loop limit; the first character of the touch voltage is taken for the sign; a closing ":" cannot
// end a factor, but is taken inside the run; a value is normalised by "wert|Einheit|Maske".
TEST(Grenzwertrechnung, LoopEarthResistanceFactorAndNormalisedValue) {
    EXPECT_EQ(test::jeweils(LoopGrenzwert, {">230", ">160", ">80", "", ">0", ">-5", ">B16"}),
              "<1 | <1.44 | <2.88 |  |  |  | ");
    const auto re = [](const QString& paar) {
        return GetRCD_RE(paar.section('/', 0, 0), paar.section('/', 1));
    };
    EXPECT_EQ(test::jeweils(re, {"<50/30", "<25/300", "50/30", "<50/0", "<50/", "<0/30", "/30"}),
              "<1666.7 | <83.3 |  |  |  |  | ");
    EXPECT_EQ(
        test::jeweils(FaktorZahl, {"x1/2", "S x1/2", "x5", "S x2", "x2 S", "mult.: x2:", "k=1/2", "xS", ""}),
        "1/2 | 1/2 | 5 | 2 | 2 | 2 | =1/2 |  | ");
    const auto norm = [](const QString& s) {
        return NormWert(s.section('|', 0, 0), s.section('|', 1, 1), s.section('|', 2));
    };
    EXPECT_EQ(test::jeweils(norm, {" 12.5! |kOhm|s4", ">3|kA|s4", "<0,2|GOhm|s4", "0,35|Ohm|s4",
                                   "o.r.|kOhm|s4", "230!|V|s4 & s5", "230|V|s5"}),
              "12500 | >3000 | <200 | 0,35 | o.r. | 230V | ");
    zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(LoopGrenzwert(">160") + " " + GetRCD_RE("<50", "30"), "<1,44 <1666,7");
    zahlformat::ausUmgebung();
}

} // namespace
