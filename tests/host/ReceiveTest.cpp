#include "store/Datenbank.h"
#include "store/Recordset.h"
#include "support/Kommandozeile.h"
#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include <QFile>
#include <QProcess>

namespace {

using namespace vemo;

// vemo0100 receive with a 37xx instrument in the simulator: headless, with a line for each thing
// the dialog tells, and Ctrl-C as its abort button.
class ReceiveTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        const test::Lauf init = test::vemo0100({"init-db", pfad("cli/vemotrix.db")});
        ASSERT_EQ(init.status, 0) << init.fehler.toStdString();
    }
    void empfangen(QProcess& p, int typ) {
        p.start(test::vemo0100Programm(),
                {"--db", pfad("cli/vemotrix.db"), "--settings", pfad("cli/settings.ini"), "--port",
                 pfad("port"), "--type", QString::number(typ), "receive"});
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

} // namespace
