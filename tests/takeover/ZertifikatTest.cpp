#include "Uebernahmeumgebung.h"

#include "parsers/Primitive.h"
#include "store/Recordset.h"
#include "takeover/MesswertUebernehmenZertifikat.h"
#include "takeover/ProcMax.h"

using namespace vemo;

namespace {

// The inspection 200 of the take-over's test fixture as a certificate, with its certificate
// record, and a mapping of test names to every level and procedure.
class ZertifikatTest : public test::Uebernahmeumgebung {
protected:
    void SetUp() override {
        Uebernahmeumgebung::SetUp();
        sql(R"(INSERT INTO "0100U_CertNic" (pid) VALUES (200);
               INSERT INTO "0100_Messung" (MessID, StromkreisID) VALUES (900, 400);
               INSERT INTO "0100_TeilfunktionUK" (TeilFunktion, Tabelle, SpaltenName, Prozedur, Zertifikat)
               VALUES ('T min', '0100_Messung', 'RISO', 'Min', 'Niceic'),
                      ('T max', '0100_Messung', 'LOOPRS', 'Max', 'Niceic'),
                      ('T max', '0100U_CertNic', 'ZsMax', 'Max', 'Niceic'),
                      ('T max', '0100_Verteiler', 'IpfMax', 'Max', 'Niceic'),
                      ('T board', '0100_Verteiler', 'ZsMax', 'MaxBoard', 'Niceic'),
                      ('T root', '0100U_CertNic', 'RaMax', 'MaxRoot', 'Niceic'),
                      ('T root', '0100_Messung', 'LOW', 'MaxRoot', 'Niceic'),
                      ('T fremd', '0100_Messung', 'LOW', 'Max', 'Anderes'),
                      ('T kaputt', '0100_Messung', 'GibtEsNicht', 'Max', 'Niceic'),
                      ('T unbekannt', '0100_Messung', 'LOW', 'MaxMin', 'Niceic');)");
    }

    // Maps the block onto the given keys, as the take-over does for a certificate inspection.
    void zertifikat(const QStringList& zeilen, int stromkreis = 400, int verteiler = 300, int prüfung = 200) {
        sql("DELETE FROM \"0100_EinleseMessDaten\";");
        einlesen(zeilen, 7);
        MesswertÜbernehmenZertifikat(7, stromkreis, verteiler, prüfung);
    }
    // Columns of the circuit's first measurement row, of the board, of the certificate record.
    QString kreis(const QString& spalten) const {
        return felder("0100_Messung", "StromkreisID = 400 ORDER BY MessID", spalten);
    }
    QString verteiler(const QString& spalten) const {
        return felder("0100_Verteiler", "VerteilerID = 300", spalten);
    }
    QString anlage(const QString& spalten) const { return felder("0100U_CertNic", "pid = 200", spalten); }
};

// An old circuit without measurement row gets one from its first value, by a value procedure or by
// an RCD handler; a board or certificate record that is missing is not made.
TEST_F(ZertifikatTest, OnlyTheCircuitGetsAMissingRecord) {
    sql(R"(DELETE FROM "0100_Messung"; DELETE FROM "0100U_CertNic";)");
    zertifikat({"T max|0,8|Ohm", "T root|20|Ohm"});
    EXPECT_EQ(wert("SELECT StromkreisID || ' ' || LOOPRS FROM 0100_Messung WHERE MessID >= 10000"),
              "400 0,8");
    EXPECT_EQ(anzahl("0100U_CertNic"), 0);

    sql(R"(DELETE FROM "0100_Messung";)");
    zertifikat({"RCD t, M, t|40|ms", "RCD t, E, mult.:|x5|"});
    EXPECT_EQ(wert("SELECT StromkreisID || ' ' || FIT_x5 FROM 0100_Messung"), "400 40");
    EXPECT_EQ(anzahl("0100_Messung"), 1);
    EXPECT_EQ(verteiler("FIT_x5"), "40");
}

// What the certificate does not know goes nowhere, silently; a mapping that names a column that
// does not exist ends the block there, keeping what came before.
TEST_F(ZertifikatTest, UnknownFunctionsAndProceduresAreDropped) {
    zertifikat({"R ISO, M, U|500|V", "T fremd|0,3|Ohm", "T unbekannt|0,3|Ohm", "T max|0,5|Ohm"});
    EXPECT_EQ(kreis("LOOPRS|LOW"), "0,5|");
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_Messung WHERE UISO <> '' OR VISO <> ''"), "0");

    zertifikat({"T min|4|MOhm", "T kaputt|1|Ohm", "T max|0,7|Ohm"});
    EXPECT_EQ(kreis("RISO|LOOPRS"), "4|0,5");
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
}

// Every row of the certificate's host data leads to a column that exists, by a procedure the
// mapping knows: a misspelt one would end the mapping of every block that has the name.
TEST_F(ZertifikatTest, TheHostDataLeadToExistingColumns) {
    const QStringList einfache{"Store", "Max", "Min", "MaxBoard", "MaxRoot"};
    Recordset rs =
        modul().db.OpenRecordset("SELECT * FROM 0100_TeilfunktionUK WHERE TeilFunktion NOT LIKE 'T %'");
    int zeilen = 0;
    for (; !rs.Eof(); rs.MoveNext(), ++zeilen) {
        const QString name = rs.Text("TeilFunktion");
        const QString tabelle = rs.Text("tabelle");
        EXPECT_TRUE(QStringList({"0100_Messung", "0100_Verteiler", "0100U_CertNic"}).contains(tabelle))
            << name.toStdString();
        const Recordset spalten = modul().db.OpenRecordset("SELECT * FROM [" + tabelle + "] WHERE 0 = 1");
        EXPECT_GE(spalten.FieldIndex(rs.Text("spaltenname")), 0) << name.toStdString();
        const QString prozedur = rs.Text("prozedur");
        EXPECT_TRUE(einfache.contains(prozedur) || rcdHandlerFür(prozedur)) << name.toStdString();
        EXPECT_EQ(rs.Text("Zertifikat"), ZertifikatNiceic);
    }
    EXPECT_GT(zeilen, 60);

    // The 3710's names are found on the certificate's road; the look-up finds the 3720's too, and
    // only the certificate's.
    EXPECT_FALSE(TeilFunktionUKSuchen(ZertifikatNiceic, "m_KTS_CONTR").Eof());
    EXPECT_TRUE(TeilFunktionUKSuchen(ZertifikatNiceic, "R ISO, M, U").Eof());
    EXPECT_TRUE(TeilFunktionUKSuchen("Anderes", "Z LOOP, M, Z").Eof());
}

} // namespace
