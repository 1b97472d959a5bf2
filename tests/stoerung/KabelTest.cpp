// The cable pulled from the instrument in the middle of each family's transfer, on the command line
// as the user runs it: the simulator process killed. No family gives up on its own there; the
// reception waits, Ctrl-C (the abort button) ends it at once, and the working files are what the
// family leaves after an abort.
#include "CorvexSpeicher.h"
#include "support/Dateien.h"
#include "support/Kommandozeile.h"
#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <csignal>
#include <ostream>

using namespace vemo;

namespace {

const QByteArray LetzterLauf = "der letzte Lauf\r\n";

struct Phase {
    const char* name;
    int typ;
    QStringList simulator; // beyond --type and --link
    QString bis;           // the console line after which the cable goes
    int danach;            // ms the line runs on after that line
    QString arbeitsdatei;
};

// The phase by its name in the test's output, not as the bytes of the struct.
void PrintTo(const Phase& p, std::ostream* aus) {
    *aus << p.typ << " " << p.name;
}

// The Multitester prints on its send key: the key is pressed once its dialog waits, and its file
// keeps the whole lines that came before the cable went. The others leave the file of the last run.
bool druckt(const Phase& p) {
    return p.typ == 100;
}

// One phase a family, where the links' own tests do not abort it: the Multitester's print, the
// Kontalex blocks, the wait for the Sorelin's start mark, the collection of a 37xx memory.
const Phase Phasen[] = {
    {"Ausdruck", 100, {"--records", "30", "--baud", "2400"}, "Datenübertragung läuft", 500, "Ruvo.ser"},
    // Once the answer to the start of the memory has come: a cut answer is a refusal, after which
    // the family ends the session by itself.
    {"Blöcke",
     101,
     {"--model", "KONTALEX", "--records", "200", "--baud", "2400"},
     "Datenübertragung läuft",
     1000,
     "RS232.TXT"},
    {"Warten auf die Startmarke", 102, {"--records", "40"}, "Senden-Taste", 0, "Rs232.sep"},
    {"Sammeln", 103, {"--records", "40", "--silent-after", "300"}, "werden übertragen", 0, "Ruvo.ser"},
};

class KabelTest : public test::Testumgebung, public ::testing::WithParamInterface<Phase> {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        QDir(m_dir.path()).mkpath("cli");
        const test::Lauf init = test::vemo0100({"init-db", pfad("cli/vemotrix.db")});
        ASSERT_EQ(init.status, 0) << init.fehler.toStdString();
    }

    // The console's lines until one contains the text, or the run ends, or 20 s pass.
    static QString bisZurZeile(QProcess& p, const QString& text) {
        QString bisher;
        const QDeadlineTimer frist(20000);
        while (!bisher.contains(text) && !frist.hasExpired() && p.state() == QProcess::Running) {
            p.waitForReadyRead(50);
            bisher += QString::fromLocal8Bit(p.readAllStandardError());
        }
        return bisher;
    }
};

TEST_P(KabelTest, DieLeitungWartetUndDerAbbruchBeendetSie) {
    const Phase& phase = GetParam();
    test::schreiben(pfad("cli/" + phase.arbeitsdatei), LetzterLauf);
    test::Simulator sim(phase.simulator +
                        QStringList{"--type", QString::number(phase.typ), "--link", pfad("port")});
    ASSERT_FALSE(sim.gerät().isEmpty()) << sim.prozess().readAllStandardError().toStdString();

    QProcess p;
    p.start(test::vemo0100Programm(),
            {"--db", pfad("cli/vemotrix.db"), "--settings", pfad("cli/settings.ini"), "--port", pfad("port"),
             "--type", QString::number(phase.typ), "receive"});
    ASSERT_TRUE(p.waitForStarted(5000));
    QString ausgabe = bisZurZeile(p, druckt(phase) ? QString("Serielle Datenübertragung") : phase.bis);
    if (druckt(phase)) {
        // The dialog throws away what the line holds when it opens: the key comes after that.
        p.waitForFinished(500);
        sim.tasteDrücken();
        sim.prozess().waitForBytesWritten(1000); // no event loop runs here to send it
        ausgabe += bisZurZeile(p, phase.bis);
    }
    ASSERT_TRUE(ausgabe.contains(phase.bis)) << ausgabe.toStdString();
    if (phase.danach > 0)
        p.waitForFinished(phase.danach);

    sim.kabelZiehen();
    // Longer than any limit of the families' own: a line that went dead is silence to them.
    ASSERT_FALSE(p.waitForFinished(1500))
        << "gave up by itself:\n"
        << (ausgabe + QString::fromLocal8Bit(p.readAllStandardError())).toStdString();
    ::kill(pid_t(p.processId()), SIGINT);
    ASSERT_TRUE(p.waitForFinished(10000)) << "the abort did not end the reception";
    ausgabe += QString::fromLocal8Bit(p.readAllStandardError());

    EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(p.exitCode(), 1) << ausgabe.toStdString();
    const QByteArray datei = test::inhalt(pfad("cli/" + phase.arbeitsdatei));
    if (druckt(phase)) {
        EXPECT_TRUE(sim::corvexSpeicher(30).startsWith(datei));
        EXPECT_TRUE(ausgabe.endsWith("Datenübertragung abgebrochen\n")) << ausgabe.toStdString();
    } else {
        EXPECT_EQ(datei, LetzterLauf);
    }
    // Nothing of an aborted reception is read in.
    const Datenbank cli = Datenbank::OpenDatabase(pfad("cli/vemotrix.db"));
    EXPECT_EQ(cli.OpenRecordset("SELECT Count(*) FROM 0100_EinleseDaten").Field(0).toInt(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Familien, KabelTest, ::testing::ValuesIn(Phasen), [](const ::testing::TestParamInfo<Phase>& info) {
        QString name = QString::number(info.param.typ) + "_" + info.param.name;
        return name.replace(' ', '_').replace("ö", "oe").replace("ä", "ae").replace("ü", "ue").toStdString();
    });

} // namespace
