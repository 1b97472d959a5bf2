#include "store/Recordset.h"
#include "store/Variant.h"
#include "support/Fehlernummer.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

class RecordsetTest : public test::Motorumgebung {
protected:
    // Rows 1..n of 0100_EinleseDaten, with StromkreisNr "S<i>"; row 3 has a Null Datum.
    void zeilen(int n) {
        for (int i = 1; i <= n; ++i)
            ausführen("INSERT INTO 0100_EinleseDaten (MessungID, StromkreisNr, Datum) VALUES (?, ?, ?)",
                      {i, "S" + QString::number(i), i == 3 ? nullWert() : QVariant("x")});
    }
};

TEST_P(RecordsetTest, CursorStandsOnFirstRowAndCountsVisitedRows) {
    zeilen(150); // more than a page
    Recordset rs = db().OpenRecordset("0100_EinleseDaten");
    EXPECT_FALSE(rs.Bof());
    EXPECT_FALSE(rs.Eof());
    EXPECT_EQ(rs.Field("MessungID").toInt(), 1);
    EXPECT_EQ(rs.RecordCount(), 1);
    rs.MoveNext();
    rs.MoveNext();
    EXPECT_EQ(rs.RecordCount(), 3);
    EXPECT_EQ(rs.AbsolutePosition(), 2);
    EXPECT_EQ(rs.Text("Datum"), ""); // a Null read as text is empty
    EXPECT_TRUE(istNull(rs.Field("Datum")));
    rs.MoveLast();
    EXPECT_EQ(rs.RecordCount(), 150);
    EXPECT_EQ(rs.Field("MessungID").toInt(), 150);
    rs.MoveNext();
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(test::fehlernummer([&] { rs.MoveNext(); }), 3021);
    EXPECT_EQ(test::fehlernummer([&] { rs.Field("MessungID"); }), 3021);
    rs.setAbsolutePosition(99);
    EXPECT_EQ(rs.Text("StromkreisNr"), "S100");
    rs.Move(-99);
    EXPECT_EQ(rs.AbsolutePosition(), 0);
    rs.MovePrevious();
    EXPECT_TRUE(rs.Bof());
}

TEST_P(RecordsetTest, EmptySetIsBothBofAndEof) {
    Recordset rs = db().OpenRecordset("SELECT * FROM 0100_EinleseDaten");
    EXPECT_TRUE(rs.Bof());
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(rs.RecordCount(), 0);
    EXPECT_EQ(test::fehlernummer([&] { rs.MoveFirst(); }), 3021);
    EXPECT_EQ(test::fehlernummer([&] { rs.Edit(); }), 3021);
}

TEST_P(RecordsetTest, AddNewThenLastModifiedMakesTheNewRowCurrent) {
    zeilen(100);
    Recordset rs = db().OpenRecordset("0100_EinleseDaten"); // not read to its end
    rs.AddNew();
    EXPECT_EQ(rs.Text("KundeNr"), ""); // the store's default
    rs.setField("MessungID", 5000);
    rs.setField("StromkreisNr", "0007");
    rs.Update();
    EXPECT_EQ(rs.Field("MessungID").toInt(), 1); // the current row has not moved
    rs.setBookmark(rs.LastModified());
    EXPECT_EQ(rs.Field("MessungID").toInt(), 5000);
    EXPECT_EQ(rs.Field("KundeID").toInt(), 0);
    rs.MoveLast();
    EXPECT_EQ(rs.Field("MessungID").toInt(), 5000);
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 101);

    const Bookmark b = rs.bookmark();
    rs.MoveFirst();
    rs.Edit();
    rs.setField("StromkreisNr", "0001");
    rs.Update();
    rs.setBookmark(b);
    EXPECT_EQ(rs.Field("MessungID").toInt(), 5000);
    rs.setBookmark(rs.LastModified());
    EXPECT_EQ(rs.Text("StromkreisNr"), "0001");
    EXPECT_EQ(wert("SELECT StromkreisNr FROM 0100_EinleseDaten WHERE MessungID = 1"), "0001");
}

