#include "core/Arbeitsdateien.h"
#include "core/Arbeitsdateisperre.h"
#include "core/Arbeitsordner.h"
#include "core/Geraetetypen.h"
#include "host/DateiEinlesen.h"
#include "host/Dateinummern.h"
#include "host/Modul15a.h"
#include "language/SprachDatenbank.h"
#include "platform/Dialog.h"
#include "store/Variant.h"
#include "support/Dateien.h"
#include "support/Testumgebung.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <functional>

using namespace vemo;

namespace {

class HostTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        QDir(m_dir.path()).mkpath("sicherung");
        modul().BackupVerzeichnis = pfad("sicherung");
    }

    QString datei(const QString& name, const QByteArray& bytes) const {
        test::schreiben(pfad(name), bytes);
        return pfad(name);
    }
    QString lastFile() const { return m_settings.GetSetting("Application", "LastFile"); }
};

TEST_F(HostTest, FileNumbersAdvancePastCopiesThatExist) {
    EXPECT_EQ(NächsteDateiNummer(), "00000001"); // first use, no setting
    m_settings.SaveSetting("Application", "LastFile", "LastFile = 00000041");
    datei("sicherung/00000042.ser", "x");
    EXPECT_EQ(NächsteDateiNummer(), "00000043");
    EXPECT_EQ(lastFile(), "LastFile = 00000043");
    EXPECT_EQ(modul().selektorTabelle[19], "LastFile = 00000041");

    m_settings.SaveSetting("Application", "LastFile", "LastFile = 99999998");
    EXPECT_EQ(NächsteDateiNummer(), "00000000"); // 99999999 is never used
    EXPECT_EQ(lastFile(), "LastFile = 00000000");
    EXPECT_EQ(NächsteDateiNummer(), "00000001");

    EXPECT_EQ(NächsteSepNummer(), "00000002");
    datei("sicherung/00000003.ser", "x");
    EXPECT_EQ(NächsteSepNummer(), "00000003"); // provisional: no look at the directory

    modul().BackupVerzeichnis = pfad("gibtsnicht");
    EXPECT_EQ(NächsteDateiNummer(), "");
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("76 "));
}

TEST_F(HostTest, PropertiesKeepTheirContract) {
    vemo0100Modul15a k(m_ui, m_settings);
    k.setPrüfgeräteTypID(104);
    EXPECT_EQ(k.PrüfgeräteTypID().toString(), "vemotrix professional");
    k.setApplicationName("Prüfprogramm");
    EXPECT_TRUE(istEmpty(k.ApplicationName())) << "the name set is never read back";
    EXPECT_EQ(k.PrüfgeräteTypID().toString(), "Prüfprogramm");

    spracheDatenbankAnlegen(m_dir.path());
    k.setVemotrixDBName(m_dbPfad);
    EXPECT_TRUE(k.vemotrixDB().istOffen());
    EXPECT_EQ(QDir(modul().Datenbankverzeichnis), QDir(m_dir.path()));
    k.setSprache("English (United Kingdom)");
    EXPECT_EQ(xText("Messungen"), "Measurements");
    EXPECT_EQ(modul().mulTexte.value(7).left(24), "S: 255    FI-Analyse    ");
    EXPECT_EQ(m_settings.GetSetting("Application", "Directory"), modul().Datenbankverzeichnis);
    k.DatenLogger(); // available, and does nothing
    EXPECT_TRUE(m_ui.meldungen.isEmpty());

    k.EinleseDaten();
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_EQ(m_ui.meldungen[0].text, "There is no read-in data"); // translated
    EXPECT_EQ(m_ui.meldungen[0].titel, "Prüfprogramm");
    EXPECT_TRUE(m_ui.dialoge.isEmpty());

    QFile::remove(pfad("Ruvo.MUL"));
    k.setSprache("Deutsch");
    ASSERT_EQ(m_ui.meldungen.size(), 2);
    EXPECT_TRUE(m_ui.meldungen[1].text.startsWith("53   ")); // three blanks for the word tables

    sql("DROP TABLE Kunde");
    k.setVemotrixDBName(m_dbPfad);
    EXPECT_FALSE(k.vemotrixDB().istOffen());
    EXPECT_TRUE(m_ui.meldungen.last().text.startsWith("3078 "));
}

