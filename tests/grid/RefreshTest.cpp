#include "GridUmgebung.h"

#include "platform/Zahlformat.h"

#include <QDate>

using namespace vemo;
using namespace vemo::test;

namespace {

using RefreshTest = GridUmgebung;

QString heute() {
    return zahlformat::datumText(QDate::currentDate());
}

TEST_F(RefreshTest, WithoutAnyDateTheMomentColumnIsHiddenAndItsWidthKept) {
    gerät(1, "0100-Corvex");
    eingelesen("MessungID=1, KundeNr=12");
    m_settings.SaveSetting("EinleseGrid", "ColWidth 6", "2000");
    auto f = formular();
    EXPECT_EQ(f->grid().ColWidth(6), 0);
    EXPECT_EQ(f->grid().ColWidth(5), EinleseGrid::Standardbreite);

    f->setColWidth(2, 3000);
    f->gridFokusVerloren();
    EXPECT_EQ(m_settings.GetSetting("EinleseGrid", "ColWidth 2"), "3000");
    EXPECT_EQ(m_settings.GetSetting("EinleseGrid", "ColWidth 6"), "2000");

    sql("UPDATE \"0100_EinleseDaten\" SET Uhrzeit = '08:00';");
    f->EinleseGridRefresh(1, 1);
    EXPECT_EQ(f->grid().ColWidth(6), 2000);
    EXPECT_EQ(formular()->grid().ColWidth(2), 3000);
}

TEST_F(RefreshTest, OddRowsNeitherStopTheGridNorLoopForever) {
    // Two customers share a number, a row's instrument row is missing, a key is Null.
    sql("INSERT INTO Kunde (KundeID, Name, Nummernkreis) VALUES (8, 'Zweitkunde', '12');");
    eingelesen("MessungID=1, GeräteID=5, KundeNr=12");
    eingelesen("MessungID=2, GeräteID=5, KundeNr=56");
    sql("UPDATE \"0100_EinleseDaten\" SET AnlageID = NULL WHERE MessungID = 2;");
    const auto f = formular();
    EXPECT_TRUE(feld(1, "KundeID") == "1" || feld(1, "KundeID") == "8");
    EXPECT_EQ(zustand(*f, 1, 1), Zellzustand::Aufgelöst);
    EXPECT_EQ(feld(2, "AnlageID"), "0");
    EXPECT_EQ(reihe(*f, 2, 1, 1) + "|" + text(*f, 2, 3),
              "56 Praxis Dr. Feldmann|" + heute() + " " + xText("Grund1"));
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

TEST_F(RefreshTest, ACustomerNumberIsFoundWhateverTheCaseOfItsUmlauts) {
    sql("INSERT INTO Kunde (KundeID, Name, Nummernkreis) VALUES (8, 'Bäcker', 'BÄ-7');");
    eingelesen("MessungID=1, KundeNr=bä-7");
    const auto f = formular();
    EXPECT_EQ(feld(1, "KundeID"), "8");
    EXPECT_EQ(zustand(*f, 1, 1), Zellzustand::Aufgelöst);
}

} // namespace