TEST_P(RecordsetTest, FieldsAreWrittenOnlyBetweenAddNewOrEditAndUpdate) {
    zeilen(2);
    Recordset rs = db().OpenRecordset("0100_EinleseDaten");
    EXPECT_EQ(test::fehlernummer([&] { rs.setField("KundeNr", "1"); }), 3020);
    EXPECT_EQ(test::fehlernummer([&] { rs.Update(); }), 3020);
    rs.AddNew();
    rs.setField("MessungID", 9);
    rs.CancelUpdate();
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 2); // a row begun and not updated is lost
    EXPECT_EQ(test::fehlernummer([&] { rs.Field("gibtsnicht"); }), 3265);
    // A failing write leaves the set usable.
    rs.AddNew();
    rs.setField("MessungID", 1);
    EXPECT_EQ(test::fehlernummer([&] { rs.Update(); }), 3022);
    EXPECT_EQ(test::fehlernummer([&] { rs.setField("KundeNr", "x"); }), 3020);
}

TEST_P(RecordsetTest, DeleteLeavesNoCurrentRowUntilTheNextMove) {
    zeilen(4);
    Recordset rs = db().OpenRecordset("SELECT * FROM 0100_EinleseDaten ORDER BY MessungID");
    rs.MoveNext();
    rs.Delete();
    EXPECT_EQ(test::fehlernummer([&] { rs.Field("MessungID"); }), 3167);
    rs.MoveNext();
    EXPECT_EQ(rs.Field("MessungID").toInt(), 3);
    rs.MoveLast();
    rs.Delete();
    rs.MoveNext();
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 2);
}

TEST_P(RecordsetTest, FindFirstTakesTheCriteriaTextsOfTheSystem) {
    zeilen(5);
    sql("INSERT INTO \"0100_Anlage\" (AnlageID, KundeID, Code) VALUES (1, 1, '001'), (2, 1, '003');");
    Recordset rs = db().OpenRecordset("SELECT * FROM 0100_EinleseDaten");
    rs.FindFirst("MessungID = 4");
    EXPECT_FALSE(rs.NoMatch());
    EXPECT_EQ(rs.Field("MessungID").toInt(), 4);
    rs.FindFirst("MessungID = 40");
    EXPECT_TRUE(rs.NoMatch());
    EXPECT_EQ(rs.Field("MessungID").toInt(), 4); // a miss leaves the cursor where it stood
    rs.FindFirst("StromkreisNr = 's2'");         // text compares without regard to case
    EXPECT_EQ(rs.Field("MessungID").toInt(), 2);
    rs.FindNext("MessungID > 1 And Datum = 'x'");
    EXPECT_EQ(rs.Field("MessungID").toInt(), 4);

    Recordset anlagen = db().OpenRecordset("SELECT * FROM 0100_Anlage");
    anlagen.FindFirst("Code ='003'");
    EXPECT_EQ(anlagen.Field("AnlageID").toInt(), 2);

    sql("CREATE TABLE Woerter (\"0\" TEXT, \"1\" TEXT); INSERT INTO Woerter VALUES ('a', 'Name'), ('b', "
        "'Version');");
    Recordset w = db().OpenRecordset("Woerter");
    w.FindFirst("[1] = 'Version'");
    EXPECT_EQ(w.Text("0"), "b");
    EXPECT_EQ(test::fehlernummer([&] { w.FindFirst("[1] = "); }), 3075);
}

TEST_P(RecordsetTest, CriteriaNestedTooDeepAreASyntaxErrorNotAStackOverflow) {
    zeilen(3);
    Recordset rs = db().OpenRecordset("SELECT * FROM 0100_EinleseDaten");
    // Far more brackets and conjunctions than any criterion of the system still read.
    rs.FindFirst(QString("(").repeated(60) + "MessungID = 2" + QString(")").repeated(60) +
                 QString(" And Not MessungID = 9").repeated(60) + QString(" Or MessungID = 7").repeated(60));
    EXPECT_FALSE(rs.NoMatch());
    EXPECT_EQ(rs.Field("MessungID").toInt(), 2);
    // So deep that reading, testing or freeing the criterion used to exhaust the stack.
    const int tief = 200000;
    const QString verschachtelt = QString("(").repeated(tief) + "MessungID = 1" + QString(")").repeated(tief);
    EXPECT_EQ(test::fehlernummer([&] { rs.FindFirst(verschachtelt); }), 3075);
    EXPECT_EQ(test::fehlernummer([&] { rs.FindFirst(QString("Not ").repeated(tief) + "MessungID = 1"); }),
              3075);
    EXPECT_EQ(test::fehlernummer(
                  [&] { rs.FindFirst("MessungID = 1" + QString(" Or MessungID = 1").repeated(tief)); }),
              3075);
    EXPECT_EQ(rs.Field("MessungID").toInt(), 2); // a refused criterion leaves the cursor where it stood
}

