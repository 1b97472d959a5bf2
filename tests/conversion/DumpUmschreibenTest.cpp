#include "support/Dateien.h"
#include "support/Testumgebung.h"

#include "conversion/DumpUmschreiben.h"
#include "conversion/Schluesseltexte.h"
#include "core/Arbeitsdateien.h"
#include "platform/Textdatei.h"

#include <QDir>
#include <QFile>

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
    // Lines apart by "|", "-" standing for the ruler and "_" for a blank line.
    static QStringList kurzform(const QString& text) {
        QStringList z = text.split('|');
        for (QString& zeile : z)
            zeile = zeile == "-" ? Lineal : zeile == "_" ? Leer : zeile;
        return z;
    }
};

TEST_F(DumpUmschreibenTest, EinCodierterDumpWirdZeileFürZeileZumBericht) {
    QFile probe(test::quelle("samples/multitester-codiert.ser"));
    ASSERT_TRUE(probe.open(QIODevice::ReadOnly));
    dump(probe.readAll());
    ASSERT_TRUE(DumpUmschreiben());
    const QStringList erwartet =
        kopf("31742-00907") +
        kurzform("S:  001    P:  001|-|_| Riso 500V =  245  MOhm|_| LOW Ohm    =  0.1200  Ohm|_|"
                 "S:  001    P:  002|-|_| Zs  0z = 0.35  Ohm|_| Ri   = 0.28  Ohm| Ik   = 0.82  kA|_|"
                 "S:  001    P:  003|-|_| tFI AC 0     30 mA  x1|  t   = 18  ms|_|  Ub  = 3.5  V|_|"
                 "S:  002    P:  001|-|_| U    = 231  V| f    = 50.0  Hz|_| Riso 250V =  OL  MOhm|_|"
                 " Riso 1000V =  >200  MOhm|_|"
                 "S:  002    P:  002|-|_| tFI AC 180   30 mA  x1|  t   = 31  ms|_|  Ub- = 2.9  V|_|"
                 " Re         = 12.5  Ohm|_|"
                 "S: 255    FI-Analyse    |-|_|    15.0 mA      0 ms|    21.0 mA     38 ms|"
                 "    24.0 mA     27 ms|_|"
                 "S:  002    P:  003|-|_| Zs  1r = 1.05  Ohm|_| LOW Ohm    =  o.r.  Ohm|_") +
        ende();
    EXPECT_EQ(zeilen(), erwartet);
    EXPECT_FALSE(QFile::exists(pfad("Trans.ser")));
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

// Without any prefix known, and without a serial number ("---"), the head stands alone; a line
// without a board names none.
TEST_F(DumpUmschreibenTest, KopfAlleinUndOhneVerteiler) {
    dump("VARITRON\r\nNo. ---\r\nirgendwas\r\n\r\n");
    ASSERT_TRUE(DumpUmschreiben());
    EXPECT_EQ(zeilen(), kopf("") + ende());

    dump("VARITRON\r\nNo. 7\r\nP 4\r\nRe: 3\r\n");
    ASSERT_TRUE(DumpUmschreiben());
    EXPECT_EQ(zeilen().mid(5, 4), (QStringList{"S: ---    P:  004", Lineal, Leer, " Re         = 3  Ohm"}));
}

TEST_F(DumpUmschreibenTest, EinFehlerLässtDenDumpStehen) {
    dump("VARITRON\r\nNo. 1\r\nR: 0,5\r\n");
    ASSERT_TRUE(QDir(m_dir.path()).mkdir("Trans.ser")); // nothing can be written there
    EXPECT_FALSE(DumpUmschreiben());
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("75 "));
    EXPECT_EQ(zeilen(), (QStringList{"VARITRON", "No. 1", "R: 0,5"}));
}

} // namespace
