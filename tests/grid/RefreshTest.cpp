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

TEST_F(RefreshTest, TypedNumbersResolveOverRepeatedPassesAndKeysAreWrittenBack) {
    gerät(1, "0100-Corvex");
    zeile({.messungID = 1, .kundeNr = "12", .anlageNr = "001"});
    zeile({.messungID = 2, .kundeID = 1, .anlageID = 1, .prüfungID = 1, .verteilerID = 1, .stromkreisID = 2});
    zeile({.messungID = 3,
           .verteilerNr = "001",
           .stromkreisNr = "002",
           .kundeID = 1,
           .anlageID = 1,
           .prüfungID = 1});
    const auto f = formular();

    // The customer's key comes from its number, its name from the next pass; the plant can only
    // be found by its code once the customer's key stands in the row.
    EXPECT_EQ(feld(1, "KundeID"), "1");
    EXPECT_EQ(feld(1, "AnlageID"), "1");
    EXPECT_EQ(text(*f, 1, 1), "12 Bäckerei Sommer");
    EXPECT_EQ(zustand(*f, 1, 1), Zellzustand::Aufgelöst);
    EXPECT_EQ(text(*f, 1, 2), "001 A1 Backstube");
    EXPECT_EQ(zustand(*f, 1, 2), Zellzustand::Aufgelöst);
    EXPECT_EQ(text(*f, 1, 3), heute() + " " + xText("Grund1"));
    EXPECT_EQ(zustand(*f, 1, 3), Zellzustand::Anzulegen);
    EXPECT_EQ(text(*f, 1, 4), "???");
    EXPECT_EQ(zustand(*f, 1, 4), Zellzustand::Offen);

    // A row with every key: the customer shows its name alone, the inspection date, reason and
    // report number.
    EXPECT_EQ(text(*f, 2, 1), "Bäckerei Sommer");
    EXPECT_EQ(text(*f, 2, 3),
              zahlformat::datumText(QDate(2022, 6, 14)) + " " + xText("Grund1") + " 00000001");
    EXPECT_EQ(text(*f, 2, 4), "001 HV Hauptverteiler");
    EXPECT_EQ(text(*f, 2, 5), "002 F2 Steckdosen Backstube");
    for (int spalte = 1; spalte <= 5; ++spalte)
        EXPECT_EQ(zustand(*f, 2, spalte), Zellzustand::Aufgelöst) << spalte;

    // Board and circuit by their codes under the inspection and the board found before.
    EXPECT_EQ(feld(3, "VerteilerID"), "1");
    EXPECT_EQ(feld(3, "StromkreisID"), "2");
    EXPECT_EQ(zustand(*f, 3, 5), Zellzustand::Aufgelöst);
    EXPECT_TRUE(f->schaltflächen().übernehmen);
}

TEST_F(RefreshTest, CellStatesShowWhatIsMissingAndDeadKeysAreReset) {
    gerät(1, "0100-Corvex");
    zeile({.messungID = 1, .kundeNr = "99"});
    zeile({.messungID = 2, .kundeID = 2, .anlageID = 7});
    zeile(
        {.messungID = 3, .kundeNr = "34", .anlageNr = "005", .verteilerNr = "0003", .stromkreisNr = "0004"});
    zeile({.messungID = 4, .kundeID = 1, .anlageID = 2, .prüfungID = 1, .verteilerID = 1, .stromkreisID = 1});
    const auto f = formular();

    EXPECT_EQ(text(*f, 1, 1), "99");
    EXPECT_EQ(zustand(*f, 1, 1), Zellzustand::Offen);
    EXPECT_EQ(text(*f, 1, 2), "???");
    EXPECT_EQ(text(*f, 1, 5), xText("FI-Analyse"));
    EXPECT_EQ(zustand(*f, 1, 5), Zellzustand::Anzulegen);

    // The plant of key 7 has gone and no number stands beside it.
    const Zelle& tot = f->grid().zelle(2, 2);
    EXPECT_EQ(tot.text, "???");
    EXPECT_TRUE(tot.fett);
    EXPECT_EQ(tot.farbe, farbe::Rot);
    EXPECT_EQ(feld(2, "AnlageID"), "0");
    EXPECT_EQ(text(*f, 2, 1), "Wohnbau Nordhang");

    const Zelle& neu = f->grid().zelle(3, 2);
    EXPECT_EQ(neu.text, "005");
    EXPECT_TRUE(neu.fett);
    EXPECT_EQ(neu.farbe, farbe::Blaugrün);
    EXPECT_EQ(text(*f, 3, 4), "0003");
    EXPECT_EQ(text(*f, 3, 5), "0004");
    EXPECT_EQ(zustand(*f, 3, 5), Zellzustand::Anzulegen);

    const Zelle& gut = f->grid().zelle(2, 1);
    EXPECT_FALSE(gut.fett);
    EXPECT_EQ(gut.farbe, farbe::Systemtext);

    // Plant 2 has no inspection 1: the keys below the plant no longer fit and are cleared.
    EXPECT_EQ(feld(4, "PrüfungID"), "0");
    EXPECT_EQ(feld(4, "VerteilerID"), "0");
    EXPECT_EQ(feld(4, "StromkreisID"), "0");
    EXPECT_EQ(text(*f, 4, 2), "002 A2 Verkaufsraum");
}

