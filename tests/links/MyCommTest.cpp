#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include "Instrument.h"
#include "PtyLeitung.h"
#include "links/MyComm.h"
#include "platform/CommPort.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace vemo::test {
namespace {

class MyCommTest : public Testumgebung {};

// The far end of the line that only listens.
class Zuhörer : public sim::Instrument {
public:
    void empfangen(const QByteArray& bytes) override { gehört += bytes; }
    void tasteGedrückt() override {}
    QByteArray gehört;
};

void ereignisseEine(int ms) {
    const QDeadlineTimer frist(ms);
    while (!frist.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::msleep(2);
    }
}

TEST_F(MyCommTest, PortnamenUndGeraetecodesBestimmenDenPort) {
    QString grund;
    auto pty9 = sim::PtyLeitung::öffnen(grund);
    auto pty10 = sim::PtyLeitung::öffnen(grund);
    ASSERT_TRUE(pty9 && pty10) << grund.toStdString();
    m_settings.SaveSetting("Ports", "COM9", pty9->gerätePfad());
    m_settings.SaveSetting("Ports", "COM10", pty10->gerätePfad());

    MyComm comm;
    QString name = "9";
    EXPECT_NE(comm.OpenCom(name, 102), MyComm::UngültigesHandle);
    EXPECT_EQ(name, pty9->gerätePfad()) << "a short name gets COM in front";
    ASSERT_NE(comm.port(), nullptr);
    EXPECT_EQ(comm.port()->Settings(), "9600,E,8,1");
    EXPECT_TRUE(comm.port()->RTSEnable()) << "RTS held on";
    EXPECT_FALSE(comm.port()->DTREnable());
    comm.CloseCom();
    EXPECT_FALSE(comm.IsOpen());

    // A profile that leaves the modem lines as the port has them.
    name = "COM10";
    EXPECT_NE(comm.OpenCom(name, 2), MyComm::UngültigesHandle);
    EXPECT_EQ(name, pty10->gerätePfad());
    EXPECT_EQ(comm.nDevice(), 6250);
    EXPECT_EQ(comm.port()->Settings(), "9600,N,8,1");
    EXPECT_EQ(comm.port()->Handshaking(), Handshake::XonXoff);
    comm.CloseCom();

    // "COM" is short too and becomes "COMCOM": no such port, the invalid handle, and the calls on
    // it fail without effect.
    name = "COM";
    EXPECT_EQ(comm.OpenCom(name, 0), MyComm::UngültigesHandle);
    EXPECT_EQ(name, "COMCOM");
    EXPECT_TRUE(comm.IsOpen()) << "set whatever the handle";
    EXPECT_EQ(comm.nDevice(), 6193);
    EXPECT_EQ(comm.Receive(true), QString());
    EXPECT_EQ(comm.lastResult(), 0);
    EXPECT_EQ(comm.Transmit("x"), 0);
    EXPECT_EQ(comm.lastResult(), 0);
}

TEST_F(MyCommTest, BinaerBleibtJedesByteUndTextGehtDurchDieCodepage) {
    QString grund;
    auto pty = sim::PtyLeitung::öffnen(grund);
    ASSERT_TRUE(pty) << grund.toStdString();
    Zuhörer gegenüber;
    pty->setInstrument(&gegenüber);
    MyComm comm;
    QString name = pty->gerätePfad();
    ASSERT_NE(comm.OpenCom(name, 102), MyComm::UngültigesHandle);

    EXPECT_EQ(comm.Receive(true), QString()) << "an idle port gives nothing at once";
    EXPECT_EQ(comm.nReceived(), 0);

    const QByteArray roh("\x00\xff\x11\x13\x80\x41", 6);
    pty->senden(roh);
    QString binär;
    const QDeadlineTimer frist(1000);
    while (binär.size() < roh.size() && !frist.hasExpired())
        binär += comm.Receive(true);
    ASSERT_EQ(binär.size(), 6);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(binär[i].unicode(), uchar(roh[i])) << "byte " << i;

    pty->senden("\x80\xe4");
    QString text;
    const QDeadlineTimer frist2(1000);
    while (text.isEmpty() && !frist2.hasExpired())
        text = comm.Receive(false);
    EXPECT_EQ(text, QString::fromUtf8("€ä"));
    EXPECT_EQ(comm.sReceived(), text);

    // Empty text sends nothing; each character goes as its low byte.
    EXPECT_EQ(comm.Transmit(""), 0);
    EXPECT_EQ(comm.lastResult(), 1);
    ereignisseEine(50);
    EXPECT_EQ(gegenüber.gehört, QByteArray());
    comm.Transmit(QString(QChar(0x20AC)) + "Z" + QChar(0));
    ereignisseEine(50);
    EXPECT_EQ(gegenüber.gehört, QByteArray("\xac"
                                           "Z\0",
                                           3));

    EXPECT_THROW(comm.Transmit(QString(MyComm::PufferGröße + 1, 'x')), Fehler);
    comm.CloseCom();
}

TEST_F(MyCommTest, ReceiveBytesWaechstBevorEsLiest) {
    auto instrument = speicherleitungEinstecken(0);
    instrument->setPortOpen(true);
    MyComm comm;
    QString name = "COM1";
    ASSERT_NE(comm.OpenCom(name, 102), MyComm::UngültigesHandle);

    MyComm::SetupReceiveBytes();
    EXPECT_EQ(MyComm::receivedBytesPlätze(), 100000);
    EXPECT_EQ(comm.ReceiveBytes(), 0);
    EXPECT_EQ(MyComm::receivedBytesPlätze(), 100000) << "100000 free places are enough";

    instrument->Output("a");
    QCoreApplication::processEvents();
    EXPECT_EQ(comm.ReceiveBytes(), 1);
    EXPECT_EQ(MyComm::receivedBytesPlätze(), 100000);

    QByteArray alle;
    for (int b = 0; b < 256; ++b)
        alle.append(char(b));
    instrument->Output(alle);
    QCoreApplication::processEvents();
    EXPECT_EQ(comm.ReceiveBytes(), 256);
    EXPECT_EQ(MyComm::receivedBytesPlätze(), 1100000) << "99999 free places grow first";
    EXPECT_EQ(MyComm::receivedBytes(), "a" + alle);

    // More at once than there is room for: the array grows as far as needed, nothing is lost.
    MyComm::SetupReceiveBytes();
    const QByteArray viel(150000, '\x55');
    instrument->Output(viel);
    QCoreApplication::processEvents();
    EXPECT_EQ(comm.ReceiveBytes(), 150000);
    EXPECT_EQ(MyComm::receivedCount(), 150000);
    EXPECT_EQ(MyComm::receivedBytes(), viel);
}

} // namespace
} // namespace vemo::test