TEST_P(RecordsetTest, QueryColumnsAreWritableThroughAliases) {
    sql("INSERT INTO \"0100_Messung\" (MessID, StromkreisID, FIT) VALUES (1, 7, '20');");
    Recordset rs = db().OpenRecordset("SELECT MessID,FIT as derWert, StromkreisID as id  FROM 0100_Messung "
                                      "WHERE StromkreisID = 7");
    // Names as the statement and the schema spell them, which the server folds to lower case.
    EXPECT_EQ(rs.FieldName(0) + "|" + rs.FieldName(1) + "|" + rs.FieldName(2) + "|" +
                  db().OpenRecordset("0100_EinleseGeräteDaten").FieldName(1),
              "MessID|derWert|id|PrüfgerätName");
    rs.Edit();
    rs.setField("derWert", "35");
    rs.Update();
    EXPECT_EQ(wert("SELECT FIT FROM 0100_Messung WHERE MessID = 1"), "35");
    rs.AddNew();
    rs.setField("MessID", 2);
    rs.setField("ID", 8);
    rs.setField("derWert", "12");
    rs.Update();
    EXPECT_EQ(wert("SELECT FIT FROM 0100_Messung WHERE StromkreisID = 8"), "12");
    rs.setBookmark(rs.LastModified());
    EXPECT_EQ(rs.Text("derWert"), "12");

    Recordset verbund = db().OpenRecordset(
        "SELECT [0100_Messung].MessID, [0100_Grenzwert].RISO FROM 0100_Messung LEFT JOIN 0100_Grenzwert ON "
        "[0100_Messung].MessID = [0100_Grenzwert].MessID");
    EXPECT_EQ(test::fehlernummer([&] { verbund.Edit(); }), 3027);
}

TEST_P(RecordsetTest, NamesAreCaseInsensitiveAndMissingTablesAreReported) {
    sql("INSERT INTO \"0100_Stromkreis\" (StromkreisID, VerteilerID, Code) VALUES (1, 1, '001');");
    EXPECT_EQ(db().OpenRecordset("0100_STROMKREIS").Text("code"), "001");
    EXPECT_EQ(
        db().OpenRecordset("SELECT * FROM 0100_stromkreis WHERE CODE = '001'").Field("stromkreisid").toInt(),
        1);
    EXPECT_EQ(db().OpenRecordset("0100_prüfung").FieldIndex("PRÜFUNGID"), 0);
    EXPECT_NO_THROW(db().TableDefs("kunde"));
    EXPECT_EQ(test::fehlernummer([&] { db().TableDefs("Kunden"); }), 3078);
    EXPECT_EQ(test::fehlernummer([&] { db().OpenRecordset("SELECT * FROM Nirgends"); }), 3078);
    EXPECT_EQ(test::fehlernummer([&] { db().OpenRecordset("Nirgends"); }), 3078);
}

TEST_P(RecordsetTest, SavedQueriesRunWithTheirParameter) {
    sql("INSERT INTO \"0100_Anlage\" (AnlageID, KundeID, Code, Nr, Name) VALUES "
        "(1, 5, '002', '', 'B'), (2, 5, '001', 'N', 'A'), (3, 6, '001', '', 'C');");
    QueryDef q = db().QueryDefs("AnlagenVonKunde");
    q.Parameters("paraKundeID") = 5;
    Recordset rs = q.OpenRecordset();
    EXPECT_EQ(rs.Text("Code"), "001");
    EXPECT_EQ(rs.Text("Nr"), "N");
    rs.MoveLast();
    EXPECT_EQ(rs.RecordCount(), 2);
    EXPECT_EQ(rs.Field("AnlageID").toInt(), 1);
    EXPECT_EQ(test::fehlernummer([&] { q.Parameters("paraX"); }), 3265);
    EXPECT_EQ(test::fehlernummer([&] { db().QueryDefs("Gibtsnicht"); }), 3265);
}

