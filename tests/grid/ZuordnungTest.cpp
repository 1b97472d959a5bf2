#include "GridUmgebung.h"

#include "platform/Zahlformat.h"

using namespace vemo;
using namespace vemo::test;

namespace {

using ZuordnungTest = GridUmgebung;

constexpr int Enter = 13;

// Opens the combo box by a double click on a cell, as the grid's mouse events reach the form.
void doppelklick(EinleseDatenController& f, int zeile, int spalte) {
    f.gridMausRunter(zeile, spalte, false);
    f.gridMausHoch(zeile, spalte, false);
    f.gridDoppelklick();
}

TEST_F(ZuordnungTest, BoardAndCircuitTakeTheEntryTextAsTheirNumber) {
    gerät(1, "0100-Corvex");
    eingelesen("MessungID=1, KundeID=1, AnlageID=1, PrüfungID=1, VerteilerID=1, StromkreisID=1");
    eingelesen("MessungID=2, KundeID=1, AnlageID=1, PrüfungID=1, VerteilerID=1");
    auto f = formular();

    doppelklick(*f, 2, 5);
    QStringList kreise;
    for (const auto& e : f->combo().einträge)
        kreise << e.text;
    EXPECT_EQ(kreise, QStringList({"0", "001 F1 Backofen", "002 F2 Steckdosen Backstube"}));
    f->comboKlick(2);
    EXPECT_EQ(feld(2, "StromkreisID"), "2");
    EXPECT_EQ(feld(2, "StromkreisNr"), "002 F2 Steckdosen Backstube");

    doppelklick(*f, 1, 4);
    EXPECT_EQ(f->combo().einträge.value(0).text, "0");
    f->comboKlick(0);
    EXPECT_EQ(feld(1, "VerteilerNr") + " " + schlüssel(1) + " " + text(*f, 1, 4), "0 1|1|1|0|0 0");
    EXPECT_EQ(zustand(*f, 1, 4), Zellzustand::Anzulegen);
    EXPECT_EQ(feld(2, "VerteilerID"), "1"); // outside the selection
}

} // namespace
