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
