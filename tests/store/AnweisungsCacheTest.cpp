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

// Statements that differ only in the key spliced into their condition are one prepared statement.
// A column added meanwhile, by a statement or by a script, is in the next set opened on the same
// text.
TEST_P(AnweisungsCacheTest, SplicedKeysShareOneStatementThatFollowsTheSchema) {
    sql("INSERT INTO Kunde (KundeID, Name) VALUES (1, 'A'), (2, 'B'), (3, 'C');");
    const auto verbindung = detail::Verbindung::öffnen(m_dbPfad, false);
    detail::Verbindung& v = *verbindung;
    const int vorher = v.anweisungenImCache();
    for (int i = 0; i < 3 * Grenze; ++i) {
        const Übersetzung ü =
            v.übersetzung("SELECT Name FROM Kunde WHERE KundeID = " + QString::number(i % 3 + 1));
        detail::Schritt s(v.anweisung(ü.sql));
        s.platzhalterBinden(ü.werte);
        ASSERT_TRUE(s.weiter());
        EXPECT_EQ(s.wert(0).toString(), QString(QChar('A' + i % 3)));
    }
    EXPECT_EQ(v.anweisungenImCache(), vorher + 1);

    const QString text = "SELECT * FROM Kunde WHERE KundeID = 2";
    EXPECT_LT(db().OpenRecordset(text).FieldIndex("Hier"), 0);
    db().Execute("ALTER TABLE Kunde ADD COLUMN Hier TEXT");
    EXPECT_GE(db().OpenRecordset(text).FieldIndex("Hier"), 0);
    sql("ALTER TABLE Kunde ADD COLUMN Dort TEXT; UPDATE Kunde SET Dort = 'd' WHERE KundeID = 2;");
    EXPECT_EQ(db().OpenRecordset(text).Text("Dort"), "d");
}

INSTANTIATE_TEST_SUITE_P(Motoren, AnweisungsCacheTest, test::beideMotoren, test::motorName);

} // namespace
