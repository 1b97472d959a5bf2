#include "support/Dateien.h"
#include "support/Testumgebung.h"

#include "ansichten/Ansichten.h"
#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "logger/DateiVorbereiten.h"
#include "logger/DatenLogger.h"
#include "logger/Zuordnen.h"
#include "platform/QtUi.h"

#include <QApplication>
#include <QChartView>
#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QLineSeries>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace vemo;

namespace {

// The windows of the data pool and the logger dialog, made as the window program makes them.
class LoggerAnsichtTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        modul().Datenbankverzeichnis = m_dir.path();
        ASSERT_TRUE(QFile::copy(test::quelle("samples/corvex-datenlogger.ser"), pfad("Ruvo.SAV")));
        modul().datenpoolModus = "DATEN LOGGER";
    }
    static std::unique_ptr<QDialog> ansicht(DialogController& c) {
        return std::unique_ptr<QDialog>(ansichten().at(c.metaObject()->className())(c, nullptr));
    }
};

// A plain dump shows its boards and the options; a click on a board puts its rendering in place, and
// the one-main-board option hides the board number.
TEST_F(LoggerAnsichtTest, EinEinfacherDumpZeigtVerteilerUndOptionen) {
    modul().datenpoolModus.clear();
    test::schreiben(pfad("Verteil.txt"),
                    "\"00000021\",1,1,1,\"Keller\",1,1,1\r\n\"00000022\",1,2,1,\"Dach\",1,1,1\r\n");
    test::schreiben(pfad("00000022.SEP"), "OMNIVAR\r\nS: 002  P: 001\r\n");
    Zuordnen pool;
    pool.zuordnungZeigen(true);
    pool.listeFüllen();
    const auto fenster = ansicht(pool);
    fenster->show();
    auto* list1 = fenster->findChild<QListWidget*>("List1");
    ASSERT_EQ(list1->count(), 2);
    EXPECT_EQ(list1->currentRow(), 0);
    EXPECT_FALSE(fenster->findChild<QChartView*>()->isVisible());
    auto* text9 = fenster->findChild<QLineEdit*>("Text9");
    EXPECT_TRUE(text9->isVisible());

    list1->setCurrentRow(1);
    EXPECT_EQ(pool.gewählt(), 1);
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(test::inhalt(pfad("Ruvo.ser")), "OMNIVAR\r\nS: 002  P: 001\r\n");

    fenster->findChild<QCheckBox*>("Option3D1")->setChecked(true);
    EXPECT_EQ(pool.alleVerteiler(), "JA");
    EXPECT_FALSE(text9->isVisible());
}

// In the window program the date dialog closes on each of its buttons, on Escape and on the window's
// close button, and the data pool follows with the series in its chart: with its times after
// "Übernehmen", without after the others.
TEST_F(LoggerAnsichtTest, DerDatumsdialogSchließtUndDerDatenpoolFolgt) {
    ASSERT_TRUE(QFile::copy(pfad("Ruvo.SAV"), pfad("Ruvo.ser")));
    modul().Selektor() = selektor::Deutsch;
    QtUi qtUi(ansichten());
    modul().ui = &qtUi;
    const std::pair<QString, std::function<void(QDialog&)>> wege[] = {
        {"Command1",
         [](QDialog& d) { QTest::mouseClick(d.findChild<QPushButton*>("Command1"), Qt::LeftButton); }},
        {"Command2",
         [](QDialog& d) { QTest::mouseClick(d.findChild<QPushButton*>("Command2"), Qt::LeftButton); }},
        {"Escape", [](QDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); }},
        {"Schließfeld", [](QDialog& d) { d.close(); }},
    };
    for (const auto& [weg, schließen] : wege) {
        SCOPED_TRACE(weg.toStdString());
        QStringList fenster;
        QString startzeit;
        qsizetype punkte = -1;
        QTimer takt;
        QObject::connect(&takt, &QTimer::timeout, [&] {
            auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!d || (!fenster.isEmpty() && fenster.last() == d->objectName()))
                return;
            fenster << d->objectName();
            if (d->objectName() == "DatenLogger") {
                schließen(*d);
            } else if (d->objectName() == "Zuordnen") {
                startzeit = d->findChild<QLabel*>("Label5")->text();
                punkte =
                    static_cast<QLineSeries*>(d->findChild<QChartView*>()->chart()->series()[0])->count();
                // The picture of the data pool in the README, as it follows the start given.
                if (const QByteArray ziel = qgetenv("VEMO_DATENPOOL_BILD");
                    !ziel.isEmpty() && weg == "Command1") {
                    d->resize(900, 460);
                    QTest::qWait(50);
                    d->grab().save(QString::fromLocal8Bit(ziel));
                }
                QTest::mouseClick(d->findChild<QPushButton*>("Command4"), Qt::LeftButton);
            }
        });
        takt.start(50);
        // A window that does not close is taken away, so that the test ends and says so.
        QTimer wache;
        wache.setSingleShot(true);
        QObject::connect(&wache, &QTimer::timeout, [&] {
            ADD_FAILURE() << "still open: " << fenster.join(", ").toStdString();
            if (QWidget* w = QApplication::activeModalWidget())
                w->hide();
        });
        wache.start(10000);
        DateiVorbereiten(false);
        EXPECT_EQ(fenster, (QStringList{"DatenLogger", "Zuordnen"}));
        EXPECT_EQ(punkte, 6);
        EXPECT_EQ(startzeit.isEmpty(), weg != "Command1") << startzeit.toStdString();
    }
    modul().ui = &m_ui;
}

} // namespace
