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

TEST_F(ZemakSpeichernTest, EineDateiDieNichtGeschriebenWerdenKannIstEinFehler) {
    ASSERT_TRUE(QDir(m_dir.path()).mkdir("Ruvo.ser"));
    EXPECT_EQ(fehlernummer([] { SaveZEMAKMessungen("ID\r", 9); }), fehler::PfadZugriff);
}

} // namespace
} // namespace vemo::test
