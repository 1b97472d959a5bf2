#include "GridUmgebung.h"

#include "grid/EinleseDatenAnsicht.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using namespace vemo;
using namespace vemo::test;

namespace {

// The form with its window on the (offscreen) screen: rows resolved, to be created and unresolved.
class AnsichtTest : public GridUmgebung {
protected:
    void SetUp() override {
        GridUmgebung::SetUp();
        gerät(1, "0100-Corvex");
        eingelesen("MessungID=1, Datum=14.06.2022, Uhrzeit=09:30:00, KundeID=1, AnlageID=1, PrüfungID=1, "
                   "VerteilerID=1, StromkreisID=1");
        eingelesen("MessungID=2, KundeNr=12, AnlageNr=007, VerteilerNr=0002, StromkreisNr=0003");
        eingelesen("MessungID=3, KundeNr=99, Datum=15.06.2022, Uhrzeit=11:00:00");
        m_formular = formular();
        m_ansicht = std::make_unique<EinleseDatenAnsicht>(*m_formular);
        m_formular->geöffnet();
        m_ansicht->show();
        m_ansicht->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_ansicht.get()));
    }
    void TearDown() override {
        m_ansicht.reset();
        m_formular.reset();
        GridUmgebung::TearDown();
    }

    QTableView* tabelle() const { return m_ansicht->tabelle(); }
    QComboBox* combo() const { return m_ansicht->comboEdit(); }
    QPoint mitte(int zeile, int spalte) const {
        return tabelle()->visualRect(tabelle()->model()->index(zeile - 1, spalte)).center();
    }
    // A double click as the window system delivers it: press, release, then the double click.
    void doppelklick(int zeile, int spalte) {
        QTest::mouseClick(tabelle()->viewport(), Qt::LeftButton, {}, mitte(zeile, spalte));
        QTest::mouseDClick(tabelle()->viewport(), Qt::LeftButton, {}, mitte(zeile, spalte));
        combo()->hidePopup();
    }
    template <typename T> T* kind(const char* name) const { return m_ansicht->findChild<T*>(name); }

    std::unique_ptr<EinleseDatenController> m_formular;
    std::unique_ptr<EinleseDatenAnsicht> m_ansicht;
};

// The window shows the grid and its cell states, in colour and weight as the user sees them.
TEST_F(AnsichtTest, TheWindowShowsTheGridAndTheCellStates) {
    EXPECT_EQ(m_ansicht->windowTitle(), modul().anwendungstitel + " - " + xText("Einlesedaten"));
    EXPECT_EQ(tabelle()->model()->rowCount(), 3);
    EXPECT_GE(tabelle()->columnWidth(1), 116);
    EXPECT_GE(m_ansicht->width(), std::min(7 * 116, m_ansicht->screen()->availableGeometry().width()));

    const QAbstractItemModel* m = tabelle()->model();
    // "colour bold" of a cell: plant 007 to be created, customer 99 unknown, a resolved customer.
    const auto schrift = [m](int zeile, int spalte) {
        const QModelIndex i = m->index(zeile - 1, spalte);
        return i.data(Qt::ForegroundRole).value<QColor>().name() + " " +
               (i.data(Qt::FontRole).value<QFont>().bold() ? "fett" : "normal");
    };
    EXPECT_EQ(schrift(2, 2), "#008080 fett");
    EXPECT_EQ(schrift(3, 1), "#ff0000 fett");
    EXPECT_EQ(schrift(1, 1), m_ansicht->palette().color(QPalette::ButtonText).name() + " normal");
    EXPECT_TRUE(m->index(0, 6).data(Qt::BackgroundRole).isValid());

    const QImage bild = m_ansicht->grab().toImage();
    bool rot = false, blaugrün = false;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x) {
            const QColor c = bild.pixelColor(x, y);
            rot = rot || (c.red() > 200 && c.green() < 60 && c.blue() < 60);
            blaugrün = blaugrün || (c.red() < 60 && c.green() > 100 && c.green() < 160 && c.blue() > 100 &&
                                    c.blue() < 160);
        }
    EXPECT_TRUE(rot);
    EXPECT_TRUE(blaugrün);

    // The picture of the documentation, with the columns as wide as a user drags them.
    if (const QByteArray ziel = qgetenv("VEMO_GRID_BILD"); !ziel.isEmpty()) {
        tabelle()->resizeColumnsToContents();
        m_ansicht->resize(
            m_ansicht->sizeHint().expandedTo(QSize(tabelle()->horizontalHeader()->length() + 40, 0)));
        m_ansicht->grab().save(QString::fromLocal8Bit(ziel));
    }
}

