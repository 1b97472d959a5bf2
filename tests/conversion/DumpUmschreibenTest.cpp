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
};

TEST_F(DumpUmschreibenTest, EinCodierterDumpWirdZeileFürZeileZumBericht) {
    QFile probe(test::quelle("samples/multitester-codiert.ser"));
    ASSERT_TRUE(probe.open(QIODevice::ReadOnly));
    dump(probe.readAll());
    ASSERT_TRUE(DumpUmschreiben());
    const QStringList erwartet = kopf("31742-00907") +
                                 QStringList{"S:  001    P:  001",
                                             Lineal,
                                             Leer,
                                             " Riso 500V =  245  MOhm",
                                             Leer,
                                             " LOW Ohm    =  0.1200  Ohm",
                                             Leer,
                                             "S:  001    P:  002",
                                             Lineal,
                                             Leer,
                                             " Zs  0z = 0.35  Ohm",
                                             Leer,
                                             " Ri   = 0.28  Ohm",
                                             " Ik   = 0.82  kA",
                                             Leer,
                                             "S:  001    P:  003",
                                             Lineal,
                                             Leer,
                                             " tFI AC 0     30 mA  x1",
                                             "  t   = 18  ms",
                                             Leer,
                                             "  Ub  = 3.5  V",
                                             Leer,
                                             "S:  002    P:  001",
                                             Lineal,
                                             Leer,
                                             " U    = 231  V",
                                             " f    = 50.0  Hz",
                                             Leer,
                                             " Riso 250V =  OL  MOhm",
                                             Leer,
                                             " Riso 1000V =  >200  MOhm",
                                             Leer,
                                             "S:  002    P:  002",
                                             Lineal,
                                             Leer,
                                             " tFI AC 180   30 mA  x1",
                                             "  t   = 31  ms",
                                             Leer,
                                             "  Ub- = 2.9  V",
                                             Leer,
                                             " Re         = 12.5  Ohm",
                                             Leer,
                                             "S: 255    FI-Analyse    ",
                                             Lineal,
                                             Leer,
                                             "    15.0 mA      0 ms",
                                             "    21.0 mA     38 ms",
                                             "    24.0 mA     27 ms",
                                             Leer,
                                             "S:  002    P:  003",
                                             Lineal,
                                             Leer,
                                             " Zs  1r = 1.05  Ohm",
                                             Leer,
                                             " LOW Ohm    =  o.r.  Ohm",
                                             Leer} +
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

TEST_F(DumpUmschreibenTest, KommaZuPunktNimmtDasErsteKomma) {
    EXPECT_EQ(KommaZuPunkt("0,35"), "0.35");
    EXPECT_EQ(KommaZuPunkt("1,2,3"), "1.2,3");
    EXPECT_EQ(KommaZuPunkt(">200"), ">200");
}

// The prefixes hold the shared table while a dump is rewritten; the key texts put back behind them
// are what the report parser and the data pool look for.
TEST_F(DumpUmschreibenTest, DieSchlüsseltexteFolgenDenPräfixen) {
    EXPECT_EQ(modul().mulTexte.value(4), "V: ");
    EXPECT_EQ(modul().mulTexte.value(14), "R: ");
    SchlüsselTexteSetzen();
    EXPECT_EQ(modul().mulTexte.value(1), "R10") << "the entries before the key texts stay";
    EXPECT_EQ(modul().mulTexte.value(4).left(24).trimmed(), "S");
    EXPECT_EQ(modul().mulTexte.value(7).left(24), "S: 255    FI-Analyse    ");
    EXPECT_EQ(modul().mulTexte.value(18).left(16), "  Ub max = 50.0 ");
}

} // namespace
