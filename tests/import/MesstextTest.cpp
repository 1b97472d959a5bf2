#include "import/Messtext.h"
#include "import/Adresse.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

// The value of a column of Messtextwerte in a circuit.
QString wert(const Messkreis& k, const char* spalte) {
    for (size_t i = 0; i < Messtextwerte.size(); ++i)
        if (QString(Messtextwerte[i]) == spalte)
            return k.werte[i];
    return "?";
}

// Fields up to the values, then the values VISO to LOW.
QString satz(const QString& platz, const QString& vorWerten, const QStringList& werte) {
    return platz + ";" + vorWerten + ";" + werte.join(';');
}

const QStringList Werte{"500", "1,2", "0,9",  ">999", "30", "21",     "4,5",
                        "0,6", "28",  "0,35", "0,41", "12", "rechts", "0,15"};

TEST(MesstextTest, TheCompressedFormGivesEachRecordItsCircuitInFieldOrder) {
    const QString text = "!" + satz("1/3", ";Küche;NYM-J 3x1,5;B16;;30;;A;", Werte) + "#!" +
                         satz("2/12", ";Keller;;;;;;;", QStringList(14)) + "#@";
    const Messtext m = messtextLesen(text);
    ASSERT_TRUE(m.fehler.isEmpty()) << m.fehler.join("|").toStdString();
    ASSERT_EQ(m.kreise.size(), 2);
    const Messkreis& k = m.kreise[0];
    EXPECT_EQ(k.verteilerCode, "001");
    EXPECT_EQ(k.stromkreisCode, "003");
    EXPECT_EQ(k.name, "Küche");
    EXPECT_EQ(k.kabel, "NYM-J 3x1,5");
    EXPECT_EQ(k.sicherung, "B16");
    EXPECT_EQ(k.fiStrom, "30");
    EXPECT_EQ(k.fiArt, "A");
    EXPECT_EQ(wert(k, "VISO"), "500");
    EXPECT_EQ(wert(k, "RISO"), ">999");
    EXPECT_EQ(wert(k, "FIT"), "28");
    EXPECT_EQ(wert(k, "DREH"), "rechts");
    EXPECT_EQ(wert(k, "LOW"), "0,15");
    EXPECT_EQ(m.kreise[1].verteilerCode, "002");
    EXPECT_EQ(m.kreise[1].stromkreisCode, "012");
    EXPECT_EQ(wert(m.kreise[1], "LOW"), "");
    EXPECT_TRUE(m.verteilernamen.isEmpty()); // the compressed form names no board
}

TEST(MesstextTest, TheLongFormNamesItsBoardsAndTakesOneFieldALine) {
    QStringList zeilen{"**** START ****", "UV Hauptverteiler"};
    zeilen << "1/1"
           << ""
           << "Licht"
           << "NYM-J 3x1,5"
           << "B10"
           << ""
           << ""
           << ""
           << ""
           << "" << Werte << "###";
    zeilen << "1/2"
           << ""
           << "Herd"
           << ""
           << "C32"
           << ""
           << ""
           << ""
           << ""
           << ""
           << "400";
    zeilen << "UV Garage"
           << "2/1"
           << ""
           << "Tor";
    const Messtext m = messtextLesen(zeilen.join("\r\n"));
    ASSERT_TRUE(m.fehler.isEmpty()) << m.fehler.join("|").toStdString();
    ASSERT_EQ(m.kreise.size(), 3);
    EXPECT_EQ(m.kreise[0].sicherung, "B10");
    EXPECT_EQ(wert(m.kreise[0], "LOW"), "0,15");
    EXPECT_EQ(m.kreise[1].name, "Herd");
    EXPECT_EQ(wert(m.kreise[1], "VISO"), "400");
    EXPECT_EQ(m.kreise[2].verteilerCode, "002");
    EXPECT_EQ(m.verteilernamen.value("001"), "Hauptverteiler");
    EXPECT_EQ(m.verteilernamen.value("002"), "Garage");
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
