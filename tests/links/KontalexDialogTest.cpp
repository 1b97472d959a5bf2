#include "support/Dateien.h"
#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include "KontalexGeraet.h"
#include "KontalexSpeicher.h"
#include "PortLeitung.h"
#include "PtyLeitung.h"
#include "ansichten/Ansichten.h"
#include "core/Arbeitsdateien.h"
#include "links/Kontalex.h"
#include "links/KontalexSpeicher.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace vemo::test {
namespace {

// The dialog's times, shortened: three seconds of a tenth each, asking every tenth of a second.
const Kontalex::Zeiten Schnell{3, 100, 100, 40, 200};
// For an instrument that sends at its line's pace: a longer silence ends an answer, so that a busy
// machine doesn't cut one between two pieces.
const Kontalex::Zeiten AmLeitungstakt{3, 100, 100, 100, 300};

class KontalexDialogTest : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        modul().CommPort = 1;
        modul().Empfangsende = 0;
        schreiben(arbeitsdatei(datei::Rs232Txt), "der letzte Lauf\r\n");
        schreiben(arbeitsdatei(datei::Rs232Sep), "SER\x02 roh");
    }
    // Shows the dialog until it closes.
    void ausführen(Kontalex& dialog) {
        ASSERT_TRUE(dialog.laden());
        bewachen(dialog, 10000);
        ui().zeigeModal(dialog);
    }
    QByteArray rs232Txt() const { return inhalt(arbeitsdatei(datei::Rs232Txt)); }
    QByteArray rs232Sep() const { return inhalt(arbeitsdatei(datei::Rs232Sep)); }

    // An instrument with that memory on the in-memory line.
    struct Speicherleitung {
        std::unique_ptr<SpeicherCommPort> ende;
        std::unique_ptr<sim::KontalexGerät> gerät;
        std::unique_ptr<sim::PortLeitung> leitung;
    };
    static Speicherleitung einstecken(const QByteArray& speicher) {
        Speicherleitung l;
        l.ende = speicherleitungEinstecken(0);
        l.gerät = std::make_unique<sim::KontalexGerät>(speicher, sim::Takt{0, 0});
        l.leitung = std::make_unique<sim::PortLeitung>(*l.ende, *l.gerät);
        return l;
    }
};

TEST_F(KontalexDialogTest, OhneGeraetSchliesstDieWartezeitMitAbbruch) {
    QString fehler;
    const auto leitung = sim::PtyLeitung::öffnen(fehler); // a line with nobody behind it
    ASSERT_TRUE(leitung) << fehler.toStdString();
    modul().portPfad = leitung->gerätePfad();
    Kontalex dialog(Schnell);

    ausführen(dialog);

    EXPECT_TRUE(dialog.abgebrochen());
    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_EQ(modul().Empfangsende, 1);
    EXPECT_EQ(dialog.zustand(), "Gerät nicht bereit !");
    EXPECT_EQ(dialog.kennung(), "Identifikation...");
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
    EXPECT_EQ(rs232Txt(), "der letzte Lauf\r\n") << "an abort keeps the files of the last run";
    EXPECT_EQ(rs232Sep(), "SER\x02 roh");
    EXPECT_EQ(m_ui.dialoge, QStringList{"vemo::Kontalex"});
}

// An instrument at its line's pace over the pseudo-terminal (each model's whole road is the host's
// test): the raw file is the memory byte for byte, the record file holds its groups, with blanks
// where a group repeats the numbers before it.
TEST_F(KontalexDialogTest, DerSpeicherKommtImLeitungstakt) {
    const QByteArray speicher = sim::kontalexSpeicher(9, "KONTALEX");
    schreiben(pfad("speicher.sep"), speicher);
    Simulator sim({"--type", "101", "--model", "KONTALEX", "--memory", pfad("speicher.sep"), "--baud", "9600",
                   "--link", pfad("port")});
    ASSERT_FALSE(sim.gerät().isEmpty());
    modul().portPfad = pfad("port");
    Kontalex dialog(AmLeitungstakt);

    ausführen(dialog);

    EXPECT_FALSE(dialog.abgebrochen());
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(rs232Sep(), speicher);
    const QByteArray text = rs232Txt();
    EXPECT_EQ(text.count("Start Verteiler"), 9);
    for (const QByteArray& zeile : {QByteArray("1,1,2,\"\",\"\",\"002\",\"08:01\",\"17.03.2024\"\r\n"),
                                    QByteArray("1,2,1,\"\",\"002\",\"001\",\"08:04\",\"17.03.2024\"\r\n")})
        EXPECT_TRUE(text.contains(zeile)) << zeile.toStdString();
    EXPECT_EQ(dialog.blocknummer(), "9");
    EXPECT_EQ(dialog.prozent(), 100);
}

TEST_F(KontalexDialogTest, LeererSpeicherGibtNurDieEndzeile) {
    Simulator sim(
        {"--type", "101", "--model", "PRAVITONIX", "--records", "0", "--baud", "0", "--link", pfad("port")});
    ASSERT_FALSE(sim.gerät().isEmpty());
    modul().portPfad = pfad("port");
    Kontalex dialog(Schnell);

    ausführen(dialog);

    EXPECT_TRUE(dialog.keineDaten());
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_EQ(rs232Txt(), "\"----Dateiende----\",1,1,1,1,1,1,1\r\n");
    EXPECT_EQ(rs232Sep(), sim::kontalexSpeicher(0, "PRAVITONIX"));
}

