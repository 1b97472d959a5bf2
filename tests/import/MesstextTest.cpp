#include "import/Messtext.h"
#include "import/Adresse.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

// The forms a text is read in are the import test's; a faulty text is refused whole.
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

// Postcode and town of one line; the import test reads the plain "34117 Kassel".
TEST(AdresseTest, PostcodeAndTownSplitFromOneLine) {
    const auto teile = [](const QString& zeile) { return sPLZ(zeile) + "/" + sStadt(zeile); };
    EXPECT_EQ(test::jeweils(teile, {"D-34117 Kassel-Wilhelmshöhe", "Kassel", "34117", ""}),
              "-34117/Kassel-Wilhelmshöhe | /Kassel | 34117/ | /");
}

} // namespace
