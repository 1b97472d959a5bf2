#include "import/Messtext.h"
#include "import/Adresse.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

// A circuit as "board/circuit|name|cable|fuse|RCD current|RCD kind|" and its values VISO to LOW
// joined by ";".
QString zeile(const Messkreis& k) {
    return QStringList{
               k.verteilerCode + "/" + k.stromkreisCode, k.name, k.kabel, k.sicherung, k.fiStrom, k.fiArt}
               .join('|') +
           "|" + QStringList(k.werte.begin(), k.werte.end()).join(';');
}

const QString Werte = "500;1,2;0,9;>999;30;21;4,5;0,6;28;0,35;0,41;12;rechts;0,15";
const QString Leer = ";;;;;;;;;;;;;";

// The compressed form names no board.
TEST(MesstextTest, TheCompressedFormGivesEachRecordItsCircuitInFieldOrder) {
    const Messtext m = messtextLesen("!1/3;;Küche;NYM-J 3x1,5;B16;;30;;A;;" + Werte +
                                     "#!2/12;;Keller;;;;;;;;" + Leer + "#@");
    ASSERT_TRUE(m.fehler.isEmpty()) << m.fehler.join("|").toStdString();
    ASSERT_EQ(m.kreise.size(), 2);
    EXPECT_EQ(zeile(m.kreise[0]), "001/003|Küche|NYM-J 3x1,5|B16|30|A|" + Werte);
    EXPECT_EQ(zeile(m.kreise[1]), "002/012|Keller|||||" + Leer);
    EXPECT_TRUE(m.verteilernamen.isEmpty());
}

TEST(MesstextTest, TheLongFormNamesItsBoardsAndTakesOneFieldALine) {
    const QString text = "**** START ****|UV Hauptverteiler|1/1||Licht|NYM-J 3x1,5|B10||||||" +
                         QString(Werte).replace(';', '|') + "|###|1/2||Herd||C32||||||400|UV Garage|2/1||Tor";
    const Messtext m = messtextLesen(text.split('|').join("\r\n"));
    ASSERT_TRUE(m.fehler.isEmpty()) << m.fehler.join("|").toStdString();
    ASSERT_EQ(m.kreise.size(), 3);
    EXPECT_EQ(zeile(m.kreise[0]), "001/001|Licht|NYM-J 3x1,5|B10|||" + Werte);
    EXPECT_EQ(zeile(m.kreise[1]), "001/002|Herd||C32|||400" + Leer);
    EXPECT_EQ(zeile(m.kreise[2]), "002/001|Tor|||||" + Leer);
    EXPECT_EQ(m.verteilernamen.value("001") + "|" + m.verteilernamen.value("002"), "Hauptverteiler|Garage");
}

TEST(MesstextTest, AFaultyTextIsRefusedWholeWithItsMessages) {
    const QString endeMeldung = " Datei enthält Fehler, kann nicht Importiert werden.";
    struct Fall {
        QString text;
        QStringList fehler;
    };
    const QList<Fall> fälle{
        {"!1/1;;Flur#", {"Endmarker @ nicht gefunden", endeMeldung}},
        {"!1-1;;Flur#@",
         {"Stromkreis / Platznummer Format ist fehlerhaft oder alteversion 1-1", endeMeldung}},
        {"!1/1;x;Flur#@", {"Feld hinter PlatzNr ist nicht leer, enthält x", endeMeldung}},
        {"!1/1;;Flur;;B16;16A;;;;#@", {"Feld hinter Sicherung ist nicht leer, enthält 16A", endeMeldung}},
        {"!1/1;;Flur;;;;30;30;;#!1/2;;Bad;;;;;;A;B#@",
         {"Feld hinter FI 1 ist nicht leer, enthält 30", "Feld hinter FI 2 ist nicht leer, enthält B",
          endeMeldung}},
        {"Messprotokoll vom Mai", {endeMeldung}},
    };
    for (const Fall& f : fälle) {
        const Messtext m = messtextLesen(f.text);
        EXPECT_EQ(m.fehler, f.fehler) << f.text.toStdString();
        EXPECT_TRUE(m.kreise.isEmpty()) << f.text.toStdString();
    }
    EXPECT_TRUE(messtextLesen("  ").fehler.isEmpty()); // no text: nothing measured, nothing wrong
}

TEST(AdresseTest, PostcodeAndTownSplitFromOneLine) {
    struct Fall {
        QString zeile, plz, stadt;
    };
    const QList<Fall> fälle{
        {" 34117 Kassel ", "34117", "Kassel"},
        {"D-34117 Kassel-Wilhelmshöhe", "-34117", "Kassel-Wilhelmshöhe"},
        {"Kassel", "", "Kassel"},
        {"34117", "34117", ""},
        {"", "", ""},
    };
    for (const Fall& f : fälle) {
        EXPECT_EQ(sPLZ(f.zeile), f.plz) << f.zeile.toStdString();
        EXPECT_EQ(sStadt(f.zeile), f.stadt) << f.zeile.toStdString();
    }
}

} // namespace
