#include "Hauptfenster.h"
#include "Aufruf.h"

#include "ansichten/Ansichten.h"
#include "host/Modul15a.h"
#include "language/SprachDatenbank.h"
#include "platform/Version.h"
#include "store/Schema.h"
#include "support/Dateien.h"
#include "support/Kommandozeile.h"
#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

namespace vemo::test {
namespace {

// The menu command of the window program reaches the settings dialog of a 37xx instrument on the
// port and type the user set.
class HauptfensterTest : public Testumgebung {
protected:
    static void auslösen(const QWidget& fenster, const QString& text) {
        for (QAction* a : fenster.findChildren<QAction*>())
            if (QString(a->text()).remove('&') == text)
                a->trigger();
    }
};

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
    auslösen(fenster, "Einstellung ZEMAK 3710");

    EXPECT_EQ(gezeigt, "ZEMAK 3710B V3.02");
    EXPECT_EQ(wert("SELECT wert FROM init WHERE name = 'Kundencodestellen3720'"), "2") << "saved on closing";
}

// Without a database a command that needs one says so and offers the choice; a cancelled choice
// runs nothing, one chosen there serves the command at once. The field shows the database in use;
// a file that is no database, picked or typed, and a server that cannot be reached are refused
// and the open one stays in use; a name typed that is a database is taken.
TEST_F(HauptfensterTest, ACommandOffersTheChoiceOfADatabaseAndOneThatIsNoneIsRefused) {
    spracheDatenbankAnlegen(m_dir.path());
    modul().db.Close();
    vemo0100Modul15a komponente(m_ui, m_settings);
    Hauptfenster fenster(komponente, m_settings);

    m_ui.antworten = {antwort::Abbrechen};
    auslösen(fenster, "Einlesedaten");
    EXPECT_EQ(m_ui.texte(), QStringList{"Zuerst eine Datenbank wählen."});
    EXPECT_TRUE(m_ui.dateiDialoge.isEmpty());

    m_ui.antworten = {antwort::Ok};
    m_ui.gewählteDatei = m_dbPfad;
    auslösen(fenster, "Einlesedaten");
    ASSERT_EQ(m_ui.dateiDialoge.size(), 1);
    EXPECT_TRUE(m_ui.dateiDialoge[0].filter.endsWith("|Alle Dateien (*)|*"));
    EXPECT_TRUE(komponente.vemotrixDB().istOffen());
    EXPECT_EQ(m_ui.texte().last(), "Es sind keine Eilnlesedaten vorhanden");

    auto* feld = fenster.findChild<QLineEdit*>("Datenbank");
    ASSERT_TRUE(feld);
    EXPECT_EQ(feld->text(), m_dbPfad);
    m_ui.meldungen.clear();
    feld->setText("postgresql://niemand@/vemotrix?host=" + pfad("kein-server"));
    emit feld->editingFinished();
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_EQ(feld->text(), m_dbPfad);
    m_ui.meldungen.clear();
    m_ui.gewählteDatei = pfad("notizen.db");
    schreiben(pfad("notizen.db"), "Das ist keine Datenbank, sondern eine Notiz.\n");
    fenster.findChild<QPushButton*>("DatenbankWaehlen")->click();
    ASSERT_EQ(m_ui.meldungen.size(), 1) << m_ui.texte().join("; ").toStdString();
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("3343 ")) << m_ui.meldungen[0].text.toStdString();
    EXPECT_EQ(feld->text(), m_dbPfad);
    EXPECT_EQ(m_settings.GetSetting("Host", "Datenbank"), m_dbPfad);
    auslösen(fenster, "Einlesedaten");
    EXPECT_EQ(m_ui.texte().last(), "Es sind keine Eilnlesedaten vorhanden");

    datenbankAnlegen(pfad("zweite.db"), false);
    feld->setText(pfad("zweite.db"));
    emit feld->editingFinished();
    EXPECT_EQ(m_settings.GetSetting("Host", "Datenbank"), pfad("zweite.db"));
}

Lauf vemotrix(const QStringList& argumente, const QString& plattform) {
    QProcess p;
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.insert("QT_QPA_PLATFORM", plattform);
    umgebung.remove("DISPLAY");
    umgebung.remove("WAYLAND_DISPLAY");
    p.setProcessEnvironment(umgebung);
    p.start(QString(VEMO_BIN_DIR) + "/vemotrix", argumente);
    EXPECT_TRUE(p.waitForFinished(10000)) << argumente.join(' ').toStdString();
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
            QString::fromLocal8Bit(p.readAllStandardOutput()),
            QString::fromLocal8Bit(p.readAllStandardError())};
}

// Usage and version are answered as the command line program answers them, without a window
// system to connect to; a wrong call is a usage error.
TEST(VemotrixAufrufTest, HelpAndVersionNeedNoWindow) {
    const Lauf hilfe = vemotrix({"--help"}, "xcb");
    EXPECT_EQ(hilfe.status, 0);
    EXPECT_EQ(hilfe.aus, FensterGebrauch);
    const Lauf version = vemotrix({"a.db", "--version"}, "xcb");
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.aus, "vemotrix " + komponentenVersion + "\n");

    for (const QStringList& aufruf : {QStringList{"--frob"}, QStringList{"a.db", "b.db"}}) {
        const Lauf l = vemotrix(aufruf, "offscreen");
        EXPECT_EQ(l.status, 2) << aufruf.join(' ').toStdString();
        EXPECT_EQ(l.aus, "");
        EXPECT_TRUE(l.fehler.contains("vemotrix: ")) << l.fehler.toStdString();
        EXPECT_TRUE(l.fehler.endsWith(FensterGebrauch)) << l.fehler.toStdString();
    }
}

} // namespace
} // namespace vemo::test
