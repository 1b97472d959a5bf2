#include "store/Recordset.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

using OffeneCursorTest = test::Testumgebung;

// A cursor kept open for long, as the key counter's is, still writes after the store has come to
// know many more tables and after a script has changed the schema.
TEST_F(OffeneCursorTest, WritesAfterOtherTablesAndScripts) {
    Recordset kunde = modul().db.OpenRecordset("Kunde");
    Recordset tabellen = modul().db.OpenRecordset("SELECT name FROM sqlite_master WHERE type = 'table'");
    int bekannt = 0;
    for (; !tabellen.Eof(); tabellen.MoveNext(), ++bekannt)
        modul().db.OpenRecordset(tabellen.Text("name"));
    ASSERT_GT(bekannt, 20);
    sql("CREATE TABLE Neu (x INTEGER);");

    kunde.AddNew();
    kunde.setField("KundeID", 5);
    kunde.setField("Name", "Erste");
    kunde.Update();
    kunde.setBookmark(kunde.LastModified());
    kunde.Edit();
    kunde.setField("Name", "Zweite");
    kunde.Update();
    EXPECT_EQ(wert("SELECT Name FROM Kunde WHERE KundeID = 5"), "Zweite");
}

} // namespace
