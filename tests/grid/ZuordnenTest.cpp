#include "GridUmgebung.h"

#include "grid/ZuordnenDialog.h"
#include "store/Variant.h"
#include "support/Fremdtexte.h"

using namespace vemo;
using namespace vemo::test;

namespace {

// The demo customers: Bäckerei Sommer (1) with plants 001 Backstube (1, inspection 1) and 002
// Verkaufsraum (2); Wohnbau Nordhang (2) with plant 001 Haus 17 (3). Device 1 read in before the
// newest device 2.
class ZuordnenTest : public GridUmgebung {
protected:
    void SetUp() override {
        GridUmgebung::SetUp();
        gerät(1, "0100-Corvex");
        gerät(2, "0100-Varitron");
        eingelesen("MessungID=1, GeräteID=1, AnlageNr=001, VerteilerNr=1, StromkreisNr=1");
    }

    // Rows of the newest device with the given plant numbers.
    void neuesteZeilen(const QStringList& anlageNummern) {
        int id = 10;
        for (const QString& nr : anlageNummern)
            eingelesen(QString("MessungID=%1, GeräteID=2, AnlageNr=%2, VerteilerNr=1, StromkreisNr=1")
                           .arg(id++)
                           .arg(nr));
    }

    static int kundeIndex(const frmZuordnen& f, int kundeID) {
        return eintragMitSchlüssel(f.comboKunde().einträge, kundeID);
    }
    static QStringList texte(const Zuordnungsliste& l) {
        QStringList t;
        for (const ComboEintrag& e : l.einträge)
            t << e.text;
        return t;
    }
};

// What the newest device's plant numbers preselect for a customer, as "plant list active, index,
// [entries], inspection list active", and the keys Weiter writes: two numbers the customer alone,
// an empty number the first plant without inspection, an unknown number itself first (the take-over
// makes it), a customer without plants nothing.
TEST_F(ZuordnenTest, ThePlantNumbersDecideThePreselection) {
    sql("INSERT INTO Kunde (KundeID, Name) VALUES (9, 'Neukunde')");
    const struct {
        QStringList nummern;
        int kunde;
        QString auswahl, schlüssel;
    } fälle[] = {
        {{"001", "002"}, 1, "0 -1 [] 0", "1|0|0|0|0"},
        {{""}, 1, "1 0 [001 A1 Backstube, 002 A2 Verkaufsraum] 0", "1|1|0|0|0"},
        {{"007"}, 2, "1 0 [007, 001 H17 Haus 17] 0", "2|0|0|0|0"},
        {{"001"}, 9, "0 -1 [] 0", "9|0|0|0|0"},
    };
    for (const auto& fall : fälle) {
        SCOPED_TRACE(fall.auswahl.toStdString());
        sql("DELETE FROM \"0100_EinleseDaten\" WHERE GeräteID = 2");
        neuesteZeilen(fall.nummern);
        frmZuordnen f;
        f.kundeKlick(kundeIndex(f, fall.kunde));
        EXPECT_EQ(QString("%1 %2 [%3] %4")
                      .arg(f.comboAnlage().aktiv)
                      .arg(f.comboAnlage().listIndex)
                      .arg(texte(f.comboAnlage()).join(", "))
                      .arg(f.comboPrüfung().aktiv),
                  fall.auswahl);
        f.weiterKlick();
        EXPECT_EQ(schlüssel(10), fall.schlüssel);
    }
}

// The device's plant number is compared as its text: with an apostrophe it finds its plant, and one
// that reads as a condition or a pattern finds no other and is offered as a new plant.
TEST_F(ZuordnenTest, APlantNumberIsComparedAsItsText) {
    sql("INSERT INTO \"0100_Anlage\" (AnlageID, KundeID, Code, Nr, Name) VALUES (9, 2, 'O''Neill-42', '', "
        "'Hof')");
    for (const QString& nummer : Fremdtexte) {
        sql("DELETE FROM \"0100_EinleseDaten\" WHERE GeräteID = 2");
        neuesteZeilen({nummer});
        frmZuordnen f;
        f.kundeKlick(kundeIndex(f, 2));
        const Zuordnungsliste& anlagen = f.comboAnlage();
        EXPECT_EQ(vemo::text(anlagen.schlüssel()), nummer == "O'Neill-42" ? "9" : "") << nummer.toStdString();
        EXPECT_TRUE(anlagen.einträge.value(anlagen.listIndex).text.startsWith(nummer))
            << nummer.toStdString();
    }
}

} // namespace