TEST_F(RefreshTest, CountersDatesAndTheInspectionDateFollowTheInstrument) {
    gerät(1, "zemak 3710");
    gerät(2, "0100-Corvex");
    zeile({.messungID = 1, .geräteID = 1, .kundeID = 1, .anlageID = 1});
    zeile({.messungID = 2,
           .geräteID = 1,
           .datum = "03.02.2021",
           .uhrzeit = "10:11:12",
           .kundeID = 1,
           .anlageID = 1});
    zeile({.messungID = 3, .geräteID = 2, .datum = "04.02.2021", .kundeID = 1, .anlageID = 1});
    zeile({.messungID = 4, .geräteID = 2, .datum = "kein Datum", .kundeID = 1, .anlageID = 1});
    const auto f = formular();

    EXPECT_EQ(text(*f, 1, 0), "1.1");
    EXPECT_EQ(text(*f, 2, 0), "1.2");
    EXPECT_EQ(text(*f, 3, 0), "2.1");
    EXPECT_EQ(text(*f, 4, 0), "2.2");

    // A trusted clock gives its own date; an untrusted one, or no valid date, gives today.
    EXPECT_EQ(text(*f, 2, 3), "03.02.2021 " + xText("Grund1"));
    EXPECT_EQ(text(*f, 1, 3), heute() + " " + xText("Grund1"));
    EXPECT_EQ(text(*f, 3, 3), heute() + " " + xText("Grund1"));

    EXPECT_EQ(text(*f, 2, 6), "03.02.2021 10:11:12");
    EXPECT_TRUE(f->grid().zelle(2, 6).festerHintergrund);
    EXPECT_EQ(text(*f, 3, 6), "04.02.2021 ");
    EXPECT_EQ(text(*f, 1, 6), "");
    EXPECT_FALSE(f->grid().zelle(1, 6).festerHintergrund);
    EXPECT_EQ(f->grid().ColWidth(6), EinleseGrid::Standardbreite);
}

