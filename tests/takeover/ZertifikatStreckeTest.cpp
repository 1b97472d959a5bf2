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

    // Columns of the certificate inspection's circuit (m, by board and circuit code) and board.
    QString kreis(const QString& verteiler, const QString& stromkreis, const QString& spalten) const {
        return zeile(
            "SELECT " + spalten +
                " FROM (0100_Messung m JOIN 0100_Stromkreis s ON s.StromkreisID = m.StromkreisID) JOIN "
                "0100_Verteiler v ON v.VerteilerID = s.VerteilerID WHERE v.PrüfungID = 40 AND v.Code = "
                "? AND s.Code = ?",
            {verteiler, stromkreis});
    }
    QString verteiler(const QString& code, const QString& spalten) const {
        return zeile("SELECT " + spalten + " FROM 0100_Verteiler WHERE PrüfungID = 40 AND Code = ?", {code});
    }
};

TEST_P(ZertifikatStrecke, WorstValuesOfCircuitBoardAndInstallation) {
    // An empty typ is a certificate too.
    sql("UPDATE \"0100_Prüfung\" SET typ = '' WHERE \"PrüfungID\" = 40;");
    EinlesenAusDateiName(test::quelle("samples/zemak-3710.ser"));
    ASSERT_EQ(anzahl("0100_EinleseDaten"), 10);
    for (const QString ebene : {"1", "2", "3"})
        ASSERT_EQ(zuordnenBefehl("1-10", ebene, "40"), 0);
    m_ui.beiDialog = [](DialogController& form) {
        static_cast<EinleseDatenController&>(form).übernehmenKlick();
        form.schließen();
    };
    vemo0100Modul15a komponente(m_ui, m_settings);
    komponente.EinleseDaten();
    EXPECT_EQ(m_ui.texte(), QStringList());
    EXPECT_EQ(anzahlen("0100_EinleseDaten|0100_EinleseMessDaten"), "0|0");
    EXPECT_EQ(komponente.ListePrüfungID().toInt(), 40);

    // Each circuit of the dump has its one row, holding only the worst values; the RCD test was at x1.
    EXPECT_EQ(kreis("0001", "0002", "m.RISO, m.LOW, m.UISO"), "245|0,12|");
    EXPECT_EQ(kreis("0001", "0003", "m.LOOPRS") + " " + kreis("0001", "0004", "m.LOOPRS"), "0,35 0,45");
    EXPECT_EQ(kreis("0002", "0001", "m.FIT_x1, m.FIT_x5, m.FIT_x12, m.FIT"), "18|||");
    EXPECT_EQ(kreis("0001", "0001", "m.ULN"), "");
    EXPECT_EQ(wert("SELECT Max(n) FROM (SELECT Count(*) AS n FROM 0100_Messung GROUP BY StromkreisID) AS je"),
              "1");

    // 0,82 KA against 657 A, compared in kA; the inspection's own board "001" saw nothing.
    EXPECT_EQ(verteiler("0001", "ZsMax, IpfMax"), "0,45|0,82");
    EXPECT_EQ(verteiler("0002", "FIT_x1, ZsMax"), "18|");
    EXPECT_EQ(verteiler("001", "ZsMax"), "");
    EXPECT_EQ(zeile("SELECT ZsMax, RisoMin, RaMax, UoMax, IpfMax FROM 0100U_CertNic WHERE pid = 40"),
              "0,45|245|12,5|230|0,82");
    EXPECT_EQ(wert("SELECT Erdungswiderstand FROM 0100_Prüfung WHERE PrüfungID = 40"), "");
}

INSTANTIATE_TEST_SUITE_P(Motoren, ZertifikatStrecke, test::beideMotoren, test::motorName);

} // namespace
