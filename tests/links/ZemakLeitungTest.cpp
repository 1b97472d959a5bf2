#include "ZemakUmgebung.h"
#include "support/Leitung.h"

#include "ZemakSpeicher.h"
#include "core/Geraetetypen.h"
#include "core/Instrumentenuhr.h"

#include <QDateTime>
#include <QRegularExpression>

namespace vemo::test {
namespace {

// The query dialog against the simulator program on a pseudo-terminal: a real serial device to
// the code, at 9600 baud.
class ZemakLeitungTest : public ZemakUmgebung {
protected:
    // Starts the simulator of the code on a link of its own, and points the component's port at it.
    std::unique_ptr<Simulator> simulator(int code, QStringList argumente) {
        const QString link = pfad("port" + QString::number(++m_links));
        argumente << "--type" << QString::number(code) << "--link" << link;
        auto sim = std::make_unique<Simulator>(argumente);
        modul().portPfad = link;
        return sim;
    }
    // A memory file of n records of the variant, as the component saves it.
    QString speicherdatei(const Zemakvariante& v, int n) {
        const QString name = pfad("speicher" + QString::number(++m_links) + ".ser");
        schreiben(name, sim::ZemakSpeicher::erzeugen(v, n).arbeitsdatei("XG,5", "0"));
        return name;
    }
    static int anzahl(const QStringList& protokoll, const QString& anfang) {
        return int(protokoll.filter(QRegularExpression("^vemo0100-sim: " + anfang)).size());
    }
    static QList<QByteArray> zeilen(const QByteArray& datei) {
        QList<QByteArray> z = datei.split('\n');
        for (QByteArray& zeile : z)
            zeile.chop(zeile.endsWith('\r') ? 1 : 0);
        if (!z.isEmpty() && z.last().isEmpty())
            z.removeLast();
        return z;
    }

    int m_links = 0;
};

TEST_F(ZemakLeitungTest, JedeVarianteFindetStelltDieUhrUndSpeichertEinenDatensatzJeZeile) {
    const QStringList gefunden{"ZEMAK 3710 V2.14 gefunden", "ZEMAK 3710B V3.02 gefunden",
                               "ZEMAK 3720B V1.40 gefunden", "Quentavoir V1.40 gefunden",
                               "ZEMAK 3740B V1.12 gefunden"};
    const QList<int> codes{103, 104, 105, 106, 107};
    for (int i = 0; i < codes.size(); ++i) {
        const Zemakvariante& v = *zemakVariante(*selektorFür(codes[i]));
        SCOPED_TRACE(v.selektor.toStdString());
        modul().Abbruchmerker = 0;
        const QString speicher = speicherdatei(v, 8);
        const auto sim = simulator(codes[i], {"--memory", speicher});
        ASSERT_FALSE(sim->gerät().isEmpty());
        QString zustand;

        übertragen(v.selektor, [&](frmZEMAK& form) {
            sobald(
                form, [&form] { return form.abfrageGesendet(); }, [&] { zustand = form.gerätezustand(); });
        });

        EXPECT_EQ(zustand, gefunden[i]);
        EXPECT_EQ(modul().Abbruchmerker, 0);
        EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();

        // The same identification and records as the memory the instrument was given.
        const QList<QByteArray> soll = zeilen(inhalt(speicher));
        const QList<QByteArray> ist = zeilen(ruvo());
        ASSERT_EQ(ist.size(), soll.size());
        EXPECT_EQ(ist[0], soll[0]);
        EXPECT_TRUE(ist[1].startsWith("XG,"));
        EXPECT_EQ(ist.mid(3), soll.mid(3));
        EXPECT_EQ(ist[3], "QD 2," + QByteArray(v.zählerstellen - 1, '0') + "8,");
        for (qsizetype z = 4; z < ist.size() - 1; ++z)
            EXPECT_EQ(ist[z].count(','), z + 2 < ist.size() ? v.kommas : v.kommas - 1) << z;
        EXPECT_TRUE(ruvo().endsWith("\r\n"));

        // The instrument's clock shows the computer's local time.
        const QStringList gestellt = sim->protokoll().filter("clock set to ");
        ASSERT_EQ(gestellt.size(), 1);
        const qint64 uhr = gestellt[0].section(' ', 4, 4).toLongLong();
        EXPECT_LE(std::abs(uhr - qint64(*instrumentenzeit(QDateTime::currentDateTime()))), 5);
    }
}

TEST_F(ZemakLeitungTest, FuenfZeichenZuKurzGiltSechsWirdWiederholtFuenfMalBrichtAb) {
    const Zemakvariante& v = *zemakVariante(selektor::Zemak3720);
    const QByteArray datensätze = sim::ZemakSpeicher::erzeugen(v, 6).datensätze.join();
    const auto empfangeneDatensätze = [this] { return zeilen(ruvo()).mid(4).join().chopped(2); };
    struct Fall {
        QStringList argumente;
        int pässe;
        qint16 abbruchmerker;
        qsizetype fehlend;
    };
    const QList<Fall> fälle{
        {{"--short", "5"}, 1, 0, 5},
        {{"--short", "6", "--short-replies", "1"}, 2, 0, 0},
        {{"--short", "6"}, 5, 1, 6},
    };
    for (const Fall& fall : fälle) {
        SCOPED_TRACE(fall.argumente.join(' ').toStdString());
        modul().Abbruchmerker = 0;
        const auto sim = simulator(105, QStringList{"--records", "6"} + fall.argumente);

        übertragen(selektor::Zemak3720, {}, 20000);

        EXPECT_EQ(modul().Abbruchmerker, fall.abbruchmerker);
        EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
        const QStringList protokoll = sim->protokoll();
        EXPECT_EQ(anzahl(protokoll, "sent"), fall.pässe);
        EXPECT_EQ(anzahl(protokoll, "clock set"), fall.pässe) << "each pass sets the clock anew";
        // The file holds the last pass, short or whole.
        EXPECT_EQ(empfangeneDatensätze(), datensätze.chopped(fall.fehlend));
    }
}

} // namespace
} // namespace vemo::test
