#include "core/Schluesselvergabe.h"
#include "core/Vorbelegung.h"
#include "store/Recordset.h"
#include "store/Variant.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

using SchluesselTest = test::Testumgebung;

TEST_F(SchluesselTest, KeysCountPerTableAndReplica) {
    EXPECT_EQ(NeueID("", "0100_Messung"), 10000);
    EXPECT_EQ(NeueID("", "SELECT * FROM 0100_Messung WHERE StromkreisID = 5"), 10001);
    EXPECT_EQ(NeueID("Kunde", ""), 10000);
    EXPECT_EQ(NeueID("", "SELECT * FROM Kunde"), 10001); // the name reaches to the end of the text
    EXPECT_EQ(NeueID("", "0100_Messung"), 10002);        // alternating tables stay correct
    EXPECT_EQ(wert("SELECT LastID FROM IDIncrement WHERE TabelleName = '0100_Messung'"), "10002");
    EXPECT_EQ(NeueID("", ""), 0); // the reset

    sql("INSERT INTO MSysReplicas VALUES ('R7', '7'), ('R22', '22');");
    modul().vmxReplicaID = "'R7'";
    EXPECT_EQ(NeueID("0100_Messung", ""), 700010000);
    EXPECT_EQ(NeueID("0100_Messung", ""), 700010001);
    modul().vmxReplicaID = nullWert(); // Null compares as equal: the range stays
    EXPECT_EQ(NeueID("0100_Messung", ""), 700010002);

    modul().vmxReplicaID = "'R22'"; // beyond the 32-bit key
    EXPECT_EQ(NeueID("0100_Messung", ""), 0);
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("6 "));
    EXPECT_EQ(m_ui.meldungen[0].titel, "vemotrix professional");
}

TEST_F(SchluesselTest, CodesFillTheFirstGap) {
    EXPECT_EQ(NeuerCode("Anlage", 1), "001");
    sql("INSERT INTO \"0100_Anlage\" (AnlageID, KundeID, Code) VALUES (1, 1, '001'), (2, 1, '002'), (3, 1, "
        "'004'),"
        "(4, 2, 'abc'), (5, 3, '2'), (6, 3, '10');");
    EXPECT_EQ(NeuerCode("Anlage", 1), "003");
    EXPECT_EQ(NeuerCode("Anlage", 2), "001");
    EXPECT_EQ(NeuerCode("Anlage", 3), "001"); // "10" sorts before "2" and ends the climb
    sql("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 998) "
        "INSERT INTO \"0100_Stromkreis\" (StromkreisID, VerteilerID, Code) SELECT i, 9, substr('00' || i, "
        "-3) FROM n;");
    EXPECT_EQ(NeuerCode("Stromkreis", 9), "");
    EXPECT_THROW(NeuerCode("Kunde", 1), Fehler);
}

// Report numbers have at least eight digits. A run counts on from the highest number it read: past
// a number it wrote otherwise, and past one that another connection has written meanwhile.
TEST_F(SchluesselTest, ReportNumbersCountOnAndSeeThoseOfAnotherWriter) {
    EXPECT_EQ(NächsteProtokollNr(), "00000001");
    sql("INSERT INTO \"0100_Prüfung\" (\"PrüfungID\", ProtokollNr) VALUES (1, 'abc'), (2, '00000041');");
    const Protokollzählung zählung;
    EXPECT_EQ(NächsteProtokollNr(), "00000042");
    ProtokollNrGeschrieben("00000100");
    EXPECT_EQ(NächsteProtokollNr(), "00000101");
    Datenbank::OpenDatabase(m_dbPfad).skriptAusführen(
        "INSERT INTO \"0100_Prüfung\" (\"PrüfungID\", ProtokollNr) VALUES (3, '123456789');");
    EXPECT_EQ(NächsteProtokollNr(), "123456790");
}

} // namespace