TEST_P(RecordsetTest, DatesAndNumbersKeepTheirTypes) {
    Recordset rs = db().OpenRecordset("0100_Prüfung");
    rs.AddNew();
    rs.setField("PrüfungID", 1);
    rs.setField("Datum", QDate(2024, 3, 1));
    rs.Update();
    rs.setBookmark(rs.LastModified());
    EXPECT_EQ(rs.Field("Datum").toDate(), QDate(2024, 3, 1));
    rs.Edit();
    rs.setField("Datum", "05.04.2024"); // a date given as text is read as a date
    rs.setField("Grund1", "0");
    rs.Update();
    EXPECT_EQ(rs.Field("Datum").toDate(), QDate(2024, 4, 5));
    EXPECT_EQ(rs.Field("Grund1").toInt(), 0);
    rs.Edit();
    EXPECT_EQ(test::fehlernummer([&] {
                  rs.setField("Datum", "kein Datum");
                  rs.Update();
              }),
              13);
}

// Values given for the placeholders go in as values: an apostrophe or a piece of SQL in them is
// only text, and the set they select is written and requeried like any other.
TEST_P(RecordsetTest, PlaceholdersTakeValuesNeverStatementText) {
    db().Execute("INSERT INTO Kunde (KundeID, Name, Nummernkreis) VALUES (?, ?, ?)", {1, "O'Neill", "12"});
    db().Execute("INSERT INTO Kunde (KundeID, Name, Nummernkreis) VALUES (?, ?, ?)",
                 {2, "x' OR '1'='1", nullWert()});
    Recordset rs = db().OpenRecordset("SELECT * FROM Kunde WHERE Name = ?", {"o'neill"});
    EXPECT_EQ(rs.Field("KundeID").toInt(), 1);
    rs.MoveLast();
    EXPECT_EQ(rs.RecordCount(), 1);
    const Recordset fremd = db().OpenRecordset("SELECT * FROM Kunde WHERE Name = ?", {"x' OR '1'='1"});
    EXPECT_EQ(fremd.Field("KundeID").toInt(), 2);
    EXPECT_TRUE(istNull(fremd.Field("Nummernkreis")));

    rs.Edit();
    rs.setField("Name", "O'Brien");
    rs.Update();
    EXPECT_EQ(wert("SELECT Name FROM Kunde WHERE KundeID = 1"), "O'Brien");
    rs.Requery();
    EXPECT_TRUE(rs.Eof());

    db().Execute("INSERT INTO [0100_Anlage] (AnlageID, KundeID, Code, NächstePrüfung) VALUES (?, ?, ?, ?)",
                 {5, 1, "001", QDate(2024, 3, 1)});
    EXPECT_EQ(db().OpenRecordset("SELECT NächstePrüfung FROM 0100_Anlage WHERE KundeID = ? AND Code = ?",
                                 {1, "001"})
                  .Field(0)
                  .toDate(),
              QDate(2024, 3, 1));

    EXPECT_EQ(
        test::fehlernummer([&] { db().Execute("INSERT INTO Kunde (KundeID, Name) VALUES (?, ?)", {3}); }),
        3061);
    EXPECT_EQ(test::fehlernummer([&] { db().OpenRecordset("SELECT * FROM Kunde WHERE KundeID = ?", {}); }),
              3061);
    EXPECT_EQ(anzahl("Kunde"), 2);
    EXPECT_EQ(test::fehlernummer([] { Datenbank().OpenRecordset("SELECT * FROM Kunde", {}); }), 91);
}

INSTANTIATE_TEST_SUITE_P(Motoren, RecordsetTest, test::beideMotoren, test::motorName);

} // namespace
