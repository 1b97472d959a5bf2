#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include "MultitesterGeraet.h"
#include "PortLeitung.h"
#include "core/Arbeitsdateien.h"
#include "host/Modul15a.h"
#include "links/Form2.h"
#include "links/ZemakDialog.h"

#include <QDir>

using namespace vemo;

namespace {

// The driver with an instrument on the in-memory line: the dump of the sample board report.
class TransferTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        QDir(m_dir.path()).mkpath("sicherung");
        m_komponente = std::make_unique<vemo0100Modul15a>(m_ui, m_settings);
        m_komponente->setVemotrixDBName(m_dbPfad);
        m_komponente->setBackupVerzeichnis(pfad("sicherung"));
        m_komponente->setCommPort(1);
        m_komponente->setPrüfgeräteTypID(100);
        m_leitung = test::speicherleitungEinstecken(16);
    }
    void TearDown() override {
        m_komponente.reset();
        Testumgebung::TearDown();
    }

    QStringList sicherungen() const { return QDir(pfad("sicherung")).entryList(QDir::Files); }

    std::unique_ptr<vemo0100Modul15a> m_komponente;
    std::unique_ptr<SpeicherCommPort> m_leitung;
};

} // namespace
