#include "support/Leitung.h"

#include "PortLeitung.h"
#include "ZemakGeraet.h"
#include "core/Geraetetypen.h"
#include "core/InitTabelle.h"
#include "links/ZemakEinstellung.h"
#include "links/ZemakEinstellungAnsicht.h"
#include "support/Testumgebung.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace vemo::test {
namespace {

// The settings dialog of the 37xx family: its settings in init, and an instrument on the in-memory
// line for what it sends and shows.
class ZemakEinstellungTest : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        modul().CommPort = 1;
    }

    // A 3720 on the line.
    void einstecken() {
        const auto speicher = sim::ZemakSpeicher::erzeugen(*zemakVariante(selektor::Zemak3720), 3);
        m_instrumentenende = speicherleitungEinstecken();
        m_gerät = std::make_unique<sim::ZemakGerät>(speicher, sim::Verhalten{{9600, 0}, {}});
        m_leitung = std::make_unique<sim::PortLeitung>(*m_instrumentenende, *m_gerät);
    }
    QString init(const QString& name) const { return wert("SELECT wert FROM init WHERE name = ?", {name}); }

    std::unique_ptr<SpeicherCommPort> m_instrumentenende;
    std::unique_ptr<sim::ZemakGerät> m_gerät;
    std::unique_ptr<sim::PortLeitung> m_leitung;
};

// The window: the frame shows with 3720enabled, the check box alone enables the combos, and
// closing the window by its frame is the close button, which writes what the user chose.
TEST_F(ZemakEinstellungTest, TheWindowGuardsTheCombosAndClosingSavesTheChoice) {
    InitSchreiben("3720enabled", "1");
    frmSettingZEMAK3710 form(einstellungsvariante(105));
    form.laden();
    form.geöffnet();
    ZemakEinstellungAnsicht fenster(form, nullptr);
    fenster.show();
    auto* kunden = fenster.findChild<QComboBox*>("Combo1");
    auto* prüfen = fenster.findChild<QCheckBox*>("codeSplitting3720");
    auto* kennung = fenster.findChild<QLineEdit*>("TxtSerienNr");
    EXPECT_TRUE(fenster.findChild<QGroupBox*>("Frame1")->isVisible());
    EXPECT_EQ(kunden->currentText(), "Kunde(a),Anlage(b): aabb");
    EXPECT_FALSE(kunden->isEnabled());
    EXPECT_FALSE(fenster.findChild<QPushButton*>("ComSync")->isEnabled()) << "no instrument yet";
    EXPECT_EQ(kennung->text(), "########");

    QTest::mouseClick(prüfen, Qt::LeftButton, {}, QPoint(4, prüfen->height() / 2));
    EXPECT_TRUE(form.codeSplitting());
    EXPECT_TRUE(kunden->isEnabled());
    kunden->setFocus();
    QTest::keyClick(kunden, Qt::Key_Down);
    EXPECT_EQ(form.kundenstellenIndex(), 2);
    kennung->selectAll();
    QTest::keyClicks(kennung, "Halle 3");
    EXPECT_EQ(form.kennungstext(), "Halle 3");

    fenster.close();
    EXPECT_FALSE(form.istOffen());
    EXPECT_EQ(init("codeSplitting3720"), "1");
    EXPECT_EQ(init("Kundencodestellen3720"), "3");
    EXPECT_EQ(init("Verteilercodestellen3720"), "2");
}

} // namespace
} // namespace vemo::test
