#include "support/Dateien.h"
#include "support/Testumgebung.h"

#include "conversion/FesteBreite.h"
#include "conversion/KontalexBericht.h"
#include "core/Arbeitsdateien.h"
#include "core/Satzdatei.h"
#include "platform/Codepage.h"

namespace vemo::test {
namespace {

class KontalexBerichtTest : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        modul().mnuTexte = QStringList(407);
        modul().mnuTexte[404] = "Einst.";
        modul().mnuTexte[405] = "Grenzw.";
        modul().mnuTexte[406] = "Messw.";
    }
    static void satzdatei(const QByteArray& bytes) { schreiben(arbeitsdatei(datei::Rs232Txt), bytes); }
    QStringList zeilen(const QString& name) const {
        const QByteArray bytes = inhalt(pfad(name));
        EXPECT_TRUE(bytes.endsWith("\r\n"));
        return ausAnsi(bytes.chopped(2)).split("\r\n");
    }
    QString bericht(const QString& nummer = "00000007") {
        return KontalexBericht([nummer] { return nummer; });
    }
    static QByteArray marke(const QString& m) { return satzzeile({m, 1, 1, 1, 1, 1, 1, 1}); }
    static QByteArray kopf(int stromkreis, int platz) {
        return marke(kontalexsatz::Blockmarke) +
               satzzeile({1, stromkreis, platz, "", "", "", "10:05", "18.03.2024"});
    }
    static QByteArray wert(const QString& f, const QString& art, const QString& name, const QString& w,
                           const QString& einheit) {
        return satzzeile({f, art, name, w, einheit, 1, 1, 1});
    }
    const QByteArray m_gerät =
        marke(kontalexsatz::Gerätemarke) +
        satzzeile({"KONTALEX", "STD", "2.14", "HW 3", "11840217", "01.2024", "Deutsch", 1});
};

TEST_F(KontalexBerichtTest, FesteBreiteKenntNurFuenfzehnZeichen) {
    EXPECT_EQ(FesteBreite("Wert!", 8), "Wert    ");
    EXPECT_EQ(FesteBreite("Riso", 2), "Riso") << "a column narrower than its text cuts nothing";
    EXPECT_TRUE(m_ui.meldungen.isEmpty());

    const QString sechzehn = "0123456789abcdef";
    EXPECT_EQ(FesteBreite(sechzehn, 15), sechzehn);
    EXPECT_EQ(m_ui.texte(), QStringList{sechzehn + ": Dieser Text ist zu lang !"});
    m_ui.meldungen.clear();
    EXPECT_EQ(FesteBreite(sechzehn, 20), sechzehn + "    ");
    EXPECT_EQ(m_ui.texte(),
              (QStringList{sechzehn + ": Dieser Text ist zu lang !", "20: Diese Soll Länge ist zu groß !"}));
    m_ui.meldungen.clear();
    EXPECT_EQ(FesteBreite("x", 20), "x" + QString(15, ' ')) << "no more blanks than the ruler has";
}

// The head of the printed form, then each block in the print block of its function: the labels of
// the block where it has them, the mode and name of the value where it has none, values through
// the value test. A function the report doesn't know is left out.
TEST_F(KontalexBerichtTest, BerichtMitKopfUndDruckbloecken) {
    satzdatei(m_gerät + kopf(2, 3) + wert("R ISO", "M", "R", "245", "MOhm") +
              wert("R ISO", "E", "Un", "500", "V") + wert("R ISO", "G", "R", "1", "MOhm") + kopf(2, 4) +
              wert("UNBEKANNT", "M", "X", "1", "V") + kopf(2, 5) +
              wert("R +/-200mA", "M", "R+", "0.10", "Ohm") + wert(" TEST", "M", "U", "12.5", "kOhm") +
              marke(kontalexsatz::Endemarke));

    EXPECT_EQ(bericht(), "00000007");

    const QStringList erwartet{
        "OMNIVAR                 ",
        "------------------------",
        "KONTALEXX        No. 11840217",
        "",
        " ",
        QString(46, '*'),
        "S: 002  P: 003 -- 10:05  /  18.03.2024",
        " Riso  MOhm  ",
        " Riso        245 MOhm   ",
        " Einst. Un = 500 V      ",
        "...GW:       1 MOhm     ",
        " ",
        QString(46, '*'),
        "S: 002  P: 005 -- 10:05  /  18.03.2024",
        " LOW Ohm    =",
        "=R+200mA.....0.10 Ohm   ",
        // A value in kOhm is scaled by 1000 by the value test, and keeps its unit.
        " Messw. U =  12500 kOhm ",
        " _______________________",
        "",
    };
    EXPECT_EQ(zeilen("00000007.sep"), erwartet);
    EXPECT_EQ(zeilen("00000007.txt"), erwartet);
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();

    bericht();
    EXPECT_EQ(zeilen("00000007.sep"), erwartet) << "the report is written anew";
    EXPECT_EQ(zeilen("00000007.txt"), erwartet + erwartet) << "its copy is appended to";
}

TEST_F(KontalexBerichtTest, NurDieEndzeileGibtDenKopf) {
    satzdatei(marke(kontalexsatz::Endemarke));
    EXPECT_EQ(bericht("00000001"), "00000001");
    EXPECT_EQ(zeilen("00000001.sep"), (QStringList{"OMNIVAR                 ", "------------------------",
                                                   "X        No. ", "", " _______________________", ""}));
    EXPECT_TRUE(m_ui.meldungen.isEmpty());

    // A record file that breaks off is told, and gives no rendering to copy.
    satzdatei(m_gerät + kopf(1, 1) + wert("R ISO", "M", "R", "245", "MOhm"));
    EXPECT_EQ(bericht("00000002"), "");
    EXPECT_EQ(m_ui.texte(), QStringList{"62 Einlesen hinter Dateiende"});
}

// A series of the automatic RCD test in its print block; the logger's rendering is the data pool
// test's, which reads it as a series.
TEST_F(KontalexBerichtTest, AutomatischeFiSerie) {
    satzdatei(m_gerät + kopf(1, 1) + wert("RCD AUTO", "M", "x1/2  180", "310", "ms") +
              wert("RCD AUTO", "M", "t6", "12", "ms") + wert("RCD AUTO", "G", "U", "<50", "V") +
              marke(kontalexsatz::Endemarke));
    bericht();
    EXPECT_EQ(zeilen("00000007.sep").mid(7, 4),
              (QStringList{" tFI AC", " x1/2  180° =310 ms     ", "  t6  =      12 ms      ",
                           "  Ub max =   50.0 V     "}));
}

} // namespace
} // namespace vemo::test
