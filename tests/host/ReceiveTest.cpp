#include "links/LinkHilfen.h"
#include "store/Datenbank.h"
#include "store/Recordset.h"
#include "support/Testumgebung.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <csignal>

namespace {

using namespace vemo;

// vemo0100 receive with a 37xx instrument in the simulator: headless, with a line for each thing
// the dialog tells, and Ctrl-C as its abort button.
class ReceiveTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        QProcess init;
        init.start(programm(), {"init-db", pfad("cli/vemotrix.db")});
        ASSERT_TRUE(init.waitForFinished(20000));
        ASSERT_EQ(init.exitCode(), 0) << init.readAllStandardError().toStdString();
    }
    static QString programm() { return QString(VEMO_BIN_DIR) + "/vemo0100"; }
    void empfangen(QProcess& p, int typ) {
        p.start(programm(), {"--db", pfad("cli/vemotrix.db"), "--settings", pfad("cli/settings.ini"),
                             "--port", pfad("port"), "--type", QString::number(typ), "receive"});
        ASSERT_TRUE(p.waitForStarted(5000));
    }
    static QStringList zeilen(QProcess& p) {
        return QString::fromLocal8Bit(p.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
    }
};

TEST_F(ReceiveTest, ZeigtDenFortschrittWieDerDumpempfang) {
    test::Simulator sim({"--type", "104", "--records", "3", "--link", pfad("port")});
    ASSERT_FALSE(sim.gerät().isEmpty());
    QProcess p;
    empfangen(p, 104);
    ASSERT_TRUE(p.waitForFinished(20000));

    EXPECT_EQ(p.exitCode(), 0);
    const QStringList z = zeilen(p);
    ASSERT_GE(z.size(), 7) << z.join('\n').toStdString();
    EXPECT_EQ(z.mid(0, 5),
              (QStringList{"vemotrix professional - Serielle Datenübertragung",
                           "Suche ZEMAK 3710B Prüfgerät an COM-Port " + pfad("port"),
                           "Alle Messleitungen vom 3710 B entfernen.", "ZEMAK 3710B V3.02 gefunden",
                           "3 Messungen werden übertragen. Bitte warten!"}));
    EXPECT_EQ(z.last(), "100%");
    // The records go on to the reader: one read-in row a record.
    const Datenbank cli = Datenbank::OpenDatabase(pfad("cli/vemotrix.db"));
    EXPECT_EQ(cli.OpenRecordset("SELECT Count(*) FROM 0100_EinleseDaten").Field(0).toInt(), 3);
    QFile ruvo(pfad("cli/Ruvo.ser"));
    ASSERT_TRUE(ruvo.open(QIODevice::ReadOnly));
    EXPECT_TRUE(ruvo.readAll().startsWith("ZEMAK 3710B,V3.02,00471103\r\n"));
}

TEST_F(ReceiveTest, StrgCBeendetDieSucheWieDerAbbruchknopf) {
    // A 3710 does not answer as a 3710B: the search would go on for ever.
    test::Simulator sim({"--type", "103", "--records", "3", "--link", pfad("port")});
    QProcess p;
    empfangen(p, 104);
    QDeadlineTimer frist(10000);
    QString bisher;
    while (!bisher.contains("Alle Messleitungen") && !frist.hasExpired() && p.state() == QProcess::Running) {
        p.waitForReadyRead(100);
        bisher += QString::fromLocal8Bit(p.readAllStandardError());
    }
    EXPECT_FALSE(p.waitForFinished(3 * 300)) << "searching, a few ticks long";
    ::kill(pid_t(p.processId()), SIGINT);
    ASSERT_TRUE(p.waitForFinished(10000));

    EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(p.exitCode(), 1);
    const QString alles = bisher + zeilen(p).join('\n');
    EXPECT_FALSE(alles.contains("gefunden"));
    EXPECT_TRUE(alles.endsWith("vemotrix professional: Datenübertragung abgebrochen")) << alles.toStdString();
    EXPECT_FALSE(QFile::exists(pfad("cli/Ruvo.ser")));
}

} // namespace
