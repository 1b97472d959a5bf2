#include "store/Recordset.h"
#include "store/Verbindung.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

using AnweisungsCacheTest = test::Motorumgebung;
constexpr int Grenze = detail::Verbindung::AnweisungenImCache;

// A record set whose statement has left the cache requeries and writes as before.
TEST_P(AnweisungsCacheTest, RecordSetsOutliveTheirStatementsInTheCache) {
    sql("INSERT INTO Kunde (KundeID, Name) VALUES (1, 'A');");
    Recordset rs = db().OpenRecordset("SELECT * FROM Kunde WHERE KundeID = 1");
    for (int i = 0; i < 2 * Grenze; ++i)
        db().OpenRecordset("SELECT KundeID AS spalte" + QString::number(i) + " FROM Kunde");
    rs.Requery();
    rs.Edit();
    rs.setField("Name", "B");
    rs.Update();
    EXPECT_EQ(wert("SELECT Name FROM Kunde WHERE KundeID = 1"), "B");
}

INSTANTIATE_TEST_SUITE_P(Motoren, AnweisungsCacheTest, test::beideMotoren, test::motorName);

} // namespace
