#include "language/SprachDatenbank.h"
#include "store/Datenbank.h"
#include "store/Schema.h"
#include "support/Kommandozeile.h"
#include "support/Quelldatenbank.h"
#include "support/Testumgebung.h"

namespace vemo::test {
namespace {

class ZuordnenImportBefehlTest : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        neueDatenbank(true);
        spracheDatenbankAnlegen(m_dir.path());
        // The program opens the database as another connection; this one lets go of it.
        modul().db.Close();
    }

    Lauf vemo(const QStringList& befehl) const {
        return vemo0100(QStringList{"--db", m_dbPfad, "--settings", pfad("s.ini")} + befehl);
    }
    QString abfrage(const QString& sql) const {
        const Recordset rs = Datenbank::OpenDatabase(m_dbPfad).OpenRecordset(sql);
        return rs.Eof() ? QString() : rs.Text(rs.FieldName(0));
    }
};

TEST_F(ZuordnenImportBefehlTest, AssignDeviceWritesTheNewestDevicesRows) {
    Datenbank::OpenDatabase(m_dbPfad).skriptAusführen(
        "INSERT INTO \"0100_EinleseGeräteDaten\" (GeräteID, PrüfgerätName) VALUES (1, 'alt'), (2, 'neu');"
        "INSERT INTO \"0100_EinleseDaten\" (MessungID, GeräteID, AnlageNr) VALUES (1, 1, '001'), (2, 2, "
        "'001'), "
        "(3, 2, '001');");
    const Lauf falsch = vemo({"assign-device", "--customer", "1", "--plant", "3"});
    EXPECT_EQ(falsch.status, 1);
    EXPECT_TRUE(falsch.fehler.contains("cannot go to plant 3")) << falsch.fehler.toStdString();
    EXPECT_EQ(abfrage("SELECT Sum(KundeID) FROM 0100_EinleseDaten"), "0");

    const Lauf gut = vemo({"assign-device", "--customer", "1", "--inspection", "1"});
    EXPECT_EQ(gut.status, 0) << gut.fehler.toStdString();
    EXPECT_EQ(abfrage("SELECT group_concat(KundeID || '/' || AnlageID || '/' || PrüfungID, ' ') FROM "
                      "(SELECT * FROM 0100_EinleseDaten ORDER BY MessungID)"),
              "0/0/0 1/1/1 1/1/1");
    EXPECT_EQ(vemo({"assign-device"}).status, 2);
}

TEST_F(ZuordnenImportBefehlTest, ImportShowsItsPercentagesAndItsResult) {
    const Quelldatenbank quelle(pfad("alt.db"));
    quelle.zeile(quellzeile("Neubau Ost", "Halle", "!1/1;;Licht#@"));
    quelle.zeile(quellzeile("Neubau Ost", "Halle"));
    const Lauf lauf = vemo({"import", quelle.pfad()});
    EXPECT_EQ(lauf.status, 0) << lauf.fehler.toStdString();
    EXPECT_EQ(lauf.fehler, "0%\n50%\n100%\nvemotrix professional: Importieren erfolgreich beendet\n");
    EXPECT_EQ(abfrage("SELECT Count(*) FROM Kunde WHERE Name = 'Neubau Ost'"), "1");
    EXPECT_EQ(abfrage("SELECT Count(*) FROM 0100_Stromkreis WHERE Name = 'Licht'"), "1");

    // An older table without a column the import reads ends the run before it writes a row.
    const QString älter = pfad("aelter.db");
    Datenbank::anlegen(älter).skriptAusführen(
        "CREATE TABLE kunden (Kunden, Adresse, Adresse3, Anlage, Reserve3);"
        "INSERT INTO kunden VALUES ('Altbau West', 'Ring 1', '37073 Göttingen', 'Halle', '');");
    const Lauf unvollständig = vemo({"import", älter});
    EXPECT_EQ(unvollständig.status, 1);
    EXPECT_TRUE(unvollständig.fehler.contains("Fehler 3265:  ")) << unvollständig.fehler.toStdString();
    EXPECT_FALSE(unvollständig.fehler.contains("erfolgreich"));
    EXPECT_EQ(abfrage("SELECT Count(*) FROM Kunde WHERE Name IN ('Altbau West', 'xxxxx', '')"), "0");

    const Lauf fehlt = vemo({"import", pfad("fehlt.mdb")});
    EXPECT_EQ(fehlt.status, 1);
    EXPECT_TRUE(fehlt.fehler.startsWith("vemotrix professional: Importieren nicht möglich | Fehler 3024:  "))
        << fehlt.fehler.toStdString();
    EXPECT_EQ(vemo({"import"}).status, 2);
}

} // namespace
} // namespace vemo::test
