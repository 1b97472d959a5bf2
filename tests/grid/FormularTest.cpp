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

TEST_F(FormularMitZeilen, DeletingAsksAndRemovesTheSelectedRows) {
    auto f = formular();
    EXPECT_FALSE(f->schaltflächen().löschen); // cell (0, 0): the header row alone can't be deleted
    f->gridAuswahl({3, 1, 2, 1});
    m_ui.antworten = {antwort::Nein};
    f->löschenKlick();
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 4);
    ASSERT_EQ(m_ui.texte(), QStringList{xText("Sicher Löschen")});
    EXPECT_EQ(m_ui.meldungen[0].titel, modul().anwendungstitel + " - " + xText("Löschen von Datensatz"));
    EXPECT_EQ(m_ui.meldungen[0].stil.knöpfe, MsgKnöpfe::JaNein);
    EXPECT_EQ(m_ui.meldungen[0].stil.standardKnopf, 2);

    m_ui.antworten = {antwort::Ja};
    f->löschenKlick();
    EXPECT_EQ(wert("SELECT Group_Concat(MessungID) FROM (SELECT MessungID FROM 0100_EinleseDaten ORDER BY "
                   "MessungID)"),
              "1,4");
    EXPECT_EQ(anzahlen("0100_EinleseMessDaten|0100_EinleseGeräteDaten"), "0|2");
    EXPECT_EQ(f->grid().Rows(), 3);
    EXPECT_EQ(text(*f, 2, 0) + " " + text(*f, 2, 2), "2.1 4");
    EXPECT_FALSE(f->schaltflächen().löschen);
    EXPECT_EQ(m_ui.sanduhrTiefe, 0);
}

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

TEST_F(FormularMitZeilen, TheWaysOutSetTheSignalsToTheHost) {
    modul().EinlesedatenID = 5;
    modul().EinlesedatenIDRow = 5;
    auto f = formular();
    f->geöffnet();
    f->schließenKlick();
    EXPECT_FALSE(f->istOffen());
    EXPECT_EQ(QString::number(modul().EinlesedatenID.toInt()) + " " +
                  QString::number(modul().EinlesedatenIDRow.toInt()),
              "0 0");

    f = formular();
    f->geöffnet();
    f->formTaste(13);
    EXPECT_TRUE(f->istOffen());
    f->formTaste(27);
    EXPECT_FALSE(f->istOffen());

    f = formular();
    f->geöffnet();
    f->editResultsKlick();
    EXPECT_FALSE(f->istOffen());
    EXPECT_EQ(modul().EinlesedatenIDRow.toInt(), 1);
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
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

TEST_F(FormularMitZeilen, TheTakeOverIsPluggedInAndDrivesTheForm) {
    auto f = formular();
    f->übernehmenKlick();
    ASSERT_EQ(m_ui.meldungen.size(), 1); // nothing plugged in: the user is told

    QSignalSpy aktualisiert(f.get(), &DialogController::aktualisiert);
    EinleseDatenController::datenübernahmeEinsetzen([](EinleseDatenController& form) {
        Schaltflächen aus = form.schaltflächen();
        aus.übernehmen = aus.löschen = aus.schließen = false;
        form.setSchaltflächen(aus);
        form.setFortschritt({0, int(form.zeilenAnzahl()), 1, true});
        form.setAnzahlZeilen("1 / 4");
        db().Execute("DELETE * FROM 0100_EinleseDaten WHERE MessungID = 1");
        form.EinleseGridRefresh(1, form.zeilenAnzahl() - 1);
    });
    f->übernehmenKlick();
    EXPECT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_EQ(f->fortschritt().Max, 4);
    EXPECT_TRUE(f->fortschritt().sichtbar);
    EXPECT_FALSE(f->schaltflächen().schließen);
    EXPECT_EQ(f->grid().Rows(), 4);
    EXPECT_GE(aktualisiert.count(), 4);
}

} // namespace