TEST_F(HostTest, ReadingAFileCopiesItAndUsesUpANumber) {
    vemo0100Modul15a k(m_ui, m_settings);
    const QByteArray dump("OMNIVAR \xE4 Messung\r\n---\r\n5830 xyz\r\n\r\n", 33);
    const QString quelle = datei("kunde.ser", dump);
    modul().Selektor() = "vorher";

    m_ui.gewählteDatei.reset(); // the user cancels the dialog
    k.EinlesenAusDatei();
    EXPECT_EQ(modul().Selektor(), "vorher");
    EXPECT_EQ(lastFile(), "");
    EXPECT_EQ(m_ui.dateiDialoge.size(), 1);

    m_ui.gewählteDatei = quelle;
    k.EinlesenAusDatei();
    EXPECT_EQ(modul().Selektor(), selektor::Deutsch);
    EXPECT_EQ(test::inhalt(arbeitsdatei(datei::Ruvo)), dump); // byte for byte
    EXPECT_EQ(lastFile(), "LastFile = 00000001");
    EXPECT_EQ(modul().dateinameGewählt, quelle);
    EXPECT_TRUE(QDir(pfad("sicherung")).isEmpty()) << "no copy of a file read";
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

// A run that could not finish stores nothing: the backup folder is missing (the copy at the end
// would fail), or another run keeps the working files.
TEST_F(HostTest, ARunThatCannotFinishIsToldBeforeAnythingIsStored) {
    vemo0100Modul15a k(m_ui, m_settings);
    k.setPrüfgeräteTypID(100);
    m_ui.beiDialog = [](DialogController& d) { d.schließen(); };
    const QString probe = test::quelle("samples/corvex-verteilung.ser");
    const std::function<void()> läufe[] = {[&] { k.EinlesenAusDateiName(probe); },
                                           [&] { k.DatenEmpfangen(); }};
    for (const auto& lauf : läufe) {
        m_ui.meldungen.clear();
        modul().BackupVerzeichnis = pfad("gibtsnicht");
        lauf();
        ASSERT_EQ(m_ui.meldungen.size(), 1);
        EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("76 Pfad nicht gefunden"))
            << m_ui.meldungen[0].text.toStdString();
        EXPECT_EQ(modul().Abbruchmerker, 1);

        modul().BackupVerzeichnis = pfad("sicherung");
        const Arbeitsdateisperre andererLauf;
        ASSERT_TRUE(andererLauf.gehalten());
        lauf();
        EXPECT_EQ(m_ui.texte().value(1), "Die Arbeitsdateien werden von einer anderen Übertragung benutzt.");
        EXPECT_EQ(modul().Abbruchmerker, 1);
    }
    EXPECT_EQ(m_ui.meldungen.size(), 2);
    EXPECT_TRUE(m_ui.dialoge.isEmpty());
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
    EXPECT_FALSE(QFileInfo::exists(arbeitsdatei(datei::Ruvo)));
    EXPECT_EQ(lastFile(), "");
}

} // namespace

// Each workplace reads into its own work folder: the database's folder gets no working file, word
// tables a workplace already has are its own, and a server's database, which has no folder, puts
// the working files beside the workplace's settings.
TEST_F(HostTest, WorkingFilesLieInTheWorkplacesFolder) {
    QDir().mkpath(pfad("platz"));
    datei("platz/Ruvo.MNU", "eigene Wörter\r\n");
    vemo0100Modul15a k(m_ui, m_settings);
    k.setArbeitsverzeichnis(pfad("platz"));
    k.setVemotrixDBName(m_dbPfad);
    k.setPrüfgeräteTypID(100);
    k.EinlesenAusDateiName(test::quelle("samples/corvex-verteilung.ser"));

    EXPECT_GT(anzahl("0100_EinleseDaten"), 0);
    EXPECT_TRUE(QFileInfo::exists(pfad("platz/") + datei::Ruvo));
    EXPECT_FALSE(QFileInfo::exists(pfad(datei::Ruvo)));
    EXPECT_EQ(test::inhalt(pfad("platz/Ruvo.MNU")), "eigene Wörter\r\n");
    EXPECT_TRUE(QFileInfo::exists(pfad("platz/Ruvo.MUL")));

    m_settings.ordnerPfad = pfad("einstellungen");
    EXPECT_EQ(arbeitsordner("postgresql://prüfer@/büro", "", m_settings), pfad("einstellungen"));
    EXPECT_TRUE(QFileInfo::exists(pfad("einstellungen/Ruvo.MNU")));
    EXPECT_EQ(arbeitsordner(m_dbPfad, "", m_settings), m_dir.path());
}