// The user's way through the window: the box opens on data cells only, Escape and leaving store
// nothing, Enter stores; after an assignment a plain click selects the one cell clicked, so that the
// next choice lands on that row alone; typing opens the box; the context menu and the button delete
// the rows; Escape on the grid and the close button close the form.
TEST_F(AnsichtTest, TheUserDrivesTheWindowWithMouseAndKeys) {
    doppelklick(2, 6);
    EXPECT_FALSE(combo()->isVisible());
    const QHeaderView* kopf = tabelle()->horizontalHeader();
    QTest::mouseDClick(kopf->viewport(), Qt::LeftButton, {},
                       QPoint(kopf->sectionViewportPosition(2) + 10, 5));
    EXPECT_FALSE(combo()->isVisible());
    doppelklick(2, 2);
    ASSERT_TRUE(combo()->isVisible());
    EXPECT_EQ(combo()->count(), 3);
    EXPECT_EQ(combo()->itemText(0), xText("keine Anlage"));
    EXPECT_EQ(combo()->itemData(2).toInt(), 2);
    EXPECT_TRUE(combo()->geometry().intersects(tabelle()->visualRect(tabelle()->model()->index(1, 2))));
    QTest::keyClick(combo(), Qt::Key_Escape);
    EXPECT_FALSE(combo()->isVisible());
    EXPECT_TRUE(m_ansicht->isVisible()); // Escape in the box doesn't close the form

    doppelklick(1, 2);
    QTest::keyClick(combo(), Qt::Key_Down);
    tabelle()->setFocus();
    EXPECT_FALSE(combo()->isVisible());
    EXPECT_EQ(feld(1, "AnlageID"), "1");
    doppelklick(1, 2);
    QTest::keyClick(combo(), Qt::Key_Down);
    EXPECT_EQ(combo()->currentText(), "002 A2 Verkaufsraum");
    QTest::keyClick(combo(), Qt::Key_Return);
    EXPECT_FALSE(combo()->isVisible());
    EXPECT_EQ(feld(1, "AnlageID") + " " + feld(1, "PrüfungID"), "2 0");
    EXPECT_EQ(tabelle()->model()->index(0, 2).data().toString(), "002 A2 Verkaufsraum");

    QTest::mouseClick(tabelle()->viewport(), Qt::LeftButton, {}, mitte(3, 1));
    const Auswahl& a = m_formular->grid().auswahl;
    EXPECT_EQ(QString("%1-%2").arg(a.ersteZeile()).arg(a.letzteZeile()), "3-3");
    EXPECT_EQ(tabelle()->selectionModel()->selectedIndexes(),
              QModelIndexList{tabelle()->model()->index(2, 1)});
    EXPECT_EQ(kind<QLabel>("AnzahlZeilen")->text(),
              xText("Anzahl der Markiertenzeilen") + " 1 " + xText("von") + " 3");

    tabelle()->setFocus();
    tabelle()->selectionModel()->setCurrentIndex(tabelle()->model()->index(2, 4),
                                                 QItemSelectionModel::ClearAndSelect);
    QTest::keyClick(tabelle(), Qt::Key_0);
    ASSERT_TRUE(combo()->isVisible());
    EXPECT_EQ(combo()->currentText(), "0");
    EXPECT_EQ(m_formular->editRow(), 3);
    QTest::keyClick(combo(), Qt::Key_Escape);

    QTest::mouseClick(tabelle()->viewport(), Qt::RightButton, {}, mitte(3, 6));
    QMenu* menü = m_ansicht->menue();
    ASSERT_TRUE(menü->isVisible());
    EXPECT_FALSE(menü->findChild<QAction*>("mnuZuordnung")->isEnabled());
    EXPECT_TRUE(menü->findChild<QAction*>("mnuLoeschen")->isEnabled());
    menü->hide();
    EXPECT_EQ(m_formular->grid().auswahl.Row, 3);
    tabelle()->selectAll();
    m_ui.antworten = {antwort::Ja};
    QTest::mouseClick(kind<QPushButton>("ComLoeschen"), Qt::LeftButton);
    EXPECT_EQ(anzahlen("0100_EinleseDaten|0100_EinleseGeräteDaten"), "0|0");
    EXPECT_EQ(tabelle()->model()->rowCount(), 0);
    EXPECT_FALSE(kind<QPushButton>("ComLoeschen")->isEnabled());
    EXPECT_FALSE(kind<QPushButton>("Uebernehmen")->isEnabled());

    tabelle()->setFocus();
    QTest::keyClick(tabelle(), Qt::Key_Escape);
    EXPECT_FALSE(m_formular->istOffen());
    m_formular->geöffnet();
    QTest::mouseClick(kind<QPushButton>("Schliessen"), Qt::LeftButton);
    EXPECT_FALSE(m_formular->istOffen());
    EXPECT_FALSE(m_ansicht->isVisible());
}

} // namespace
