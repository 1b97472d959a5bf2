#include "grid/EinleseDatenController.h"
#include "grid/GridBefehle.h"
#include "host/DateiEinlesen.h"
#include "host/Modul15a.h"
#include "language/SprachDatenbank.h"
#include "platform/Zahlformat.h"
#include "support/Testumgebung.h"
#include "takeover/Uebernahme.h"

using namespace vemo;

namespace {

// Under "English (United Kingdom)" the memory of a 37xx instrument goes through the grid into the
// demo's certificate inspection (customer, plant and inspection 40, with a board "001" of its own).
class ZertifikatStrecke : public test::Motorumgebung {
protected:
    void SetUp() override {
        Motorumgebung::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        neueDatenbank(true);
        spracheDatenbankAnlegen(m_dir.path());
        spracheEinstellen("English (United Kingdom)");
        EinleseDatenController::datenübernahmeEinsetzen(Übernehmen);
        zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
        modul().BackupVerzeichnis = m_dir.path();
    }
    void TearDown() override {
        zahlformat::ausUmgebung();
        Testumgebung::TearDown();
    }

    // A column of the certificate inspection's circuit, by board and circuit code.
    QString kreis(const QString& verteiler, const QString& stromkreis, const QString& spalte) const {
        return db()
            .ersteSpalte("SELECT m.[" + spalte +
                             "] FROM (0100_Messung m JOIN 0100_Stromkreis s ON s.StromkreisID = "
                             "m.StromkreisID) JOIN 0100_Verteiler v ON v.VerteilerID = s.VerteilerID "
                             "WHERE v.PrüfungID = 40 AND v.Code = ? AND s.Code = ? ORDER BY m.MessID",
                         {verteiler, stromkreis})
            .join(" | ");
    }
    QString verteiler(const QString& code, const QString& spalte) const {
        return wert("SELECT [" + spalte + "] FROM 0100_Verteiler WHERE PrüfungID = 40 AND Code = ?", {code});
    }
    QString anlage(const QString& spalte) const {
        return wert("SELECT [" + spalte + "] FROM 0100U_CertNic WHERE pid = 40");
    }
};

TEST_P(ZertifikatStrecke, WorstValuesOfCircuitBoardAndInstallation) {
    sql("UPDATE \"0100_Prüfung\" SET typ = '' WHERE \"PrüfungID\" = 40;"); // an empty typ is a certificate
                                                                           // too
    EinlesenAusDateiName(test::quelle("samples/zemak-3710.ser"));
    ASSERT_EQ(anzahl("0100_EinleseDaten"), 10);
    const QString alle = "1-10";
    ASSERT_EQ(zuordnenBefehl(alle, "1", "40"), 0);
    ASSERT_EQ(zuordnenBefehl(alle, "2", "40"), 0);
    ASSERT_EQ(zuordnenBefehl(alle, "3", "40"), 0);
    m_ui.beiDialog = [](DialogController& form) {
        static_cast<EinleseDatenController&>(form).übernehmenKlick();
        form.schließen();
    };
    vemo0100Modul15a komponente(m_ui, m_settings);
    komponente.EinleseDaten();
    EXPECT_EQ(m_ui.texte(), QStringList());
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
    EXPECT_EQ(anzahl("0100_EinleseMessDaten"), 0);
    EXPECT_EQ(komponente.ListePrüfungID().toInt(), 40);

    // Each circuit of the dump has its one row, holding only the worst values.
    EXPECT_EQ(kreis("0001", "0002", "RISO"), "245");
    EXPECT_EQ(kreis("0001", "0002", "LOW"), "0,12");
    EXPECT_EQ(kreis("0001", "0002", "UISO"), "");
    EXPECT_EQ(kreis("0001", "0003", "LOOPRS"), "0,35");
    EXPECT_EQ(kreis("0001", "0004", "LOOPRS"), "0,45");
    EXPECT_EQ(kreis("0002", "0001", "FIT_x1"), "18");
    EXPECT_EQ(kreis("0002", "0001", "FIT_x5") + kreis("0002", "0001", "FIT_x12"), ""); // a test at x1
    EXPECT_EQ(kreis("0002", "0001", "FIT"), "");
    EXPECT_EQ(kreis("0001", "0001", "ULN"), "");
    EXPECT_EQ(wert("SELECT Max(n) FROM (SELECT Count(*) AS n FROM 0100_Messung GROUP BY StromkreisID) AS je"),
              "1");

    EXPECT_EQ(verteiler("0001", "ZsMax"), "0,45");
    EXPECT_EQ(verteiler("0001", "IpfMax"), "0,82"); // 0,82 KA against 657 A, compared in kA
    EXPECT_EQ(verteiler("0002", "FIT_x1"), "18");
    EXPECT_EQ(verteiler("0002", "ZsMax"), "");
    EXPECT_EQ(verteiler("001", "ZsMax"), ""); // the inspection's own board saw nothing

    EXPECT_EQ(anlage("ZsMax"), "0,45");
    EXPECT_EQ(anlage("RisoMin"), "245");
    EXPECT_EQ(anlage("RaMax"), "12,5");
    EXPECT_EQ(anlage("UoMax"), "230");
    EXPECT_EQ(anlage("IpfMax"), "0,82");
    EXPECT_EQ(wert("SELECT Erdungswiderstand FROM 0100_Prüfung WHERE PrüfungID = 40"), "");
}

INSTANTIATE_TEST_SUITE_P(Motoren, ZertifikatStrecke, test::beideMotoren, test::motorName);

} // namespace
