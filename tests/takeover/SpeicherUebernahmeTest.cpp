#include "grid/EinleseDatenController.h"
#include "grid/GridBefehle.h"
#include "host/DateiEinlesen.h"
#include "platform/Zahlformat.h"
#include "support/Testumgebung.h"
#include "takeover/Uebernahme.h"

#include <QDir>
#include <QFile>

using namespace vemo;

namespace {

// The memory of a 37xx instrument, saved and read again as a numbered copy, through the grid and
// the take-over into the demo's inspection records: each value in its column, beside its limit.
class SpeicherUebernahme : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        neueDatenbank(true);
        EinleseDatenController::datenübernahmeEinsetzen(Übernehmen);
        zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
        QDir(m_dir.path()).mkpath("sicherung");
        modul().BackupVerzeichnis = pfad("sicherung");
    }
    void TearDown() override {
        zahlformat::ausUmgebung();
        Testumgebung::TearDown();
    }

    // Reads the sample without being told its type, assigns its rows to Bäckerei Sommer's
    // Verkaufsraum unless code splitting has found them their places, and takes them over.
    void übernehmen(const QString& probe, bool zuordnen) {
        const QString kopie = pfad("sicherung/00000007.ser");
        ASSERT_TRUE(QFile::copy(test::quelle("samples/" + probe), kopie));
        modul().Selektor() = "Multitester = Deutsch";
        EinlesenAusDateiName(kopie);
        const QString alle = "1-" + QString::number(anzahl("0100_EinleseDaten"));
        if (zuordnen) {
            ASSERT_EQ(zuordnenBefehl(alle, "1", "1"), 0);
            ASSERT_EQ(zuordnenBefehl(alle, "2", "2"), 0);
        }
        EinleseDatenController form;
        form.übernehmenKlick();
        EXPECT_EQ(m_ui.texte(), QStringList());
        EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
    }

    // An expression over the measurement rows (m) and their limit rows (g) of a circuit in the
    // plant's new inspection, one text a row in the order they were made.
    QString messung(const QString& verteiler, const QString& stromkreis, const QString& ausdruck) const {
        return wert("SELECT Group_Concat(x, ' | ') FROM (SELECT " + ausdruck +
                    " AS x FROM ((((0100_Messung m LEFT JOIN 0100_Grenzwert g ON g.MessID = m.MessID) "
                    "JOIN 0100_Stromkreis s ON s.StromkreisID = m.StromkreisID) JOIN 0100_Verteiler v ON "
                    "v.VerteilerID = s.VerteilerID) JOIN 0100_Prüfung p ON p.PrüfungID = v.PrüfungID) "
                    "WHERE p.PrüfungID >= 10000 AND p.AnlagenID = " +
                    QString::number(m_anlage) + " AND v.Code = '" + verteiler + "' AND s.Code = '" +
                    stromkreis + "' ORDER BY m.MessID)");
    }
    QString prüfung(const QString& spalte) const {
        return wert("SELECT [" + spalte + "] FROM 0100_Prüfung WHERE PrüfungID >= 10000 AND AnlagenID = " +
                    QString::number(m_anlage));
    }

    int m_anlage = 2;
};

// The columns of an RCD test, measured and limit: FIT/FIIMESS/FIUB/FIIDN/FIFaktor/FGRAD, then
// FIUB/FIRE/FIT MIN/FIT MAX of the limit row.
const QString Rcd =
    "ifnull(m.FIT, '') || '/' || ifnull(m.FIIMESS, '') || '/' || m.FIUB || '/' || m.FIIDN || "
    "'/' || ifnull(m.FIFaktor, '') || '/' || m.FGRAD || ' < ' || g.FIUB || '/' || g.FIRE || '/' "
    "|| g.[FIT MIN] || '/' || g.[FIT MAX]";
const QString Schleife =
    "ifnull(m.LOOPRS, '') || '/' || ifnull(m.LoopIKRS, '') || '/' || ifnull(m.LOOPRI, '') || "
    "'/' || ifnull(m.LoopIKRI, '') || '/' || ifnull(m.LOOPNPE, '')";
const QString Isolation = "ifnull(m.RISO, '') || ifnull(m.RISO_LN, '') || ifnull(m.RISO_LPE, '') || "
                          "ifnull(m.RISO_NPE, '') || '/' || m.UISO || ' < ' || g.RISO";

TEST_F(SpeicherUebernahme, The3710sMemoryTravelsTheFileRoad) {
    übernehmen("zemak-3710.ser", true);
    EXPECT_EQ(prüfung("PrüfgerätName1"), "ZEMAK 3710 Ser. Nr.: 3710042");
    EXPECT_EQ(messung("0001", "0001", "m.ULN || ' V ' || m.Frequenz || ' Hz'"), "230 V 50,0 Hz");
    EXPECT_EQ(messung("0001", "0002", "ifnull(" + Isolation + ", 'LOW ' || m.LOW)"),
              "245/530 < >1 | LOW 0,12");
    EXPECT_EQ(messung("0001", "0003", Schleife), "0,35/657/// | //0,28/820/");
    EXPECT_EQ(messung("0001", "0004", Schleife), "0,45////0,40");
    EXPECT_EQ(messung("0002", "0001", Rcd),
              "18//3,5/30/x1/AC 0° < <50/<1666,7//<300 | /24/2,9/30//AC S 180° < <50/<1666,7//<300");
    EXPECT_EQ(messung("0002", "0005", "m.ErdRE"), "12,5");
    EXPECT_EQ(prüfung("Erdungswiderstand"), "12,5");
    EXPECT_EQ(messung("0002", "0006", "m.DREH"), "Rechts");
}

