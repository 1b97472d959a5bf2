#include "Programmsprache.h"

#include "grid/EinleseDatenAnsicht.h"
#include "language/SprachDatenbank.h"
#include "support/Testumgebung.h"
#include "takeover/Uebernahme.h"

#include <QComboBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace vemo::test {
namespace {

// The read-in grid in its window, as the user meets it under either language: a row of the
// German practice without a time of measurement and one with, both far enough assigned for the
// take-over of either language.
class EinleseGridTest : public Testumgebung, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        neueDatenbank(true);
        spracheDatenbankAnlegen(m_dir.path());
        spracheEinstellen(GetParam());
        m_programmsprache.wählen(GetParam());
        EinleseDatenController::datenübernahmeEinsetzen(Übernehmen);
        sql("INSERT INTO \"0100_EinleseGeräteDaten\" (\"GeräteID\", \"PrüfgerätName\") VALUES (1, 'ZEMAK "
            "3710');"
            "INSERT INTO \"0100_Prüfung\" (\"PrüfungID\", AnlagenID, Datum) VALUES (5, 4, '2022-06-14');");
        for (const auto& [id, datum, uhrzeit] : {std::tuple{1, "", ""}, {2, "14.06.2022", "09:30:00"}})
            ausführen(
                "INSERT INTO 0100_EinleseDaten (MessungID, GeräteID, KundeNr, KundeID, AnlageID, PrüfungID, "
                "VerteilerNr, StromkreisNr, Datum, Uhrzeit) VALUES (?, 1, '56', 3, 4, ?, "
                "'Distribution board of the first floor', '001', ?, ?)",
                {id, prüfung(), datum, uhrzeit});
        m_formular = std::make_unique<EinleseDatenController>();
        m_ansicht = std::make_unique<EinleseDatenAnsicht>(*m_formular);
        m_formular->geöffnet();
        m_ansicht->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_ansicht.get()));
    }
    void TearDown() override {
        m_ansicht.reset();
        m_formular.reset();
        Testumgebung::TearDown();
    }

    // An inspection of the practice's plant, for the certificate rules that want one chosen.
    static int prüfung() { return 5; }
    QTableView* tabelle() const { return m_ansicht->tabelle(); }
    QPoint mitte(int zeile, int spalte) const {
        return tabelle()->visualRect(tabelle()->model()->index(zeile - 1, spalte)).center();
    }

    Programmsprache m_programmsprache;
    std::unique_ptr<EinleseDatenController> m_formular;
    std::unique_ptr<EinleseDatenAnsicht> m_ansicht;
};

TEST_P(EinleseGridTest, NamesStandWholeTheMomentStaysAndTheTakeOverEndsTheGrid) {
    // The pictures of the README.
    if (const QByteArray ordner = qgetenv("VEMO_BILDER"); !ordner.isEmpty()) {
        m_ansicht->resize(1150, 330);
        QCoreApplication::processEvents();
        m_ansicht->grab().save(QString::fromLocal8Bit(ordner) + "/grid-" +
                               QString(GetParam()).left(2).toLower() + ".png");
    }
    // Wider than its columns need, the window shares its room among them; no text is cut.
    m_ansicht->resize(1600, m_ansicht->height());
    QCoreApplication::processEvents();
    int summe = 0;
    for (int spalte = 0; spalte < 7; ++spalte) {
        EXPECT_GE(tabelle()->columnWidth(spalte),
                  static_cast<const QAbstractItemView*>(tabelle())->sizeHintForColumn(spalte))
            << spalte;
        summe += tabelle()->columnWidth(spalte);
    }
    EXPECT_EQ(summe, tabelle()->viewport()->width());

    // The row without a moment is assigned anew; the other row's moment stays in sight.
    QTest::mouseClick(tabelle()->viewport(), Qt::LeftButton, {}, mitte(1, 3));
    QTest::mouseDClick(tabelle()->viewport(), Qt::LeftButton, {}, mitte(1, 3));
    m_ansicht->comboEdit()->hidePopup();
    QTest::keyClick(m_ansicht->comboEdit(), Qt::Key_Up);
    QTest::keyClick(m_ansicht->comboEdit(), Qt::Key_Return);
    ASSERT_EQ(wert("SELECT PrüfungID FROM 0100_EinleseDaten WHERE MessungID = 1"), "0");
    EXPECT_FALSE(tabelle()->isColumnHidden(6));

    // Nothing is left after the take-over, and the window goes in every language.
    ausführen("UPDATE 0100_EinleseDaten SET PrüfungID = ?", {prüfung()});
    m_ansicht->findChild<QPushButton*>("Uebernehmen")->click();
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 0) << m_ui.texte().join(" | ").toStdString();
    EXPECT_FALSE(m_ansicht->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Sprachen, EinleseGridTest,
                         ::testing::Values("Deutsch (&Deutschland)", "English (United Kingdom)"));

} // namespace
} // namespace vemo::test
