#include "store/Schema.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

using KopieTest = test::Testumgebung;

// An SQLite database to the server and back: every row with its key, a table of the user's own
// too, and a key the server issues itself follows on from the copied ones.
TEST_F(KopieTest, AWholeDatabaseGoesToTheServerAndBackWithItsKeys) {
    QString grund;
    test::Postgresserver* server = test::Postgresserver::gestartet(&grund);
    if (!server) {
        if (test::Postgresserver::pflicht())
            FAIL() << grund.toStdString();
        GTEST_SKIP() << grund.toStdString();
    }
    neueDatenbank(true);
    sql("INSERT INTO IDIncrement (IDIncrementID, OffsetFaktor, TabelleName, LastID) VALUES (77, 0, 'x', 5);"
        "CREATE TABLE Eigene (Nr INTEGER, Text TEXT(20)); INSERT INTO Eigene VALUES (1, 'Grüße');"
        "UPDATE Kunde SET Name = 'Kopiert' WHERE KundeID = 2;");
    const QString dort = server->leereDatenbank();
    datenbankKopieren(m_dbPfad, dort);
    const QString zurück = pfad("zurueck.db");
    datenbankKopieren(dort, zurück);

    for (const QString& name : {dort, zurück}) {
        const Datenbank kopie = Datenbank::OpenDatabase(name);
        for (const QString& t : db().tabellen())
            EXPECT_EQ(kopie.ersteSpalte("SELECT Count(*) FROM [" + t + "]"),
                      db().ersteSpalte("SELECT Count(*) FROM [" + t + "]"))
                << t.toStdString() << " in " << name.toStdString();
        EXPECT_EQ(kopie.ersteSpalte("SELECT Name FROM Kunde WHERE KundeID = 2"), QStringList{"Kopiert"});
        EXPECT_EQ(kopie.ersteSpalte("SELECT Text FROM Eigene WHERE Nr = 1"), QStringList{"Grüße"});
        kopie.Execute("INSERT INTO IDIncrement (OffsetFaktor, TabelleName, LastID) VALUES (0, 'y', 1)");
        EXPECT_EQ(kopie.ersteSpalte("SELECT IDIncrementID FROM IDIncrement WHERE TabelleName = 'y'"),
                  QStringList{"78"});
    }
}

} // namespace