TEST_F(SpeicherUebernahme, The3710BsMemoryTravelsTheFileRoad) {
    übernehmen("zemak-3710b.ser", true);
    EXPECT_EQ(prüfung("PrüfgerätName1"), "ZEMAK 3710B Ser. Nr.: 3711877");
    EXPECT_EQ(messung("0001", "0001", "m.ULN || '/' || m.Bemerkung"), "230/Uac:L-PE");
    EXPECT_EQ(messung("0001", "0002", "ifnull(" + Isolation + ", 'LOW ' || m.LOW)"),
              ">200,0/260 < >0,5 | LOW 0,19");
    EXPECT_EQ(messung("0001", "0003", Schleife), "0,41/561/// | //0,22/1010/");
    EXPECT_EQ(messung("0002", "0001", Rcd), "9//1,7/150/x5/PL 0° < <50/<333,3//<40");
    EXPECT_EQ(messung("0002", "0002", Rcd), "/80/1,2/100//PL S 180° < <25/<250//<300");
    EXPECT_EQ(prüfung("Erdungswiderstand"), "39,0");
    EXPECT_EQ(messung("0002", "0008", "m.DREH"), "Links");
}

TEST_F(SpeicherUebernahme, The3720sCodesFindCustomerAndPlantByThemselves) {
    sql("INSERT INTO init VALUES ('codeSplitting3720', '1');");
    übernehmen("zemak-3720.ser", false);
    EXPECT_EQ(prüfung("PrüfgerätName1"), "ZEMAK 3720B Ser. Nr.: 3720315");
    EXPECT_EQ(messung("0001", "0001", "m.ULN || '/' || m.Bemerkung || '/' || m.Frequenz"),
              "231/Uac:N-PE/50,0");
    EXPECT_EQ(messung("0001", "0002", Isolation), ">200/1010 < >1");
    EXPECT_EQ(messung("0001", "0003", Isolation), "50,0/275 < >0,5");
    EXPECT_EQ(messung("0001", "0004", "m.LOW_N"), "0,30");
    EXPECT_EQ(messung("0001", "0005", Schleife), "0,48////0,42");
    EXPECT_EQ(messung("0001", "0006", Schleife), "0,345/666///");
    EXPECT_EQ(messung("0002", "0001", Rcd), "17//2,5/100/x5/PL S 180° < <50/<500//<40");
    EXPECT_EQ(messung("0002", "0002", Rcd), "/130/0,7/150//B 0° < <25/<166,7//<300");
    EXPECT_EQ(messung("0002", "0009", "m.ErdRE"), "10,00");
    EXPECT_EQ(messung("0002", "0010", "m.DREH"), "Rechts");
}

TEST_F(SpeicherUebernahme, The3740sMemoryTravelsTheFileRoad) {
    übernehmen("zemak-3740.ser", true);
    EXPECT_EQ(prüfung("PrüfgerätName1"), "ZEMAK 3740B Ser. Nr.: 3740226");
    EXPECT_EQ(messung("1202", "0101", "m.ULN || '/' || m.Bemerkung"), "229/Uac:L-PE");
    EXPECT_EQ(messung("1202", "0102", Isolation), "40,0/55 < >0,25");
    EXPECT_EQ(messung("1202", "0103", "m.LOW"), "0,17");
    EXPECT_EQ(messung("1202", "0104", Schleife), "0,38/605///");
    EXPECT_EQ(messung("1202", "0105", Schleife), "0,370/601///");
    EXPECT_EQ(messung("1202", "0201", Rcd), "/8/0,4/10//AC 0° < <50/<5000//<300");
    EXPECT_EQ(prüfung("Erdungswiderstand"), "21,0");
    EXPECT_EQ(messung("1202", "0208", "m.DREH"), "Links");
}

TEST_F(SpeicherUebernahme, TheQuentavoirsCodesFindAnotherCustomer) {
    sql("INSERT INTO init VALUES ('codeSplitting3720', '1');");
    m_anlage = 3; // Wohnbau Nordhang, 34, and her plant 001
    übernehmen("quentavoir.ser", false);
    EXPECT_EQ(prüfung("PrüfgerätName1"), "HELVARD Quentavoir Ser. Nr.: Q9015");
    EXPECT_EQ(messung("0001", "0001", "m.ULN || '/' || m.Bemerkung || '/' || m.Frequenz"),
              "229/Uac:L-N/49,9");
    EXPECT_EQ(messung("0001", "0002", Isolation), "55/61 < >0,25");
    EXPECT_EQ(messung("0001", "0003", "m.LOW"), "0,21");
    EXPECT_EQ(messung("0001", "0004", Schleife), "//0,450/6600/");
    EXPECT_EQ(messung("0001", "0005", Rcd), "290//4,6/10/x1/2/AC 0° < <25/<2500/>300/");
}

} // namespace
