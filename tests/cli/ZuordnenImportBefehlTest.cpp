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

} // namespace
} // namespace vemo::test
