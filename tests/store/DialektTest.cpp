#include "store/Dialekt.h"
#include "platform/Fehler.h"
#include "store/Literal.h"
#include "store/Recordset.h"
#include "store/Variant.h"
#include "support/Fremdtexte.h"
#include "support/Testumgebung.h"

#include <sqlite3.h>

using namespace vemo;

namespace {

class DialektTest : public test::Motorumgebung {
protected:
    void SetUp() override {
        Motorumgebung::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        neueDatenbank(true);
    }
};

TEST_P(DialektTest, StatementsOfTheComponentRun) {
    sql("INSERT INTO \"0100_Prüfung\" (\"PrüfungID\", AnlagenID, Datum, ProtokollNr) VALUES "
        "(2, 1, '2024-05-01', '00000007'), (3, 1, '2024-05-01', NULL);");

    // The newest inspection first, of two on one date the higher key.
    EXPECT_EQ(
        wert("SELECT [0100_Prüfung].PrüfungID FROM [0100_Prüfung] Where ((([0100_Prüfung].AnlagenID) = 1))"
             "ORDER BY [0100_Prüfung].Datum DESC , [0100_Prüfung].PrüfungID DESC;"),
        "3");
    // & reads Null as an empty text, Val() takes the numeric prefix.
    EXPECT_EQ(wert("SELECT Max(Val('' & ProtokollNr)) as [proMax] FROM 0100_Prüfung ;"), "7");
    EXPECT_EQ(wert("SELECT 'P' & ProtokollNr & \"-\" FROM 0100_Prüfung WHERE PrüfungID = 3"), "P-");
    sql("INSERT INTO \"0100_EinleseGeräteDaten\" (GeräteID, PrüfgerätID) VALUES (1, 10000);");
    EXPECT_EQ(wert("SELECT '#' & PrüfgerätID FROM 0100_EinleseGeräteDaten"),
              "#10000"); // a float key, as written
    // Division as the dialect computes it: 1/2 is a half.
    EXPECT_EQ(wert("SELECT [FIT MIN] FROM 0100_GrenzwertRCD WHERE Faktor = 1/2 AND Selektive = 0"),
              wert("SELECT [FIT MIN] FROM 0100_GrenzwertRCD WHERE Faktor = 0.5 AND Selektive = 0"));
    EXPECT_FALSE(
        wert("SELECT [FIT MIN] FROM 0100_GrenzwertRCD WHERE Faktor = 1/2 AND Selektive = 0").isEmpty());
    EXPECT_EQ(wert("SELECT Left(Name, 3) & Right(Name, 2) FROM Kunde WHERE KundeID = 2"), "Wohng");
    // Replace inside a text column, as the earth resistance is sorted by its number.
    EXPECT_EQ(
        wert("SELECT Val(Replace(Mid(ProtokollNr, 7), '7', '3,5')) FROM 0100_Prüfung WHERE PrüfungID = 2"),
        "3");
    // Like with the dialect's wildcard.
    EXPECT_EQ(wert("SELECT Count(*) FROM Kunde WHERE Name Like \"*e*\""), "2");

    // Grouping with Having, left joins twice to one table under an alias.
    sql("INSERT INTO \"0100_EinleseDaten\" (MessungID, KundeNr, AnlageNr, KundeID) VALUES (10, '12', '002', "
        "0), (11, '99', '', 1);");
    Recordset g = db().OpenRecordset(
        "SELECT [0100_EinleseDaten].MessungID, Kunde_1.KundeID AS K1, Kunde.KundeID, "
        "[0100_Anlage_1].AnlageID "
        "FROM ((0100_EinleseDaten LEFT JOIN Kunde ON [0100_EinleseDaten].KundeID = Kunde.KundeID) "
        "LEFT JOIN Kunde AS Kunde_1 ON [0100_EinleseDaten].KundeNR = Kunde_1.Nummernkreis) "
        "LEFT JOIN 0100_Anlage AS 0100_Anlage_1 ON ([0100_EinleseDaten].AnlageNR = [0100_Anlage_1].Code) "
        "AND (Kunde_1.KundeID = [0100_Anlage_1].KundeID) "
        "GROUP BY [0100_EinleseDaten].MessungID, Kunde_1.KundeID, Kunde.KundeID, [0100_Anlage_1].AnlageID "
        "Having (((Count([0100_EinleseDaten].MessungID)) = 1)) ORDER BY [0100_EinleseDaten].MessungID");
    EXPECT_EQ(g.Field("K1").toInt(), 1);
    EXPECT_EQ(g.Field("AnlageID").toInt(), 2);
    g.MoveNext();
    EXPECT_TRUE(istNull(g.Field("K1")));
    EXPECT_EQ(g.Field("KundeID").toInt(), 1);

    // The circuit with its cable, fuse and RCD type: right joins in brackets, the whole statement
    // in brackets with a ";" inside.
    Recordset k = db().OpenRecordset(
        "(SELECT [0100_Stromkreis].VerteilerID, [0100_Stromkreis].StromkreisID, [0100_Stromkreis].Code, "
        "[0100_Kabeltyp].Name, [0100_Sicherungstyp].SicherungstypID, [0100_Sicherungstyp].Grenzwert, "
        "[0100_RCDtyp].Name FROM 0100_Sicherungstyp RIGHT JOIN (0100_RCDtyp RIGHT JOIN (0100_Kabeltyp RIGHT "
        "JOIN "
        "0100_Stromkreis ON [0100_Kabeltyp].KabeltypID = [0100_Stromkreis].KabelTypID) ON "
        "[0100_RCDtyp].RCDtypID = [0100_Stromkreis].RCDTypID) ON [0100_Sicherungstyp].SicherungstypID = "
        "[0100_Stromkreis].SicherungsTypID WHERE StromkreisID = 1 ORDER BY [0100_Stromkreis].Code, "
        "[0100_Stromkreis].Nr, [0100_Stromkreis].Name;)");
    EXPECT_EQ(k.Text("Grenzwert"), ">320");
    EXPECT_TRUE(istNull(k.Field("Name")));

    db().Execute("DELETE * FROM 0100_EinleseDaten");
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
}

INSTANTIATE_TEST_SUITE_P(Motoren, DialektTest, test::beideMotoren, test::motorName);

using SqliteDialektTest = test::Testumgebung;

} // namespace
