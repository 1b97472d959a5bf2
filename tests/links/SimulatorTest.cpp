#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include "CorvexSpeicher.h"
#include "MultitesterGeraet.h"
#include "PortLeitung.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
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

} // namespace
} // namespace vemo::test
