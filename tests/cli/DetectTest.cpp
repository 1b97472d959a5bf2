#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include <QProcess>

namespace vemo::test {
namespace {

using DetectTest = Testumgebung;

// Each port named gets its line: the 37xx instrument by its answer to "ID", the Kontalex one by
// its answer to "MWH", the printed dump's instrument, which sends only on its key, not at all, and
// a port that is not there says so.
TEST_F(DetectTest, EachPortNamesWhatAnsweredThere) {
    Simulator zemak({"--type", "104", "--records", "1", "--link", pfad("zemak")});
    Simulator kontalex(
        {"--type", "101", "--model", "PRAVITONIX", "--records", "1", "--link", pfad("kontalex")});
    Simulator multitester({"--type", "100", "--records", "1", "--link", pfad("multitester")});
    ASSERT_FALSE(zemak.gerät().isEmpty() || kontalex.gerät().isEmpty() || multitester.gerät().isEmpty());

    QProcess p;
    p.start(QString(VEMO_BIN_DIR) + "/vemo0100",
            {"--port", pfad("zemak"), "detect", "--port", pfad("kontalex"), "--port", pfad("multitester"),
             "--port", pfad("fehlt")});
    ASSERT_TRUE(p.waitForFinished(30000));
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    const QStringList zeilen =
        QString::fromLocal8Bit(p.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(zeilen.size(), 4) << zeilen.join("; ").toStdString();
    EXPECT_EQ(zeilen[0], pfad("zemak") + ": 104 ZEMAK 3710B V3.02");
    EXPECT_EQ(zeilen[1], pfad("kontalex") + ": 101 PRAVITONIX");
    EXPECT_EQ(zeilen[2], pfad("multitester") + ": nothing answered");
    EXPECT_TRUE(zeilen[3].startsWith(pfad("fehlt") + ": cannot be opened: ")) << zeilen[3].toStdString();
}

} // namespace
} // namespace vemo::test
