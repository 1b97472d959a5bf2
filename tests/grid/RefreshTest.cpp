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
    eingelesen("MessungID=1, KundeNr=12, AnlageNr=001");
    eingelesen("MessungID=2, KundeID=1, AnlageID=1, PrüfungID=1, VerteilerID=1, StromkreisID=2");
    eingelesen("MessungID=3, VerteilerNr=001, StromkreisNr=002, KundeID=1, AnlageID=1, PrüfungID=1");
    const auto f = formular();

    // The customer's key comes from its number, its name from the next pass; the plant can only
    // be found by its code once the customer's key stands in the row.
    EXPECT_EQ(schlüssel(1), "1|1|0|0|0");
    EXPECT_EQ(reihe(*f, 1, 1, 4),
              "12 Bäckerei Sommer|001 A1 Backstube|" + heute() + " " + xText("Grund1") + "|???");
    EXPECT_EQ(zustände(*f, 1).left(4), "aano");

    // A row with every key: the customer shows its name alone, the inspection date, reason and
    // report number.
    EXPECT_EQ(text(*f, 2, 1), "Bäckerei Sommer");
    EXPECT_EQ(reihe(*f, 2, 3, 5), zahlformat::datumText(QDate(2022, 6, 14)) + " " + xText("Grund1") +
                                      " 00000001|001 HV Hauptverteiler|002 F2 Steckdosen Backstube");
    EXPECT_EQ(zustände(*f, 2), "aaaaa");

    // Board and circuit by their codes under the inspection and the board found before.
    EXPECT_EQ(schlüssel(3), "1|1|1|1|2");
    EXPECT_EQ(zustand(*f, 3, 5), Zellzustand::Aufgelöst);
    EXPECT_TRUE(f->schaltflächen().übernehmen);
}

// A dead key shows red, a number to be created blue-green, a resolved cell plain.
TEST_F(RefreshTest, CellStatesShowWhatIsMissingAndDeadKeysAreReset) {
    gerät(1, "0100-Corvex");
    eingelesen("MessungID=1, KundeNr=99");
    eingelesen("MessungID=2, KundeID=2, AnlageID=7");
    eingelesen("MessungID=3, KundeNr=34, AnlageNr=005, VerteilerNr=0003, StromkreisNr=0004");
    eingelesen("MessungID=4, KundeID=1, AnlageID=2, PrüfungID=1, VerteilerID=1, StromkreisID=1");
    const auto f = formular();
    const auto zelle = [&](int zeile, int spalte) {
        const Zelle& z = f->grid().zelle(zeile, spalte);
        return QString("%1 %2 %3").arg(z.text).arg(z.fett ? "fett" : "normal").arg(z.farbe);
    };

    EXPECT_EQ(reihe(*f, 1, 1, 2) + "|" + text(*f, 1, 5), "99|???|" + xText("FI-Analyse"));
    EXPECT_EQ(zustand(*f, 1, 1), Zellzustand::Offen);
    EXPECT_EQ(zustand(*f, 1, 5), Zellzustand::Anzulegen);

    // The plant of key 7 has gone and no number stands beside it.
    EXPECT_EQ(zelle(2, 2), QString("??? fett %1").arg(farbe::Rot));
    EXPECT_EQ(feld(2, "AnlageID"), "0");
    EXPECT_EQ(zelle(2, 1), QString("Wohnbau Nordhang normal %1").arg(farbe::Systemtext));

    EXPECT_EQ(zelle(3, 2), QString("005 fett %1").arg(farbe::Blaugrün));
    EXPECT_EQ(reihe(*f, 3, 4, 5), "0003|0004");
    EXPECT_EQ(zustand(*f, 3, 5), Zellzustand::Anzulegen);

    // Plant 2 has no inspection 1: the keys below the plant no longer fit and are cleared.
    EXPECT_EQ(schlüssel(4), "1|2|0|0|0");
    EXPECT_EQ(text(*f, 4, 2), "002 A2 Verkaufsraum");
}

TEST_F(RefreshTest, CountersDatesAndTheInspectionDateFollowTheInstrument) {
    gerät(1, "zemak 3710");
    gerät(2, "0100-Corvex");
    eingelesen("MessungID=1, GeräteID=1, KundeID=1, AnlageID=1");
    eingelesen("MessungID=2, GeräteID=1, Datum=03.02.2021, Uhrzeit=10:11:12, KundeID=1, AnlageID=1");
    eingelesen("MessungID=3, GeräteID=2, Datum=04.02.2021, KundeID=1, AnlageID=1");
    eingelesen("MessungID=4, GeräteID=2, Datum=kein Datum, KundeID=1, AnlageID=1");
    const auto f = formular();

    EXPECT_EQ(text(*f, 1, 0) + " " + text(*f, 2, 0) + " " + text(*f, 3, 0) + " " + text(*f, 4, 0),
              "1.1 1.2 2.1 2.2");

    // A trusted clock gives its own date; an untrusted one, or no valid date, gives today.
    const QString grund = " " + xText("Grund1");
    EXPECT_EQ(text(*f, 2, 3), "03.02.2021" + grund);
    EXPECT_EQ(text(*f, 1, 3) + "|" + text(*f, 3, 3), heute() + grund + "|" + heute() + grund);

    EXPECT_EQ(text(*f, 1, 6) + "|" + text(*f, 2, 6) + "|" + text(*f, 3, 6),
              "|03.02.2021 10:11:12|04.02.2021 ");
    EXPECT_TRUE(f->grid().zelle(2, 6).festerHintergrund);
    EXPECT_FALSE(f->grid().zelle(1, 6).festerHintergrund);
    EXPECT_EQ(f->grid().ColWidth(6), EinleseGrid::Standardbreite);
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

TEST_F(RefreshTest, RefreshOfARangeLeavesColumnZeroAndOtherRowsAlone) {
    gerät(1, "0100-Corvex");
    gerät(2, "0100-Corvex");
    for (int id = 1; id <= 4; ++id)
        eingelesen("MessungID=" + QString::number(id) + ", KundeNr=12");
    const auto f = formular();
    ASSERT_EQ(text(*f, 3, 0), "1.3");

    sql("UPDATE \"0100_EinleseDaten\" SET \"GeräteID\" = 2, KundeNr = '77', KundeID = 0 WHERE MessungID IN "
        "(2, 3, 4);");
    f->EinleseGridRefresh(2, 3);
    EXPECT_EQ(reihe(*f, 2, 0, 1) + " " + reihe(*f, 3, 0, 1) + " " + text(*f, 4, 1),
              "1.2|77 1.3|77 12 Bäckerei Sommer");
    EXPECT_EQ(feld(4, "KundeID"), "0");

    f->EinleseGridRefresh(1, 4);
    EXPECT_EQ(text(*f, 2, 0) + " " + text(*f, 4, 0), "2.1 2.3");
}

TEST_F(RefreshTest, UnderTheCertificateRulesAnInspectionMustBeChosen) {
    modul().sprachen.setSprache("English (United Kingdom)");
    gerät(1, "0100-Corvex");
    eingelesen("MessungID=1, KundeID=1, AnlageID=1, PrüfungID=9");
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
