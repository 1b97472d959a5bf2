#include "parsers/Zemakfelder.h"
#include "core/InitTabelle.h"
#include "parsers/Codeaufteilung.h"
#include "platform/Zahlformat.h"
#include "support/Fehlernummer.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

using test::fehlernummer;

// The samples read the plain values; the marks, the rounding and the overflow of a field are
// here.
TEST(Zemakfelder, AttributeMarksRoundingAndOverflow) {
    zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
    const auto text = [](const QString& fall) {
        return GetWertTextMilli(fall.section(' ', 0, 0), fall.section(' ', 1, 1), fall.endsWith('m'));
    };
    EXPECT_EQ(test::jeweils(
                  text, {"04D5 03", "0159 01 m", "04D2 48", "04D2 88", "04D2 09", "04D2 83", "0159 80 m"}),
              "1,24 | 0,035 | --- | >1234 | >123,4 | ERR1,234 | ERR0,345");
    // Both fields are read before the marks are looked at.
    EXPECT_EQ(fehlernummer([] { GetWertTextMilli("xx", "40", false); }), fehler::TypenUnverträglich);
    EXPECT_EQ(fehlernummer([] { hexZahl("10000000000000000"); }), fehler::Überlauf);
    EXPECT_EQ(hexZahl("8123"), 33059u); // unsigned, though its top bit is set
    zahlformat::ausUmgebung();
}

using Einstellungen = test::Testumgebung;

TEST_F(Einstellungen, CodeSplittingIsReadFromInitAndNamesAreCutAt50) {
    EXPECT_EQ(InitLesen("codeSplitting3720" + QString(40, 'x'), "?"), "?");
    sql("INSERT INTO init VALUES ('" + QString(50, 'n') + "', 'lang');");
    EXPECT_EQ(InitLesen(QString(60, 'n'), "?"), "lang");
    // Writing updates the row named, or adds one under the cut name.
    InitSchreiben(QString(60, 'n'), "neu");
    InitSchreiben("Firma_NiceicNo", "N-17");
    EXPECT_EQ(InitLesen(QString(50, 'n'), "?") + " " + InitLesen("Firma_NiceicNo", "?"), "neu N-17");
    EXPECT_EQ(wert("SELECT COUNT(*) FROM init"), "2");

    sql("INSERT INTO init VALUES ('codeSplitting3720', 'True'), ('Kundencodestellen3720', '5000000000');");
    EXPECT_EQ(fehlernummer([] { codeaufteilungLesen(); }), fehler::Überlauf);
}

} // namespace
