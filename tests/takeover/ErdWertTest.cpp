#include "Uebernahmeumgebung.h"

#include "takeover/ErdWert.h"

using namespace vemo;

namespace {

class ErdWertTest : public test::Uebernahmeumgebung {
protected:
    // The earth resistances measured on the circuit of inspection 200, in place of those before.
    void messen(const QStringList& werte) {
        sql(R"(DELETE FROM "0100_Messung")");
        int id = 10;
        for (const QString& w : werte)
            ausführen("INSERT INTO 0100_Messung (MessID, StromkreisID, ErdRE) VALUES (?, 400, ?)", {id++, w});
    }
};

TEST_F(ErdWertTest, OverflowBeatsOnlyASmallerPlainValue) {
    EXPECT_EQ(GetErdWertMax(200), "");

    messen({"1500", ">2000", "20"});
    EXPECT_EQ(GetErdWertMax(200), ">2000");
    messen({"1500", ">1500"});
    EXPECT_EQ(GetErdWertMax(200), "1500"); // a tie goes to the plain value
    messen({"2,5", ">2", "", "o.r."});
    EXPECT_EQ(GetErdWertMax(200), "2,5");
    messen({">3", ">12,5"});
    EXPECT_EQ(GetErdWertMax(200), ">12,5");
    messen({"99", "100", "7"});
    EXPECT_EQ(GetErdWertMax(200), "100");

    // Only the inspection's own circuits count.
    sql(R"(INSERT INTO "0100_Verteiler" (VerteilerID, "PrüfungID", Code) VALUES (301, 201, '001');
           INSERT INTO "0100_Stromkreis" (StromkreisID, VerteilerID, Code) VALUES (401, 301, '001');
           INSERT INTO "0100_Messung" (MessID, StromkreisID, ErdRE) VALUES (1, 401, '>9000'), (2, 401, '8000');)");
    EXPECT_EQ(GetErdWertMax(200), "100");
    EXPECT_EQ(GetErdWertMax(201), ">9000");
}

} // namespace
