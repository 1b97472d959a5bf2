#include "Hauptfenster.h"

#include "ansichten/Ansichten.h"
#include "host/Modul15a.h"
#include "language/SprachDatenbank.h"
#include "links/LinkHilfen.h"
#include "support/Testumgebung.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTimer>

namespace vemo::test {
namespace {

// The menu command of the window program reaches the settings dialog of a 37xx instrument on the
// port and type the user set.
class HauptfensterTest : public Testumgebung {};

TEST_F(HauptfensterTest, TheSettingsCommandShowsTheInstrumentOnThePort) {
    Simulator sim({"--type", "104", "--records", "1", "--link", pfad("port")});
    ASSERT_FALSE(sim.gerät().isEmpty());
    spracheDatenbankAnlegen(m_dir.path());
    QtUi qtUi(ansichten());
    m_settings.SaveSetting("Host", "Datenbank", m_dbPfad);
    m_settings.SaveSetting("Host", "Port", pfad("port"));
    m_settings.SaveSetting("Host", "Typ", "104");
    vemo0100Modul15a komponente(qtUi, m_settings);
    Hauptfenster fenster(komponente, m_settings);
    qtUi.setHauptfenster(&fenster);

    // Closes the settings once they show the instrument; anything still open after eight seconds
    // is closed, and the test fails instead of hanging.
    QString gezeigt;
    int ticks = 0;
    QTimer uhr;
    QObject::connect(&uhr, &QTimer::timeout, [&] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* dialog = qobject_cast<QDialog*>(w);
            if (!dialog || !dialog->isVisible())
                continue;
            if (auto* gerät = w->findChild<QLabel*>("LabGerät"))
                gezeigt = gerät->text();
            if (gezeigt.startsWith("ZEMAK") || ++ticks > 800)
                dialog->close();
        }
    });
    uhr.start(10);
    for (QAction* a : fenster.findChildren<QAction*>())
        if (a->text() == "Einstellung ZEMAK 3710")
            a->trigger();

    EXPECT_EQ(gezeigt, "ZEMAK 3710B V3.02");
    EXPECT_EQ(wert("SELECT wert FROM init WHERE name = 'Kundencodestellen3720'"), "2") << "saved on closing";
}

} // namespace
} // namespace vemo::test