// Instruments that misbehave: a block count beyond 16 bits, a refused start, a block that
// announces one more behind the end, a model that doesn't confirm the end.
TEST_F(KontalexDialogTest, FehlverhaltenDerGeraete) {
    {
        SCOPED_TRACE("count overflows");
        QByteArray speicher = sim::kontalexSpeicher(2, "KONTALEX");
        speicher[4] = char(0x80);
        auto l = einstecken(speicher);
        Kontalex dialog(Schnell);
        ausführen(dialog);
        EXPECT_EQ(m_ui.texte(), QStringList{"Überlauf"});
        EXPECT_EQ(modul().Abbruchmerker, 1);
        EXPECT_FALSE(dialog.abgebrochen());
        EXPECT_FALSE(l.gerät->befehle().contains("MWH"));
        EXPECT_EQ(rs232Txt(), "der letzte Lauf\r\n");
    }
    {
        SCOPED_TRACE("start refused");
        m_ui.meldungen.clear();
        modul().Abbruchmerker = 0;
        auto s = *kontalexSpeicherLesen(sim::kontalexSpeicher(2, "KONTALEX"));
        s.start = sim::kontalex::Abgelehnt;
        auto l = einstecken(s.rohdatei());
        Kontalex dialog(Schnell);
        ausführen(dialog);
        EXPECT_EQ(l.gerät->befehle(), (QStringList{"MRD", "MNU", "MWH", "MSS", "MEX"}));
        EXPECT_EQ(modul().Abbruchmerker, 0);
        EXPECT_EQ(rs232Txt(), "\"----Dateiende----\",1,1,1,1,1,1,1\r\n");
    }
    {
        SCOPED_TRACE("one block more, with the logger");
        m_ui.meldungen.clear();
        const sim::Messung logger{102, {{'P', 136, 8, "60"}, {'R', 135, 101, "231"}}};
        const QByteArray loggerblock = sim::kontalexBlock(Blockform::Kurz, {1, 1, 1, "", ""}, logger);
        ASSERT_EQ(loggerblock[8], 'f') << "the logger's function code stands in the ninth byte";
        const QByteArray zusatz = sim::kontalexBlock(Blockform::Kurz, {1, 1, 2, "", ""}, logger);
        auto l = einstecken(sim::kontalexRohdatei("PRAVITONIX", {loggerblock})
                                .replace(sim::kontalex::Endblock, sim::kontalex::Endblock + zusatz));
        Kontalex dialog(Schnell);
        ausführen(dialog);
        EXPECT_EQ(l.gerät->befehle().count("MRE"), 3);
        const QByteArray text = rs232Txt();
        EXPECT_TRUE(text.startsWith("\"Datenlogger PRAVITONIX\","));
        EXPECT_EQ(text.count("Start Verteiler"), 1) << "the block behind the end is no location";
        EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    }
    {
        SCOPED_TRACE("end not confirmed");
        m_ui.meldungen.clear();
        auto s = *kontalexSpeicherLesen(sim::kontalexSpeicher(1, "KONTALEX"));
        s.ende.clear();
        auto l = einstecken(s.rohdatei());
        Kontalex dialog(Schnell);
        ausführen(dialog);
        EXPECT_EQ(m_ui.texte(), QStringList{"TimeOut"});
        EXPECT_EQ(modul().Abbruchmerker, 0);
        EXPECT_EQ(rs232Txt().count("Start Verteiler"), 1) << "a time-out counts as done";
    }
}

TEST_F(KontalexDialogTest, FehlenderPortWirdGemeldetUndNichtGezeigt) {
    modul().portPfad = pfad("kein-port");
    Kontalex dialog(Schnell);
    EXPECT_FALSE(dialog.laden());
    EXPECT_EQ(modul().Abbruchmerker, 1);
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("Ungültige Anschlussnummer"))
        << "the text without its number";
    EXPECT_TRUE(m_ui.dialoge.isEmpty());
}

TEST_F(KontalexDialogTest, FensterZeigtDenDialogUndBrichtAb) {
    QString fehler;
    const auto leitung = sim::PtyLeitung::öffnen(fehler);
    ASSERT_TRUE(leitung) << fehler.toStdString();
    modul().portPfad = leitung->gerätePfad();
    QtUi qtUi(ansichten());
    modul().ui = &qtUi;
    Kontalex dialog({30, 1000, 100, 150, 300});
    ASSERT_TRUE(dialog.laden());
    QString titel;
    QTimer::singleShot(350, [&] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->objectName() != "Kontalex" || !w->isVisible())
                continue;
            titel = w->windowTitle();
            if (auto* knopf = w->findChild<QPushButton*>("Command1"))
                QTest::mouseClick(knopf, Qt::LeftButton);
        }
    });
    bewachen(dialog);

    qtUi.zeigeModal(dialog);
    modul().ui = &m_ui;

    EXPECT_TRUE(dialog.abgebrochen()) << "the button is Command1";
    EXPECT_EQ(titel, "vemotrix professional - Serielle Datenübertragung");
}

} // namespace
} // namespace vemo::test
