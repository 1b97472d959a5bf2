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

TEST(Dialekt, TranslatesNamesStringsAndWrappers) {
    EXPECT_EQ(übersetzen("SELECT \"it's\" AS [a b] FROM 0100_Messung").sql,
              "SELECT 'it''s' AS \"a b\" FROM \"0100_Messung\"");
    EXPECT_EQ(übersetzen("SELECT 'a''b', \"c\"\"d\", '' FROM [x]]").sql,
              "SELECT 'a''b', 'c\"d', '' FROM \"x\"]");
    EXPECT_EQ(übersetzen("SELECT 'offen").sql, "SELECT 'offen'");
    EXPECT_EQ(übersetzen("DELETE * FROM 0100_EinleseGeräteDaten").sql,
              "DELETE FROM \"0100_EinleseGeräteDaten\"");
    EXPECT_EQ(übersetzen("(SELECT a FROM t ORDER BY a;)").sql, "SELECT a FROM t ORDER BY a");
    EXPECT_EQ(übersetzen("SELECT x FROM t WHERE ((t.a) = 1))ORDER BY x;").sql,
              "SELECT x FROM t WHERE ((t.a) = ?1))ORDER BY x");
    const Übersetzung p =
        übersetzen("PARAMETERS paraKundeID Long; SELECT * FROM [0100_Anlage] WHERE KundeID = [paraKundeID]");
    EXPECT_EQ(p.parameter, QStringList{"paraKundeID"});
    EXPECT_EQ(p.sql, "SELECT * FROM \"0100_Anlage\" WHERE KundeID = ?1");
    EXPECT_TRUE(p.einfacheAuswahl);
    EXPECT_FALSE(übersetzen("SELECT Code FROM t GROUP BY Code").einfacheAuswahl);
    EXPECT_FALSE(übersetzen("SELECT a.x FROM a LEFT JOIN b ON a.i = b.i").einfacheAuswahl);
    EXPECT_EQ(übersetzen("SELECT 1.5, 0100 FROM t").sql, "SELECT 1.5, 0100 FROM t");
}

// The keys and codes spliced into a condition become bound values; literals that name a column or
// a result column, and statements with placeholders or parameters of their own, stay as written.
TEST(Dialekt, BindsTheLiteralsOfAConditionOnly) {
    const Übersetzung z = übersetzen(
        "SELECT 5 AS fünf, Code FROM t WHERE KundeID = 12 AND (Code ='0,5' OR Wert >= 1.5) AND Nr <> -1 "
        "AND Name Like 'A*' ORDER BY 1");
    EXPECT_EQ(z.sql, "SELECT 5 AS fünf, Code FROM t WHERE KundeID = ?1 AND (Code =?2 COLLATE VEMO_NOCASE OR "
                     "Wert >= ?3) AND Nr "
                     "<> -1 AND Name Like 'A%' ORDER BY 1");
    EXPECT_EQ(z.werte, (QVector<QVariant>{qlonglong(12), QString("0,5"), 1.5}));
    EXPECT_EQ(z.sqlMitRowid.count("?"), 3);

    const Übersetzung u = übersetzen("UPDATE t SET a = 1 WHERE b = 'x'");
    EXPECT_EQ(u.sql, "UPDATE t SET a = 1 WHERE b = ?1 COLLATE VEMO_NOCASE");
    EXPECT_EQ(u.werte, QVector<QVariant>{QString("x")});
    EXPECT_EQ(übersetzen("DELETE * FROM t WHERE a > 2").werte, QVector<QVariant>{qlonglong(2)});

    // A text from outside, quoted as a literal, is one bound value with every character it holds.
    for (const QString& t : test::Fremdtexte) {
        const Übersetzung l = übersetzen("SELECT * FROM t WHERE a = " + literal(t) + " AND b = 1");
        EXPECT_EQ(l.sql, "SELECT * FROM t WHERE a = ?1 COLLATE VEMO_NOCASE AND b = ?2");
        EXPECT_EQ(l.werte, (QVector<QVariant>{t, qlonglong(1)}));
    }

    for (const char* bleibt :
         {"SELECT * FROM t WHERE a = ? AND b = 1", "INSERT INTO t SELECT * FROM u WHERE a = 1",
          "CREATE INDEX i ON t (a) WHERE a = 1",
          "PARAMETERS p Long; SELECT * FROM t WHERE a = [p] AND b = 1"}) {
        const Übersetzung ü = übersetzen(bleibt);
        EXPECT_TRUE(ü.werte.isEmpty()) << bleibt;
        EXPECT_TRUE(ü.sql.endsWith("= 1")) << ü.sql.toStdString();
    }
}

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

