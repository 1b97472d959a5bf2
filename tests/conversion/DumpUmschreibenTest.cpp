#include "support/Dateien.h"
#include "support/Testumgebung.h"

#include "conversion/DumpUmschreiben.h"
#include "conversion/Schluesseltexte.h"
#include "core/Arbeitsdateien.h"
#include "platform/Textdatei.h"

#include <QDir>

using namespace vemo;

namespace {

const QString Leer(24, ' ');
const QString Lineal(24, '-');

class DumpUmschreibenTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        modul().Datenbankverzeichnis = m_dir.path();
        ZeilenPräfixeSetzen();
    }
    void dump(const QByteArray& bytes) const { test::schreiben(pfad("Ruvo.ser"), bytes); }
    QStringList zeilen() const {
        QStringList z;
        Textdatei f(arbeitsdatei(datei::Ruvo));
        while (!f.eof())
            z << f.zeileLesen();
        return z;
    }
    static QStringList kopf(const QString& nummer) {
        return {"RUVO GmbH 0100 Multi    ", Lineal, "4470D    No. " + nummer, " _______________________",
                Leer};
    }
    static QStringList ende() { return {" _______________________", Leer, Leer, Leer}; }
};

TEST_F(DumpUmschreibenTest, EinFehlerLässtDenDumpStehen) {
    dump("VARITRON\r\nNo. 1\r\nR: 0,5\r\n");
    ASSERT_TRUE(QDir(m_dir.path()).mkdir("Trans.ser")); // nothing can be written there
    EXPECT_FALSE(DumpUmschreiben());
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("75 "));
    EXPECT_EQ(zeilen(), (QStringList{"VARITRON", "No. 1", "R: 0,5"}));
}

} // namespace
