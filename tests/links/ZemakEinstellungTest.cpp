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
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

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

    // A 3720 on the line, answering under the identification given.
    void einstecken(const QByteArray& kennung = "ZEMAK 3720B,V1.04,3720315") {
        const Zemakvariante& v = *zemakVariante(selektor::Zemak3720);
        auto speicher = sim::ZemakSpeicher::erzeugen(v, 3);
        speicher.kennung = kennung;
        m_instrumentenende = speicherleitungEinstecken();
        m_gerät = std::make_unique<sim::ZemakGerät>(speicher, sim::Verhalten{{9600, 0}, {}});
        m_leitung = std::make_unique<sim::PortLeitung>(*m_instrumentenende, *m_gerät);
    }
    QString init(const QString& name) const { return wert("SELECT wert FROM init WHERE name = ?", {name}); }

    std::unique_ptr<SpeicherCommPort> m_instrumentenende;
    std::unique_ptr<sim::ZemakGerät> m_gerät;
    std::unique_ptr<sim::PortLeitung> m_leitung;
};

// Closing writes the three settings back, whether the frame shows or not, and never 3720enabled;
// a digit count the combos do not offer is kept as it stands.
TEST_F(ZemakEinstellungTest, ClosingWritesTheCodeSplittingWhateverTheFrameShows) {
    {
        frmSettingZEMAK3710 form(einstellungsvariante(105));
        form.laden();
        EXPECT_FALSE(form.codeSplitting());
        EXPECT_EQ(form.kundenstellenIndex(), 1);
        EXPECT_EQ(form.verteilerstellenIndex(), 1);
        EXPECT_FALSE(form.aufteilungSichtbar());
        form.ComSchließen();
    }
    EXPECT_EQ(init("codeSplitting3720"), "0");
    EXPECT_EQ(init("Kundencodestellen3720"), "2");
    EXPECT_EQ(init("Verteilercodestellen3720"), "2");
    EXPECT_EQ(wert("SELECT Count(*) FROM init WHERE name = '3720enabled'"), "0");

    InitSchreiben("codeSplitting3720", "1");
    InitSchreiben("Kundencodestellen3720", "4");
    InitSchreiben("Verteilercodestellen3720", "3");
    InitSchreiben("3720enabled", "1");
    frmSettingZEMAK3710 form(einstellungsvariante(106));
    form.laden();
    EXPECT_TRUE(form.codeSplitting());
    EXPECT_EQ(form.kundenstellenIndex(), -1);
    EXPECT_EQ(form.verteilerstellenIndex(), 2);
    EXPECT_TRUE(form.aufteilungSichtbar());
    form.setCodeSplitting(false);
    form.setVerteilerstellenIndex(0);
    form.ComSchließen();
    EXPECT_EQ(init("codeSplitting3720"), "0");
    EXPECT_EQ(init("Kundencodestellen3720"), "4");
    EXPECT_EQ(init("Verteilercodestellen3720"), "1");
    EXPECT_EQ(init("3720enabled"), "1");
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
}

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

// The first answer fills the text box while it says "########"; a later identification shows as
// the serial number but leaves what the user wrote there. Any case of the word is accepted.
TEST_F(ZemakEinstellungTest, APollShowsTheInstrumentAndTakesItsSerialNumberOnce) {
    einstecken("zemak 3720B,V1.04,3720315");
    frmSettingZEMAK3710 form(einstellungsvariante(105));
    ASSERT_TRUE(form.verbinden());
    form.Timer1();
    EXPECT_TRUE(form.verbunden());
    EXPECT_EQ(form.gerät(), "zemak 3720B V1.04");
    EXPECT_EQ(form.serienNr(), "3720315");
    EXPECT_EQ(form.kennungstext(), "3720315");
    EXPECT_TRUE(form.prüfgerätZeit().startsWith("01.01.2020 00:00:0")) << form.prüfgerätZeit().toStdString();

    form.setKennungstext("AB");
    form.ComSend();
    form.Timer1();
    EXPECT_EQ(form.serienNr(), "      AB");
    EXPECT_EQ(form.kennungstext(), "AB");
    form.setKennungstext("123456789");
    form.ComSend();
    form.Timer1();
    EXPECT_EQ(form.serienNr(), "23456789");
    EXPECT_EQ(m_ui.sanduhrTiefe, 0);
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
}

// Type 106 looks for its maker's name; every other type, or none, for ZEMAK.
TEST_F(ZemakEinstellungTest, TheQuentavoirDialogDoesNotTakeAZemak) {
    for (const QVariant& typ : {QVariant(103), QVariant(107), QVariant("x"), QVariant()})
        EXPECT_EQ(einstellungsvariante(typ).name, "frmSettingZEMAK3710") << typ.toString().toStdString();
    EXPECT_EQ(einstellungsvariante(106).name, "frmSettingQuentavoir");
    einstecken();
    frmSettingZEMAK3710 form(einstellungsvariante(106));
    ASSERT_TRUE(form.verbinden());
    form.Timer1();
    EXPECT_FALSE(form.verbunden());
    EXPECT_EQ(form.gerät(), "(keine Verbindung)");
    EXPECT_EQ(form.serienNr(), "");
    EXPECT_EQ(form.kennungstext(), frmSettingZEMAK3710::Vorgabekennung);
}

// The dialog over the pseudo-terminal: cable out shows "(keine Verbindung)" at the next tick,
// cable back the instrument again, until the dialog is closed; the port closes with it.
TEST_F(ZemakEinstellungTest, PollingFollowsTheCableOutAndBackIn) {
    Simulator sim({"--type", "104", "--records", "2", "--link", pfad("port"), "--unplug-after", "4000",
                   "--unplug-for", "2500"});
    ASSERT_FALSE(sim.gerät().isEmpty());
    modul().commPortFabrik = nullptr;
    modul().portPfad = pfad("port");
    modul().PrüfgeräteTypID = 104;
    QStringList gezeigt;
    bool wachhund = false;
    m_ui.beiDialog = [&](DialogController& d) {
        QPointer<frmSettingZEMAK3710> form = qobject_cast<frmSettingZEMAK3710*>(&d);
        ASSERT_TRUE(form);
        QObject::connect(form, &DialogController::aktualisiert, form, [&, form] {
            if (gezeigt.isEmpty() || gezeigt.last() != form->gerät())
                gezeigt << form->gerät();
            if (gezeigt.size() == 3)
                form->ComSchließen();
        });
        QTimer::singleShot(14000, form, [&, form] {
            wachhund = true;
            form->ComSchließen();
        });
    };
    einstellungZemak3710();

    EXPECT_FALSE(wachhund) << gezeigt.join(" | ").toStdString();
    EXPECT_EQ(gezeigt, (QStringList{"ZEMAK 3710B V3.02", "(keine Verbindung)", "ZEMAK 3710B V3.02"}));
    EXPECT_EQ(m_ui.dialoge, QStringList{"vemo::frmSettingZEMAK3710"});
    EXPECT_EQ(init("Kundencodestellen3720"), "2");
}

} // namespace
} // namespace vemo::test
