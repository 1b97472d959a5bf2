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

// An empty set is both Bof and Eof; a full one stands on its first row and counts the rows visited;
// a deleted row leaves no current row until the next move.
TEST_P(RecordsetTest, MovingCountingAndDeleting) {
    Recordset leer = db().OpenRecordset("SELECT * FROM 0100_EinleseDaten");
    EXPECT_TRUE(leer.Bof());
    EXPECT_TRUE(leer.Eof());
    EXPECT_EQ(leer.RecordCount(), 0);
    EXPECT_EQ(test::fehlernummer([&] { leer.MoveFirst(); }), 3021);
    EXPECT_EQ(test::fehlernummer([&] { leer.Edit(); }), 3021);

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

    Recordset d = db().OpenRecordset("SELECT * FROM 0100_EinleseDaten ORDER BY MessungID");
    d.MoveNext();
    d.Delete();
    EXPECT_EQ(test::fehlernummer([&] { d.Field("MessungID"); }), 3167);
    d.MoveNext();
    EXPECT_EQ(d.Field("MessungID").toInt(), 3);
    d.MoveLast();
    d.Delete();
    d.MoveNext();
    EXPECT_TRUE(d.Eof());
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 148);
}

// A new row becomes current by LastModified; fields are written only between AddNew or Edit and
// Update, a failing write leaves the set usable; dates and numbers keep their types.
TEST_P(RecordsetTest, WritingRows) {
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

    Recordset f = db().OpenRecordset("0100_EinleseDaten");
    EXPECT_EQ(test::fehlernummer([&] { f.setField("KundeNr", "1"); }), 3020);
    EXPECT_EQ(test::fehlernummer([&] { f.Update(); }), 3020);
    f.AddNew();
    f.setField("MessungID", 9);
    f.CancelUpdate();
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 101); // a row begun and not updated is lost
    EXPECT_EQ(test::fehlernummer([&] { f.Field("gibtsnicht"); }), 3265);
    // A failing write leaves the set usable.
    f.AddNew();
    f.setField("MessungID", 1);
    EXPECT_EQ(test::fehlernummer([&] { f.Update(); }), 3022);
    EXPECT_EQ(test::fehlernummer([&] { f.setField("KundeNr", "x"); }), 3020);

    Recordset p = db().OpenRecordset("0100_Prüfung");
    p.AddNew();
    p.setField("PrüfungID", 1);
    p.setField("Datum", QDate(2024, 3, 1));
    p.Update();
    p.setBookmark(p.LastModified());
    EXPECT_EQ(p.Field("Datum").toDate(), QDate(2024, 3, 1));
    p.Edit();
    p.setField("Datum", "05.04.2024"); // a date given as text is read as a date
    p.setField("Grund1", "0");
    p.Update();
    EXPECT_EQ(p.Field("Datum").toDate(), QDate(2024, 4, 5));
    EXPECT_EQ(p.Field("Grund1").toInt(), 0);
    p.Edit();
    EXPECT_EQ(test::fehlernummer([&] {
                  p.setField("Datum", "kein Datum");
                  p.Update();
              }),
              13);
}

// FindFirst takes the criteria texts of the system; criteria nested too deep are a syntax error,
// not a stack overflow.
TEST_P(RecordsetTest, FindFirstAndItsCriteria) {
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

    Recordset kette = db().OpenRecordset("SELECT * FROM 0100_EinleseDaten");
    // Far more brackets and conjunctions than any criterion of the system still read.
    kette.FindFirst(QString("(").repeated(60) + "MessungID = 2" + QString(")").repeated(60) +
                    QString(" And Not MessungID = 9").repeated(60) +
                    QString(" Or MessungID = 7").repeated(60));
    EXPECT_FALSE(kette.NoMatch());
    EXPECT_EQ(kette.Field("MessungID").toInt(), 2);
    // So deep that reading, testing or freeing the criterion used to exhaust the stack.
    const int tief = 200000;
    const QString verschachtelt = QString("(").repeated(tief) + "MessungID = 1" + QString(")").repeated(tief);
    EXPECT_EQ(test::fehlernummer([&] { kette.FindFirst(verschachtelt); }), 3075);
    EXPECT_EQ(test::fehlernummer([&] { kette.FindFirst(QString("Not ").repeated(tief) + "MessungID = 1"); }),
              3075);
    EXPECT_EQ(test::fehlernummer(
                  [&] { kette.FindFirst("MessungID = 1" + QString(" Or MessungID = 1").repeated(tief)); }),
              3075);
    EXPECT_EQ(kette.Field("MessungID").toInt(), 2); // a refused criterion leaves the cursor where it stood
}

// Query columns are writable through their aliases, a join is not; names are case-insensitive,
// missing tables are reported; saved queries run with their parameter.
TEST_P(RecordsetTest, QueriesNamesAndSavedQueries) {
    sql("INSERT INTO \"0100_Messung\" (MessID, StromkreisID, FIT) VALUES (1, 7, '20');");
    Recordset alias =
        db().OpenRecordset("SELECT MessID,FIT as derWert, StromkreisID as id  FROM 0100_Messung "
                           "WHERE StromkreisID = 7");
    // Names as the statement and the schema spell them, which the server folds to lower case.
    EXPECT_EQ(alias.FieldName(0) + "|" + alias.FieldName(1) + "|" + alias.FieldName(2) + "|" +
                  db().OpenRecordset("0100_EinleseGeräteDaten").FieldName(1),
              "MessID|derWert|id|PrüfgerätName");
    alias.Edit();
    alias.setField("derWert", "35");
    alias.Update();
    EXPECT_EQ(wert("SELECT FIT FROM 0100_Messung WHERE MessID = 1"), "35");
    alias.AddNew();
    alias.setField("MessID", 2);
    alias.setField("ID", 8);
    alias.setField("derWert", "12");
    alias.Update();
    EXPECT_EQ(wert("SELECT FIT FROM 0100_Messung WHERE StromkreisID = 8"), "12");
    alias.setBookmark(alias.LastModified());
    EXPECT_EQ(alias.Text("derWert"), "12");

    Recordset verbund = db().OpenRecordset(
        "SELECT [0100_Messung].MessID, [0100_Grenzwert].RISO FROM 0100_Messung LEFT JOIN 0100_Grenzwert ON "
        "[0100_Messung].MessID = [0100_Grenzwert].MessID");
    EXPECT_EQ(test::fehlernummer([&] { verbund.Edit(); }), 3027);

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

    sql("INSERT INTO \"0100_Anlage\" (AnlageID, KundeID, Code, Nr, Name) VALUES "
        "(1, 5, '002', '', 'B'), (2, 5, '001', 'N', 'A'), (3, 6, '001', '', 'C');");
    QueryDef q = db().QueryDefs("AnlagenVonKunde");
    q.Parameters("paraKundeID") = 5;
    Recordset a = q.OpenRecordset();
    EXPECT_EQ(a.Text("Code"), "001");
    EXPECT_EQ(a.Text("Nr"), "N");
    a.MoveLast();
    EXPECT_EQ(a.RecordCount(), 2);
    EXPECT_EQ(a.Field("AnlageID").toInt(), 1);
    EXPECT_EQ(test::fehlernummer([&] { q.Parameters("paraX"); }), 3265);
    EXPECT_EQ(test::fehlernummer([&] { db().QueryDefs("Gibtsnicht"); }), 3265);
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
