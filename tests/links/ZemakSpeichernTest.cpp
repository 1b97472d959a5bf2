#include "support/Fehlernummer.h"
#include "support/Testumgebung.h"

#include "links/ZemakSpeichern.h"

#include <QDir>

namespace vemo::test {
namespace {

using ZemakSpeichernTest = Testumgebung;

// Two records of nine fields each, the last without its closing comma.
const QByteArray Satz1 = "01,02,0000,08F2,01,01F4,01,0000,2DCB4A80,";
const QByteArray Satz2 = "01,03,0000,0219,01,0201,00,0C00,2DCB4ADA";

TEST_F(ZemakSpeichernTest, DerKopfEndetHinterDemZaehlerDerRestBleibtEineZeile) {
    // The 3740's count has eight digits; a memory without records leaves an empty line.
    EXPECT_EQ(zemakZeilen("QD 2,00000000,\rAB\r", 19), (QList<QByteArray>{"QD 2,00000000,", "", "AB"}));
    // A reply cut short keeps what came of its last record as a line of its own.
    EXPECT_EQ(zemakZeilen("QD 2,0002," + Satz1 + "01,03,00\rAB\r", 9),
              (QList<QByteArray>{"QD 2,0002,", Satz1, "01,03,00", "AB"}));
    // With ten fields a record the same text splits at other commas.
    const QList<QByteArray> zehn = zemakZeilen("QD 2,0002," + Satz1 + Satz2 + "\r", 10);
    ASSERT_EQ(zehn.size(), 3);
    EXPECT_EQ(zehn[1].count(','), 10);
    EXPECT_EQ(zehn[1] + zehn[2], Satz1 + Satz2);
    // Only a piece that begins with the reply's head is split; a head without its comma stays whole.
    EXPECT_EQ(zemakZeilen("x QD 2,0001,a,b\rQD 2,0001\r", 1),
              (QList<QByteArray>{"x QD 2,0001,a,b", "QD 2,0001"}));
    EXPECT_TRUE(zemakZeilen("ohne CR", 9).isEmpty());
}

TEST_F(ZemakSpeichernTest, EineDateiDieNichtGeschriebenWerdenKannIstEinFehler) {
    ASSERT_TRUE(QDir(m_dir.path()).mkdir("Ruvo.ser"));
    EXPECT_EQ(fehlernummer([] { SaveZEMAKMessungen("ID\r", 9); }), fehler::PfadZugriff);
}

} // namespace
} // namespace vemo::test
