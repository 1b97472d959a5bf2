#include "GridUmgebung.h"

#include <QSignalSpy>

using namespace vemo;
using namespace vemo::test;

namespace {

using FormularTest = GridUmgebung;

class FormularMitZeilen : public GridUmgebung {
protected:
    void SetUp() override {
        GridUmgebung::SetUp();
        gerät(1, "0100-Corvex");
        gerät(2, "0100-Varitron");
        for (int id = 1; id <= 4; ++id)
            eingelesen(
                QString("MessungID=%1, GeräteID=%2, KundeNr=12, AnlageNr=%1").arg(id).arg(id <= 2 ? 1 : 2));
        sql("INSERT INTO \"0100_EinleseMessDaten\" VALUES (2, 'R ISO', '500', 'MOhm'), (3, 'R LO', '0,2', "
            "'Ohm');");
    }
};

// The right button keeps a selection it falls inside and offers the assignment on a data cell; the
// window's test clicks outside the selection, on the moment column.
TEST_F(FormularMitZeilen, TheRightButtonKeepsTheSelectionItFallsIn) {
    auto f = formular();
    QSignalSpy popup(f.get(), &EinleseDatenController::popupRequested);
    f->gridAuswahl({1, 1, 2, 3});
    f->gridMausRunter(2, 2, true);
    f->gridMausHoch(2, 2, true);
    EXPECT_EQ(f->grid().auswahl.RowSel, 2);
    EXPECT_TRUE(f->schaltflächen().zuordnung);
    EXPECT_EQ(popup.count(), 1);
}

TEST_F(FormularTest, EditResultsOnAnEmptyTableSaysSoAndStays) {
    modul().sprachen.setSprache("English (United Kingdom)");
    gerät(1, "0100-Corvex");
    eingelesen("MessungID=1");
    auto f = formular();
    EXPECT_TRUE(f->schaltflächen().editResults);
    sql("DELETE FROM \"0100_EinleseDaten\";");
    f->geöffnet();
    f->editResultsKlick();
    EXPECT_TRUE(f->istOffen());
    EXPECT_EQ(m_ui.texte(), QStringList{"Read in data is empty, there are no results."});
    EXPECT_EQ(m_ui.meldungen[0].titel, modul().anwendungstitel);
}

} // namespace
