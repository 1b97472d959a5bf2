#include "LinkHilfen.h"
#include "support/Testumgebung.h"

#include "CorvexSpeicher.h"
#include "Instrumente.h"
#include "MultitesterGeraet.h"
#include "PortLeitung.h"
#include "ZemakGeraet.h"
#include "core/Geraetetypen.h"
#include "core/Instrumentenuhr.h"
#include "links/ZemakSpeichern.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace vemo::test {
namespace {

class SimulatorTest : public Testumgebung {};

// Reads the computer's end in turns of the event loop, one read a turn, until the instrument says
// it has sent everything.
QList<QByteArray> lesevorgänge(CommPort& pc, sim::Instrument& gerät) {
    QSignalSpy fertig(&gerät, &sim::Instrument::sent);
    QList<QByteArray> reads;
    const QDeadlineTimer frist(5000);
    while (!frist.hasExpired()) {
        QCoreApplication::processEvents();
        if (const QByteArray stück = pc.Input(); !stück.isEmpty())
            reads << stück;
        if (!fertig.isEmpty() && pc.InBufferCount() == 0) {
            QCoreApplication::processEvents();
            if (const QByteArray rest = pc.Input(); !rest.isEmpty())
                reads << rest;
            break;
        }
    }
    return reads;
}

TEST_F(SimulatorTest, GeraetDrucktSeinenSpeicherUndDreiEinzelneLeerzeilen) {
    auto [pc, ende] = SpeicherCommPort::paar(0);
    pc->setPortOpen(true);
    const QByteArray speicher = sim::corvexSpeicher(2);
    sim::MultitesterGerät gerät(speicher, {19200, 30});
    sim::PortLeitung leitung(*ende, gerät);

    gerät.tasteGedrückt();
    gerät.tasteGedrückt(); // while printing, the key does nothing
    const QList<QByteArray> reads = lesevorgänge(*pc, gerät);

    ASSERT_GE(reads.size(), 5);
    EXPECT_EQ(reads.join(), speicher + "\r\n\r\n\r\n");
    EXPECT_EQ(reads.join(), gerät.ausdruck());
    EXPECT_EQ(reads.mid(reads.size() - 3), (QList<QByteArray>{"\r\n", "\r\n", "\r\n"}));
    EXPECT_LE(reads.first().size(), 19200 / 10 * 20 / 1000) << "paced, not all at once";
    // A line end goes on the wire whole: no piece ends between its CR and its LF.
    for (const QByteArray& stück : reads)
        EXPECT_FALSE(stück.endsWith('\r')) << stück.toStdString();
}

TEST_F(SimulatorTest, XoffHaeltDenDruckAnUndXonSetztIhnFort) {
    auto [pc, ende] = SpeicherCommPort::paar(0);
    pc->setPortOpen(true);
    sim::MultitesterGerät gerät(sim::corvexSpeicher(1), {9600, 10});
    sim::PortLeitung leitung(*ende, gerät);

    gerät.tasteGedrückt();
    QByteArray angekommen;
    while (angekommen.isEmpty()) {
        QCoreApplication::processEvents();
        angekommen += pc->Input();
    }
    pc->Output(QByteArray(1, sim::MultitesterGerät::Xoff));
    QTest::qWait(30);
    angekommen += pc->Input();
    const qsizetype beimAnhalten = angekommen.size();
    EXPECT_TRUE(gerät.angehalten());
    QTest::qWait(100);
    angekommen += pc->Input();
    EXPECT_EQ(angekommen.size(), beimAnhalten);

    pc->Output(QByteArray(1, sim::MultitesterGerät::Xon));
    const auto rest = lesevorgänge(*pc, gerät);
    EXPECT_EQ(angekommen + rest.join(), gerät.ausdruck());
}

TEST_F(SimulatorTest, CorvexSpeicherHatKopfUndBloeckeWieDerParserSieLiest) {
    const QByteArray speicher = sim::corvexSpeicher(10, "SN-12345678");
    ASSERT_TRUE(speicher.endsWith("\r\n"));
    const QStringList zeilen = QString::fromLatin1(speicher.chopped(2)).split("\r\n");
    EXPECT_FALSE(speicher.chopped(2).replace("\r\n", "").contains('\n')) << "every line ends with CR LF";

    const qsizetype lineal = zeilen.indexOf(QRegularExpression("^---.*"));
    ASSERT_GE(lineal, 1);
    const QString geräteZeile = zeilen[lineal + 1];
    EXPECT_EQ(geräteZeile.right(11), "SN-12345678");
    EXPECT_TRUE(QRegularExpression("^\\d{4}$").match(geräteZeile.trimmed().left(4)).hasMatch());
    EXPECT_FALSE(geräteZeile.startsWith("5830") || geräteZeile.startsWith("5831"));

    QStringList köpfe;
    for (qsizetype i = lineal + 2; i < zeilen.size(); ++i) {
        const QString t = zeilen[i].trimmed();
        if (t.size() < 2 || t[1] != ':')
            continue;
        köpfe << t;
        ASSERT_LT(i + 4, zeilen.size());
        EXPECT_EQ(zeilen[i + 1], "------------------------");
        EXPECT_EQ(zeilen[i + 2], QString(24, ' '));
        EXPECT_TRUE(zeilen[i + 4].contains(" = ")) << zeilen[i + 4].toStdString();
    }
    ASSERT_EQ(köpfe.size(), 10);
    EXPECT_EQ(köpfe[0], "S: 001    P: 001");
    EXPECT_EQ(köpfe[8], "S: 002    P: 001");
    EXPECT_TRUE(QString::fromLatin1(speicher).contains(" RISO = "));
    EXPECT_TRUE(QString::fromLatin1(speicher).contains(" Zs   = "));

    EXPECT_FALSE(sim::corvexSpeicher(0).contains("S: ")) << "no records, only the head";
}

// Sends one command and gathers the reply up to its final CR.
QByteArray fragen(CommPort& pc, const QByteArray& befehl) {
    pc.Output(befehl);
    QByteArray antwort;
    const QDeadlineTimer frist(2000);
    while (!antwort.endsWith('\r') && !frist.hasExpired()) {
        QCoreApplication::processEvents();
        antwort += pc.Input();
    }
    return antwort;
}

TEST_F(SimulatorTest, ZemakGeraetBeantwortetDieBefehleDerFamilie) {
    const Zemakvariante& v = *zemakVariante(selektor::Zemak3720);
    auto [pc, ende] = SpeicherCommPort::paar(0);
    pc->setPortOpen(true);
    const sim::ZemakSpeicher speicher = sim::ZemakSpeicher::erzeugen(v, 2);
    sim::ZemakGerät gerät(v, speicher, {{0, 0}, {}});
    sim::PortLeitung leitung(*ende, gerät);

    pc->Output("I");
    EXPECT_EQ(fragen(*pc, "D\r"), "ZEMAK 3720B,V1.40,00471104\r") << "a command is taken whole, at its CR";
    EXPECT_EQ(fragen(*pc, "XG\r"), "XG," + QByteArray::number(sim::ZemakGerät::werksuhr()) + "\r");
    EXPECT_EQ(fragen(*pc, "XS,700000000\r"), "0\r");
    EXPECT_LE(gerät.uhr() - 700000000u, 1u);
    EXPECT_EQ(fragen(*pc, "~QD 2.\r"), speicher.antwort());
    EXPECT_EQ(fragen(*pc, "PS 0,      AB\r"), "0\r");
    EXPECT_EQ(fragen(*pc, "ID\r"), "ZEMAK 3720B,V1.40,      AB\r");
    EXPECT_EQ(fragen(*pc, "QD 2\r"), "?\r");
    EXPECT_EQ(fragen(*pc, "CD\r"), "0\r");
    EXPECT_EQ(fragen(*pc, "~QD 2.\r"), "5\r") << "an empty memory";
    EXPECT_EQ(gerät.speicherabfragen(), 1);
}

TEST_F(SimulatorTest, ErzeugteZemakSpeicherHabenDieMasseIhrerVariante) {
    for (const Zemakvariante& v : zemakVarianten()) {
        SCOPED_TRACE(v.selektor.toStdString());
        for (const int n : {1, 7, 500}) {
            const sim::ZemakSpeicher s = sim::ZemakSpeicher::erzeugen(v, n);
            // Announced length: the dialog's bar runs to p + h + r * n with the reply at p.
            EXPECT_EQ(s.antwort().size(), v.kopf + v.satzlänge * n + 1);
            EXPECT_EQ(s.kopf.size(), 6 + v.zählerstellen);
            EXPECT_EQ(s.kopf.mid(5, v.zählerstellen).toInt(nullptr, 16), n);
            ASSERT_EQ(s.datensätze.size(), n);
            for (int i = 0; i < n; ++i) {
                const bool letzter = i == n - 1;
                EXPECT_EQ(s.datensätze[i].size(), v.satzlänge - (letzter ? 1 : 0)) << i;
                EXPECT_EQ(s.datensätze[i].count(','), v.kommas - (letzter ? 1 : 0)) << i;
            }
            // What the component saves of it, the simulator reads back as the same memory.
            const QByteArray datei = s.arbeitsdatei("XG,1", "0");
            EXPECT_EQ(sim::zemakKennung(v) + "\r\nXG,1\r\n0\r\n" +
                          zemakZeilen(s.antwort(), v.kommas).join("\r\n") + "\r\n",
                      datei);
            QString fehler;
            const auto gelesen = sim::ZemakSpeicher::ausArbeitsdatei(datei, v, fehler);
            ASSERT_TRUE(gelesen) << fehler.toStdString();
            EXPECT_EQ(gelesen->antwort(), s.antwort());
            EXPECT_EQ(gelesen->kennung, s.kennung);
        }
    }
    // The clock of a record is a date of the measurement; the 3710B's codes pass its memory check.
    const Zemakvariante& b = *zemakVariante(selektor::Zemak3710B);
    for (const QByteArray& satz : sim::ZemakSpeicher::erzeugen(b, 300).datensätze) {
        const QList<QByteArray> felder = satz.split(',');
        EXPECT_EQ(ZeitAusSekunden(felder[9].toUInt(nullptr, 16)).date().year(), 2024);
        for (const auto& [feld, höchstens] : {std::pair{0, 99}, std::pair{1, 99}, std::pair{2, 444}}) {
            const int wert = felder[feld].toInt(nullptr, 16);
            EXPECT_TRUE(wert >= 1 && wert <= höchstens) << satz.toStdString();
        }
    }
    EXPECT_TRUE(sim::ZemakSpeicher::erzeugen(b, 0).leer());
}

TEST_F(SimulatorTest, EinZemakSpeicherAusEinerFremdenDateiWirdAbgewiesen) {
    const Zemakvariante& v = *zemakVariante(selektor::Zemak3710B);
    QString fehler;
    const QByteArray zemak3720 =
        sim::ZemakSpeicher::erzeugen(*zemakVariante(selektor::Zemak3720), 2).arbeitsdatei("XG,1", "0");
    EXPECT_FALSE(sim::ZemakSpeicher::ausArbeitsdatei(zemak3720, v, fehler));
    EXPECT_TRUE(fehler.contains("ZEMAK 3710B,"));
    EXPECT_FALSE(sim::ZemakSpeicher::ausArbeitsdatei("ZEMAK 3710B,V1,2\r\nQD 2,0001,\r\n", v, fehler))
        << "no closing line";
    const auto ohneDaten =
        sim::ZemakSpeicher::ausArbeitsdatei("zemak 3710b,V1,2\r\nXG,1\r\n0\r\n", v, fehler);
    ASSERT_TRUE(ohneDaten);
    EXPECT_TRUE(ohneDaten->leer());
}

TEST_F(SimulatorTest, ProgrammWeistFalscheAufrufeAbUndUeberschreibtNichts) {
    QFile fremd(pfad("fremd.txt"));
    ASSERT_TRUE(fremd.open(QIODevice::WriteOnly));
    fremd.write("wichtig");
    fremd.close();
    const QList<QStringList> aufrufe{
        {"--type", "999"},
        {"--records", "3"},
        {"--type", "100", "--memory", pfad("fehlt.txt")},
        {"--type", "100", "--records", "-1"},
        {"--type", "100", "--link", fremd.fileName()},
        {"--type", "104", "--memory", fremd.fileName()},
        {"--type", "105", "--short", "viele"},
        {"--type", "105", "--silent-after", "-3"},
    };
    for (const QStringList& argumente : aufrufe) {
        SCOPED_TRACE(argumente.join(' ').toStdString());
        QProcess p;
        p.start(QString(VEMO_BIN_DIR) + "/vemo0100-sim", argumente);
        ASSERT_TRUE(p.waitForFinished(5000));
        EXPECT_EQ(p.exitCode(), 2);
        EXPECT_TRUE(p.readAllStandardError().startsWith("vemo0100-sim: "));
    }
    ASSERT_TRUE(fremd.open(QIODevice::ReadOnly));
    EXPECT_EQ(fremd.readAll(), "wichtig");
    EXPECT_EQ(sim::simulierteTypen(), (QList<int>{100, 101, 102, 103, 104, 105, 106, 107}));
}

TEST_F(SimulatorTest, ProgrammRaeumtSeinenLinkBeimBeendenWeg) {
    QString gerät;
    {
        Simulator sim({"--type", "100", "--link", pfad("port")});
        gerät = sim.gerät();
        EXPECT_TRUE(gerät.startsWith("/dev/"));
        EXPECT_EQ(QFileInfo(pfad("port")).symLinkTarget(), gerät);
    }
    EXPECT_FALSE(QFileInfo::exists(pfad("port")));
    EXPECT_FALSE(QFileInfo(pfad("port")).isSymLink());
}

} // namespace
} // namespace vemo::test