TEST_F(RefreshTest, WithoutAnyDateTheMomentColumnIsHiddenAndItsWidthKept) {
    gerät(1, "0100-Corvex");
    zeile({.messungID = 1, .kundeNr = "12"});
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

TEST_F(RefreshTest, RefreshOfARangeLeavesColumnZeroAndOtherRowsAlone) {
    gerät(1, "0100-Corvex");
    gerät(2, "0100-Corvex");
    for (int id = 1; id <= 4; ++id)
        zeile({.messungID = id, .kundeNr = "12"});
    const auto f = formular();
    ASSERT_EQ(text(*f, 3, 0), "1.3");

    sql("UPDATE \"0100_EinleseDaten\" SET \"GeräteID\" = 2, KundeNr = '77', KundeID = 0 WHERE MessungID IN "
        "(2, 3, 4);");
    f->EinleseGridRefresh(2, 3);
    EXPECT_EQ(text(*f, 2, 0), "1.2");
    EXPECT_EQ(text(*f, 3, 0), "1.3");
    EXPECT_EQ(text(*f, 2, 1), "77");
    EXPECT_EQ(text(*f, 3, 1), "77");
    EXPECT_EQ(text(*f, 4, 1), "12 Bäckerei Sommer");
    EXPECT_EQ(feld(4, "KundeID"), "0");

    f->EinleseGridRefresh(1, 4);
    EXPECT_EQ(text(*f, 2, 0), "2.1");
    EXPECT_EQ(text(*f, 4, 0), "2.3");
}

TEST_F(RefreshTest, UnderTheCertificateRulesAnInspectionMustBeChosen) {
    modul().sprachen.setSprache("English (United Kingdom)");
    gerät(1, "0100-Corvex");
    zeile({.messungID = 1, .kundeID = 1, .anlageID = 1, .prüfungID = 9});
    auto f = formular();
    EXPECT_EQ(text(*f, 1, 3), "???");
    EXPECT_EQ(zustand(*f, 1, 3), Zellzustand::Offen);
    EXPECT_EQ(feld(1, "PrüfungID"), "0");
    EXPECT_FALSE(f->schaltflächen().übernehmen);
    EXPECT_TRUE(f->schaltflächen().editResultsSichtbar);
    EXPECT_TRUE(f->schaltflächen().editResults);

    sql("UPDATE \"0100_EinleseDaten\" SET \"PrüfungID\" = 1;");
    f->EinleseGridRefresh(1, 1);
    EXPECT_EQ(zustand(*f, 1, 3), Zellzustand::Aufgelöst);
    EXPECT_TRUE(f->schaltflächen().übernehmen);

    // In any other language the same row without inspection can be taken over, and a typed plant
    // number stands for a plant to be created.
    modul().sprachen.setSprache("Deutsch");
    sql("UPDATE \"0100_EinleseDaten\" SET \"PrüfungID\" = 0, AnlageID = 0, AnlageNr = '009';");
    f = formular();
    EXPECT_EQ(zustand(*f, 1, 3), Zellzustand::Anzulegen);
    EXPECT_FALSE(f->schaltflächen().editResultsSichtbar);
    EXPECT_TRUE(f->schaltflächen().übernehmen);
    sql("UPDATE \"0100_EinleseDaten\" SET AnlageNr = '';");
    f->EinleseGridRefresh(1, 1);
    EXPECT_FALSE(f->schaltflächen().übernehmen);
}

TEST_F(RefreshTest, OddRowsNeitherStopTheGridNorLoopForever) {
    // Two customers share a number, a row's instrument row is missing, a key is Null.
    sql("INSERT INTO Kunde (KundeID, Name, Nummernkreis) VALUES (8, 'Zweitkunde', '12');");
    zeile({.messungID = 1, .geräteID = 5, .kundeNr = "12"});
    zeile({.messungID = 2, .geräteID = 5, .kundeNr = "56"});
    sql("UPDATE \"0100_EinleseDaten\" SET AnlageID = NULL WHERE MessungID = 2;");
    const auto f = formular();
    EXPECT_TRUE(feld(1, "KundeID") == "1" || feld(1, "KundeID") == "8");
    EXPECT_EQ(zustand(*f, 1, 1), Zellzustand::Aufgelöst);
    EXPECT_EQ(text(*f, 2, 1), "56 Praxis Dr. Feldmann");
    EXPECT_EQ(feld(2, "AnlageID"), "0");
    EXPECT_EQ(text(*f, 2, 3), heute() + " " + xText("Grund1"));
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

TEST_F(RefreshTest, ACustomerNumberIsFoundWhateverTheCaseOfItsUmlauts) {
    sql("INSERT INTO Kunde (KundeID, Name, Nummernkreis) VALUES (8, 'Bäcker', 'BÄ-7');");
    zeile({.messungID = 1, .kundeNr = "bä-7"});
    const auto f = formular();
    EXPECT_EQ(feld(1, "KundeID"), "8");
    EXPECT_EQ(zustand(*f, 1, 1), Zellzustand::Aufgelöst);
}

TEST_F(RefreshTest, AnEmptyTableGivesAnEmptyGrid) {
    const auto f = formular();
    EXPECT_EQ(f->grid().Rows(), 1);
    EXPECT_EQ(text(*f, 0, 1), xText("Kunde"));
    EXPECT_FALSE(f->schaltflächen().übernehmen);
    EXPECT_FALSE(f->schaltflächen().löschen);
    EXPECT_FALSE(f->schaltflächen().editResults);
    EXPECT_EQ(f->anzahlZeilen(), "");
}

} // namespace
