#include "GridUmgebung.h"

#include "grid/GridBefehle.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace vemo;
using namespace vemo::test;

namespace {

class BefehleTest : public GridUmgebung {
protected:
    void SetUp() override {
        GridUmgebung::SetUp();
        gerät(1, "0100-Corvex");
        eingelesen("MessungID=1, Datum=14.06.2022, Uhrzeit=09:30:00, KundeID=1, AnlageID=1");
        eingelesen("MessungID=2, KundeNr=12, AnlageNr=007");
        eingelesen("MessungID=3, KundeNr=99");
        eingelesen("MessungID=4, KundeID=3, AnlageID=4");
    }

    QString ausgabe(bool json) {
        QString text;
        QTextStream aus(&text);
        EXPECT_EQ(gridBefehl(json, aus), 0);
        return text;
    }
};

TEST_F(BefehleTest, TheGridAsJsonAndAsText) {
    const QString json = ausgabe(true);
    EXPECT_TRUE(
        json.startsWith("[\n  {\"nr\": \"1.1\", \"cells\": [{\"text\": \"Bäckerei Sommer\", \"state\": "
                        "\"resolved\"}, {\"text\": \"001 A1 Backstube\""))
        << json.toStdString();
    QJsonParseError fehler;
    const QJsonArray zeilen = QJsonDocument::fromJson(json.toUtf8(), &fehler).array();
    ASSERT_EQ(fehler.error, QJsonParseError::NoError);
    ASSERT_EQ(zeilen.size(), 4);
    const QJsonObject zwei = zeilen[1].toObject();
    EXPECT_EQ(zwei["nr"].toString(), "1.2");
    const QJsonArray zellen = zwei["cells"].toArray();
    ASSERT_EQ(zellen.size(), 5);
    EXPECT_EQ(zellen[1].toObject()["text"].toString() + " " + zellen[1].toObject()["state"].toString(),
              "007 create");
    EXPECT_EQ(zeilen[2].toObject()["cells"].toArray()[0].toObject()["state"].toString(), "unresolved");
    EXPECT_EQ(zeilen[0].toObject()["moment"].toString(), "14.06.2022 09:30:00");
    EXPECT_EQ(zwei["moment"].toString(), "");

    const QStringList tabelle = ausgabe(false).split('\n');
    ASSERT_GE(tabelle.size(), 6);
    EXPECT_TRUE(tabelle[0].contains(xText("Stromkreis")) && tabelle[0].contains(xText("Messzeitpunkt")))
        << tabelle[0].toStdString();
    EXPECT_TRUE(tabelle[2].contains("+007"));
    EXPECT_TRUE(tabelle[3].contains("!99"));
    EXPECT_EQ(tabelle[1].indexOf("Bäckerei"), tabelle[0].indexOf(xText("Kunde"))); // columns line up

    sql("DELETE FROM \"0100_EinleseDaten\";");
    EXPECT_EQ(ausgabe(true), "[]\n");
}

TEST_F(BefehleTest, AssignTakesOnlyKeysOfTheListAndFollowsTheCommitRules) {
    EXPECT_EQ(zuordnenBefehl("3-1", "1", "2"), 0);
    EXPECT_EQ(
        wert("SELECT Group_Concat(KundeID || '/' || AnlageID, ' ') FROM (SELECT * FROM 0100_EinleseDaten "
             "ORDER BY MessungID)"),
        "2/0 2/0 2/0 3/4");

    // Plant 4 belongs to customer 3: not in the list of row 1's customer.
    EXPECT_EQ(zuordnenBefehl("1", "2", "4"), 1);
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.contains("3 001 H17 Haus 17"));
    EXPECT_EQ(feld(1, "AnlageID"), "0");
    EXPECT_EQ(zuordnenBefehl("1-2", "2", "3"), 0);
    EXPECT_EQ(feld(2, "AnlageID"), "3");

    m_ui.meldungen.clear();
    EXPECT_EQ(zuordnenBefehl("1", "6", "1"), 2);
    EXPECT_EQ(zuordnenBefehl("1", "2", "drei"), 2);
    EXPECT_EQ(zuordnenBefehl("0-2", "2", "3"), 2);
    EXPECT_EQ(zuordnenBefehl("2-", "2", "3"), 2);
    EXPECT_EQ(zuordnenBefehl("4-5", "2", "3"), 1);
    EXPECT_EQ(m_ui.meldungen.size(), 5);
    EXPECT_EQ(feld(4, "AnlageID"), "4");
}

TEST_F(BefehleTest, DeleteRowsAsksFirst) {
    EXPECT_EQ(zeilenLöschenBefehl("2-3"), 1); // the question's default is No
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 4);
    m_ui.antworten = {antwort::Ja};
    EXPECT_EQ(zeilenLöschenBefehl("2-3"), 0);
    EXPECT_EQ(wert("SELECT Group_Concat(MessungID) FROM 0100_EinleseDaten"), "1,4");
    EXPECT_EQ(zeilenLöschenBefehl("3"), 1);
}

} // namespace
