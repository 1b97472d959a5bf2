#include "support/Dateien.h"
#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include "MultitesterGeraet.h"
#include "PortLeitung.h"
#include "core/Arbeitsdateien.h"
#include "host/Modul15a.h"
#include "links/Form2.h"
#include "links/ZemakDialog.h"
#include "store/Variant.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

using namespace vemo;

namespace {

// The driver with an instrument on the in-memory line: the dump of the sample board report.
class TransferTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        QDir(m_dir.path()).mkpath("sicherung");
        m_komponente = std::make_unique<vemo0100Modul15a>(m_ui, m_settings);
        m_komponente->setVemotrixDBName(m_dbPfad);
        m_komponente->setBackupVerzeichnis(pfad("sicherung"));
        m_komponente->setCommPort(1);
        m_komponente->setPrüfgeräteTypID(100);
        m_leitung = test::speicherleitungEinstecken(16);
    }
    void TearDown() override {
        m_komponente.reset();
        Testumgebung::TearDown();
    }

    QStringList sicherungen() const { return QDir(pfad("sicherung")).entryList(QDir::Files); }

    std::unique_ptr<vemo0100Modul15a> m_komponente;
    std::unique_ptr<SpeicherCommPort> m_leitung;
};

TEST_F(TransferTest, AReceivedDumpIsParsedAndCopied) {
    const QByteArray dump = test::inhalt(test::quelle("samples/corvex-verteilung.ser"));
    sim::MultitesterGerät gerät(dump, {0, 60});
    sim::PortLeitung leitung(*m_leitung, gerät);
    m_ui.beiDialog = [this, &gerät](DialogController& d) {
        QTimer::singleShot(100, &d, [&gerät] { gerät.tasteGedrückt(); });
        bewachen(*qobject_cast<Form2*>(&d));
    };

    m_komponente->DatenEmpfangen();

    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 14);
    // A serial transfer registers the instrument it did not know.
    EXPECT_EQ(wert("SELECT Seriennummer FROM Prüfgerät WHERE typ = 100"), "98120-00471");
    EXPECT_EQ(wert("SELECT PrüfgerätID FROM 0100_EinleseGeräteDaten"), text(m_komponente->PrüfgerätID()));
    ASSERT_EQ(sicherungen(), QStringList{"00000001.ser"});
    EXPECT_EQ(test::inhalt(pfad("sicherung/00000001.ser")), test::inhalt(arbeitsdatei(datei::Ruvo)));
    EXPECT_TRUE(test::inhalt(arbeitsdatei(datei::Ruvo)).startsWith(dump));
    EXPECT_EQ(m_settings.GetSetting("Application", "LastFile"), "LastFile = 00000001");
}

} // namespace
