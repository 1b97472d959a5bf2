#include "GridUmgebung.h"

#include "platform/Zahlformat.h"

#include <QDate>

using namespace vemo;
using namespace vemo::test;

namespace {

using ZuordnungTest = GridUmgebung;

constexpr int Enter = 13;
constexpr int Escape = 27;

// Opens the combo box by a double click on a cell, as the grid's mouse events reach the form.
void doppelklick(EinleseDatenController& f, int zeile, int spalte) {
    f.gridMausRunter(zeile, spalte, false);
    f.gridMausHoch(zeile, spalte, false);
    f.gridDoppelklick();
}

int eintrag(const EinleseDatenController& f, const QString& text) {
    const auto& e = f.combo().einträge;
    for (int i = 0; i < e.size(); ++i)
        if (e[i].text == text)
            return i;
    return -1;
}

TEST_F(ZuordnungTest, RowsOfAnotherParentArePassedOver) {
    gerät(1, "0100-Corvex");
    eingelesen("MessungID=1, KundeID=1, AnlageID=1");
    eingelesen("MessungID=2, KundeID=1, AnlageID=1");
    eingelesen("MessungID=3, KundeID=1, AnlageID=2");
    eingelesen("MessungID=4, KundeID=2, AnlageID=3");
    auto f = formular();

    f->gridAuswahl({1, 3, 4, 3});
    doppelklick(*f, 1, 3);
    ASSERT_EQ(f->combo().einträge.size(), 2);
    EXPECT_EQ(f->combo().einträge[0].text, xText("keine Prüfung"));
    const QString prüfung = zahlformat::datumText(QDate(2022, 6, 14)) + " " + xText("Grund1") + " 00000001";
    EXPECT_EQ(f->combo().einträge[1].text, prüfung);
    f->comboKlick(1);
    EXPECT_EQ(wert("SELECT Group_Concat(PrüfungID) FROM (SELECT PrüfungID FROM 0100_EinleseDaten ORDER BY "
                   "MessungID)"),
              "1,1,0,0");
    EXPECT_EQ(text(*f, 1, 3), prüfung);

    // "keine Anlage" for a customer's rows: a typed number stays and the plant is to be created.
    sql("UPDATE \"0100_EinleseDaten\" SET AnlageNr = '004' WHERE MessungID = 2;");
    f->gridAuswahl({1, 2, 4, 2});
    doppelklick(*f, 1, 2);
    f->comboKlick(eintrag(*f, xText("keine Anlage")));
    EXPECT_EQ(
        wert(
            "SELECT Group_Concat(AnlageID) FROM (SELECT AnlageID FROM 0100_EinleseDaten ORDER BY MessungID)"),
        "0,0,0,3");
    EXPECT_EQ(feld(1, "PrüfungID"), "0");
    EXPECT_EQ(feld(2, "AnlageNr") + " " + text(*f, 2, 2), "004 004");
    EXPECT_EQ(zustand(*f, 2, 2), Zellzustand::Anzulegen);
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

// Moving, leaving and Escape are the window test's; here Enter on the unchanged list stores the
// same key, which changes nothing below it, and a typed text that names no entry is dropped.
TEST_F(ZuordnungTest, EnterOnTheSameEntryOrOnNoEntryChangesNothing) {
    gerät(1, "0100-Corvex");
    eingelesen("MessungID=1, KundeID=1, AnlageID=1, PrüfungID=1, VerteilerID=1, StromkreisID=1");
    auto f = formular();
    doppelklick(*f, 1, 2);
    EXPECT_TRUE(f->tasteGesehen());
    f->comboTaste(Enter);
    EXPECT_FALSE(f->combo().sichtbar);
    EXPECT_EQ(schlüssel(1), "1|1|1|1|1");

    f->gridAuswahl({1, 2, 1, 2});
    f->gridTaste('x');
    EXPECT_EQ(f->combo().text, "x");
    EXPECT_EQ(f->combo().listIndex, -1);
    f->comboTaste(Enter);
    EXPECT_EQ(schlüssel(1), "1|1|1|1|1");
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

TEST_F(ZuordnungTest, TheComboOpensOnDataCellsOnlyAndFromOutsideTheSelectionForOneRow) {
    gerät(1, "0100-Corvex");
    for (int id = 1; id <= 3; ++id)
        eingelesen("MessungID=" + QString::number(id) + ", KundeID=1");
    auto f = formular();
    f->gridAuswahl({1, 1, 2, 1});

    for (const auto& [zeile, spalte] : {std::pair{0, 2}, {2, 0}, {-1, 3}}) {
        doppelklick(*f, zeile, spalte);
        EXPECT_FALSE(f->combo().sichtbar) << zeile << "," << spalte;
    }
    f->gridAuswahl({1, 1, 2, 1});
    f->gridMausHoch(2, 1, false);
    f->mnuZuordnungKlick();
    EXPECT_TRUE(f->combo().sichtbar);
    EXPECT_TRUE(f->combo().listeOffen);
    EXPECT_EQ(f->grid().auswahl.letzteZeile(), 2); // inside the selection: it stays
    f->comboTaste(Escape);

    doppelklick(*f, 3, 2);
    EXPECT_TRUE(f->combo().sichtbar);
    const Auswahl& a = f->grid().auswahl;
    EXPECT_EQ(QString("%1 %2 %3").arg(a.Row).arg(a.RowSel).arg(a.Col), "3 3 2");
}

} // namespace