// A list of codes read in one go: in the statement's order, a Null as an empty text, a number as
// the system writes it.
TEST_P(DialektTest, TheFirstColumnAsTexts) {
    sql("INSERT INTO \"0100_Verteiler\" (VerteilerID, \"PrüfungID\", Code) VALUES (911, 9, '002'), "
        "(912, 9, NULL), (913, 9, 'a'), (914, 10, '001');");
    EXPECT_EQ(
        db().ersteSpalte("SELECT Code FROM 0100_Verteiler WHERE PrüfungID = 9 GROUP BY Code ORDER BY Code"),
        (QStringList{"", "002", "a"}));
    EXPECT_EQ(db().ersteSpalte("SELECT VerteilerID * 10 FROM 0100_Verteiler WHERE PrüfungID = 10"),
              QStringList{"9140"});
    EXPECT_THROW(db().ersteSpalte("SELECT Code FROM KeineTabelle"), Fehler);
}

INSTANTIATE_TEST_SUITE_P(Motoren, DialektTest, test::beideMotoren, test::motorName);

using SqliteDialektTest = test::Testumgebung;

// A bound value is compared as the literal it replaces: with the column's affinity and collation, a
// number with a text column and a text with a number column. Each condition counts the same rows
// through the store as through plain SQLite with the literal in place.
TEST_F(SqliteDialektTest, BoundLiteralsFindWhatTheLiteralsFound) {
    neueDatenbank(true);
    sql("INSERT INTO \"0100_Verteiler\" (VerteilerID, \"PrüfungID\", Code, Name) VALUES "
        "(901, 7, '001', 'Keller'), (902, 7, '1', 'keller'), (903, 8, '10', 'Dach'), (904, 8, 'A', NULL), "
        "(905, 8, 'B', 'O''Neill');");
    const QStringList bedingungen{"Code = '001'",      "Code = 1",         "Code = 1.0",
                                  "Code = 'a'",        "Name = 'KELLER'",  "PrüfungID = '7'",
                                  "PrüfungID = 7.0",   "PrüfungID > 7",    "VerteilerID <= 902.5",
                                  "Code >= '1'",       "Name <> 'Keller'", "PrüfungID = 1/1*7",
                                  "Code = '1' || '0'", "Name = 'o''neill'"};
    sqlite3* roh = nullptr;
    ASSERT_EQ(sqlite3_open(m_dbPfad.toUtf8().constData(), &roh), SQLITE_OK);
    for (const QString& b : bedingungen) {
        const QString store = "SELECT Count(*) FROM 0100_Verteiler WHERE VerteilerID > 900 AND " + b;
        const QString nativ = "SELECT Count(*) FROM \"0100_Verteiler\" WHERE VerteilerID > 900 AND " + b;
        sqlite3_stmt* s = nullptr;
        ASSERT_EQ(sqlite3_prepare_v2(roh, nativ.toUtf8().constData(), -1, &s, nullptr), SQLITE_OK)
            << nativ.toStdString();
        ASSERT_EQ(sqlite3_step(s), SQLITE_ROW);
        EXPECT_EQ(wert(store), QString::number(sqlite3_column_int(s, 0))) << b.toStdString();
        sqlite3_finalize(s);
    }
    sqlite3_close(roh);
}

} // namespace
