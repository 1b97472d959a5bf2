#include "ansichten/Ansichten.h"
#include "language/SprachDatenbank.h"
#include "logger/DatenLogger.h"
#include "logger/Zuordnen.h"
#include "support/Testumgebung.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QTest>

namespace vemo::test {
namespace {

// The start of a logger series, typed in its dialog as a user types it under either language:
// digits, Tab to the next field, Enter to confirm.
class DatumsdialogTest : public Testumgebung, public ::testing::WithParamInterface<const char*> {};

TEST_P(DatumsdialogTest, TabMovesThroughTheFieldsAndEnterConfirms) {
    spracheDatenbankAnlegen(m_dir.path());
    spracheEinstellen(GetParam());
    modul().Datenbankverzeichnis = m_dir.path();
    ASSERT_TRUE(QFile::copy(quelle("samples/corvex-datenlogger.ser"), pfad("Ruvo.SAV")));
    modul().datenpoolModus = "DATEN LOGGER";
    Zuordnen pool;
    DatenLogger logger(pool);
    logger.geöffnet();
    const std::unique_ptr<QDialog> fenster(ansichten().at("vemo::DatenLogger")(logger, nullptr));
    fenster->show();
    fenster->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenster.get()));
    fenster->findChild<QLineEdit*>("Text1_0")->setFocus();

    const QStringList teile{"14", "6", "2022", "9", "30", "5"};
    for (int i = 0; i < teile.size(); ++i) {
        QCoreApplication::processEvents(); // the field entered selects its proposal
        QTest::keyClicks(QApplication::focusWidget(), teile[i]);
        if (i + 1 < teile.size())
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(fenster->findChild<QLineEdit*>("Text1_1")->text(), "06") << "a field left shows two digits";
    if (const QByteArray ordner = qgetenv("VEMO_BILDER"); !ordner.isEmpty())
        fenster->grab().save(QString::fromLocal8Bit(ordner) + "/datenlogger-" +
                             QString(GetParam()).left(2).toLower() + ".png");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(logger.start(), QDateTime(QDate(2022, 6, 14), QTime(9, 30, 5)));
    EXPECT_FALSE(logger.istOffen()) << m_ui.texte().join(" | ").toStdString();
}

INSTANTIATE_TEST_SUITE_P(Sprachen, DatumsdialogTest,
                         ::testing::Values("Deutsch (&Deutschland)", "English (United Kingdom)"));

} // namespace
} // namespace vemo::test
