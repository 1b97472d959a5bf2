#include "Empfangskonsole.h"

#include "core/Arbeitsdateien.h"
#include "host/Modul15a.h"
#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include <QDir>
#include <QFileInfo>
#include <csignal>

namespace vemo::test {
namespace {

class EmpfangskonsoleTest : public Testumgebung {};

// Ctrl-C pressed while the program still sets up the transfer ends the wait for the instrument as
// soon as it begins: the dump the instrument sends a moment later is neither received nor parsed.
TEST_F(EmpfangskonsoleTest, CtrlCVorDemWartenBeendetEsSofort) {
    Simulator sim({"--type", "100", "--records", "3", "--press-after", "1", "--baud", "0"});
    ASSERT_FALSE(sim.gerät().isEmpty());
    QDir(m_dir.path()).mkpath("sicherung");
    Empfangskonsole konsole(false);
    vemo0100Modul15a komponente(konsole, m_settings);
    komponente.setVemotrixDBName(m_dbPfad);
    komponente.setBackupVerzeichnis(pfad("sicherung"));
    komponente.setPrüfgeräteTypID(100);
    modul().portPfad = sim.gerät();

    ASSERT_EQ(std::raise(SIGINT), 0);
    komponente.DatenEmpfangen();

    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_EQ(modul().gezeigteFehler, 0);
    EXPECT_EQ(QFileInfo(arbeitsdatei(datei::Ruvo)).size(), 0);
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
    EXPECT_TRUE(QDir(pfad("sicherung")).isEmpty());
}

} // namespace
} // namespace vemo::test
