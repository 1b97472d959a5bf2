#include "core/Schluesselvergabe.h"
#include "core/Vorbelegung.h"
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
