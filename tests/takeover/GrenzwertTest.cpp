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
    QString g(const QString& spalte, int messID) const { return grenzwert(spalte, QString::number(messID)); }
};

TEST_F(GrenzwertHolenTest, StandardRowThenTestVoltageFuseAndRcd) {
    sql(R"(UPDATE "0100_GrenzwertStandard" SET LOOPRS = '<9', Grenzwert = 'std', StromkreisID = 7)");
    const Recordset rs = holen(1, "", "");
    EXPECT_EQ(rs.Text("MessID"), "1"); // it stands on the new row
    EXPECT_EQ(g("RISO", 1), ">1");
    EXPECT_EQ(g("LOW", 1), "<1");
    EXPECT_EQ(g("LOOPRS", 1), "<9"); // no fuse type: the standard stays
    EXPECT_EQ(g("FIUB", 1), "<50");
    EXPECT_EQ(g("ErdRE", 1), "<100");
    EXPECT_EQ(g("FIT MIN", 1), "");
    EXPECT_EQ(g("FIT MAX", 1), "<300"); // factor 1, not selective
    EXPECT_EQ(g("s_RISO", 1), "");      // marks of the standard row are not limits
    EXPECT_EQ(g("Grenzwert", 1), "");
    EXPECT_EQ(g("StromkreisID", 1), "400");

    holen(2, "250", "x1/2"); // the half is worked out by the statement
    EXPECT_EQ(g("RISO", 2), ">0,5");
    EXPECT_EQ(g("FIT MIN", 2), ">300");
    holen(3, "42", "S x2");
    EXPECT_EQ(g("RISO", 3), ">1");
    EXPECT_EQ(g("FIT MIN", 3), ">60");
    EXPECT_EQ(g("FIT MAX", 3), "<200");

    // The fuse of the circuit decides the loop limits.
    sql(R"(UPDATE "0100_Stromkreis" SET SicherungsTypID = 12)");
    holen(4, "", "");
    EXPECT_EQ(g("LoopIKRS", 4), ">230");
    EXPECT_EQ(g("LoopIKRI", 4), ">230");
    EXPECT_EQ(g("LOOPRS", 4), "<1");
    EXPECT_EQ(g("LOOPRI", 4), "<1");
    sql(R"(UPDATE "0100_Stromkreis" SET SicherungsTypID = 6)");
    holen(5, "", "");
    EXPECT_EQ(g("LOOPRS", 5), "<1.44");
    EXPECT_EQ(g("LOOPRI", 5), "<1.44");
    EXPECT_EQ(g("LoopIKRS", 5), ">160");
}

TEST_F(GrenzwertHolenTest, TheRowIsBuiltOnce) {
    holen(1, "500", "x5");
    sql(R"(UPDATE "0100_Grenzwert" SET RISO = '>7')");
    sql(R"(UPDATE "0100_Messung" SET VISO = '250', FIFaktor = 'x1')");
    const Recordset messung = modul().db.OpenRecordset("SELECT * FROM 0100_Messung WHERE MessID = 1");
    Recordset grenzwert;
    GrenzwertHolen(grenzwert, messung);
    EXPECT_EQ(grenzwert.Text("RISO"), ">7");
    EXPECT_EQ(g("FIT MAX", 1), "<40");
    EXPECT_EQ(anzahl("0100_Grenzwert"), 1);

    // A factor the statement cannot read leaves no half-made row behind.
    holen(2, "", "x1,5");
    EXPECT_EQ(anzahl("0100_Grenzwert"), 1);
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

TEST(Grenzwertrechnung, LoopLimitFromTheBreakingCurrent) {
    EXPECT_EQ(LoopGrenzwert(">230"), "<1");
    EXPECT_EQ(LoopGrenzwert(">160"), "<1.44");
    EXPECT_EQ(LoopGrenzwert(">80"), "<2.88"); // 2.875 rounds half up
    EXPECT_EQ(LoopGrenzwert(""), "");
    EXPECT_EQ(LoopGrenzwert(">0"), "");
    EXPECT_EQ(LoopGrenzwert(">-5"), "");
    EXPECT_EQ(LoopGrenzwert(">B16"), "");
    zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(LoopGrenzwert(">160"), "<1,44");
    EXPECT_EQ(GetRCD_RE("<50", "30"), "<1666,7");
    zahlformat::ausUmgebung();
}

TEST(Grenzwertrechnung, EarthResistanceFromTouchVoltage) {
    EXPECT_EQ(GetRCD_RE("<50", "30"), "<1666.7");
    EXPECT_EQ(GetRCD_RE("<25", "300"), "<83.3");
    EXPECT_EQ(GetRCD_RE("50", "30"), ""); // the first character is taken for the sign
    EXPECT_EQ(GetRCD_RE("<50", "0"), "");
    EXPECT_EQ(GetRCD_RE("<50", ""), "");
    EXPECT_EQ(GetRCD_RE("<0", "30"), "");
    EXPECT_EQ(GetRCD_RE("", "30"), "");
}

TEST(Grenzwertrechnung, FactorNumber) {
    EXPECT_EQ(FaktorZahl("x1/2"), "1/2");
    EXPECT_EQ(FaktorZahl("S x1/2"), "1/2");
    EXPECT_EQ(FaktorZahl("x5"), "5");
    EXPECT_EQ(FaktorZahl("S x2"), "2");
    EXPECT_EQ(FaktorZahl("x2 S"), "2");
    EXPECT_EQ(FaktorZahl("mult.: x2:"), "2"); // a closing ":" cannot end the number
    EXPECT_EQ(FaktorZahl("k=1/2"), "=1/2");   // but is taken inside the run
    EXPECT_EQ(FaktorZahl("xS"), "");
    EXPECT_EQ(FaktorZahl(""), "");
}

TEST(Grenzwertrechnung, NormalisedValue) {
    EXPECT_EQ(NormWert(" 12.5! ", "kOhm", "s4"), "12500");
    EXPECT_EQ(NormWert(">3", "kA", "s4"), ">3000");
    EXPECT_EQ(NormWert("<0,2", "GOhm", "s4"), "<200");
    EXPECT_EQ(NormWert("0,35", "Ohm", "s4"), "0,35");
    EXPECT_EQ(NormWert("o.r.", "kOhm", "s4"), "o.r.");
    EXPECT_EQ(NormWert("230!", "V", "s4 & s5"), "230V");
    EXPECT_EQ(NormWert("230", "V", "s5"), "");
}

} // namespace
