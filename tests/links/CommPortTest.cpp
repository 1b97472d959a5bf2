#include "support/Fehlernummer.h"
#include "support/Testumgebung.h"

#include "PtyLeitung.h"
#include "core/CommPortAuswahl.h"
#include "platform/CommPortSeriell.h"
#include "platform/CommPortSpeicher.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QSignalSpy>

namespace vemo::test {
namespace {

class CommPortTest : public Testumgebung {};

TEST_F(CommPortTest, FalscheBedienungGibtDieFehlerDerSteuerung) {
    auto [a, b] = SpeicherCommPort::paar();
    EXPECT_EQ(fehlernummer([&] { a->Input(); }), fehler::PortNichtGeöffnet);
    EXPECT_EQ(fehlernummer([&] { a->Output("x"); }), fehler::PortNichtGeöffnet);
    a->setPortOpen(true);
    EXPECT_EQ(fehlernummer([&] { a->setPortOpen(true); }), fehler::PortBereitsGeöffnet);
    EXPECT_EQ(fehlernummer([&] { a->setGerät("anderes"); }), fehler::PortBereitsGeöffnet);
    a->setSettings("2400,N,8,1");
    EXPECT_EQ(fehlernummer([&] { a->setSettings("2400,X,8,1"); }), portfehler::UngültigerEigenschaftswert);
    EXPECT_EQ(a->Settings(), "2400,N,8,1");

    const auto p = Leitungsparameter::lesen("19200,e,7,1.5");
    ASSERT_TRUE(p);
    EXPECT_EQ(QString("%1 %2 %3 %4").arg(p->baud).arg(QChar(p->parität)).arg(p->datenbits).arg(p->stoppbits),
              "19200 E 7 1.5");
    for (const char* falsch : {"9600,N,8", "0,N,8,1", "9600,N,9,1", "9600,N,8,3", "", "schnell,N,8,1"})
        EXPECT_FALSE(Leitungsparameter::lesen(falsch)) << falsch;
}

// The serial port's own refusals; reading, writing and a far end gone are every link test's.
TEST_F(CommPortTest, EchterPortVerweigertOhneGeraetUndWennBelegt) {
    SeriellerCommPort port;
    EXPECT_EQ(fehlernummer([&] { port.setPortOpen(true); }), fehler::PortUngültig) << "no device set";
    port.setGerät(pfad("gibt-es-nicht"));
    EXPECT_EQ(fehlernummer([&] { port.setPortOpen(true); }), fehler::PortUngültig);
    EXPECT_FALSE(port.PortOpen());

    QString grund;
    auto pty = sim::PtyLeitung::öffnen(grund);
    ASSERT_TRUE(pty) << grund.toStdString();
    port.setGerät(pty->gerätePfad());
    port.setPortOpen(true);
    SeriellerCommPort zweiter;
    zweiter.setGerät(pty->gerätePfad());
    EXPECT_EQ(fehlernummer([&] { zweiter.setPortOpen(true); }), fehler::PortBereitsGeöffnet);
    port.setPortOpen(false);
    EXPECT_FALSE(port.PortOpen());
}

// The events a port raised until its receive event, which ends each piece of data.
QList<int> ereignisseBisEmpfang(CommPort& port) {
    QSignalSpy spion(&port, &CommPort::comm);
    const QDeadlineTimer frist(1000);
    while ((spion.isEmpty() || spion.last()[0].toInt() != commEreignis::Empfangen) && !frist.hasExpired())
        QCoreApplication::processEvents();
    QList<int> ereignisse;
    for (const QList<QVariant>& e : spion)
        ereignisse << e[0].toInt();
    port.Input();
    return ereignisse;
}

// What the driver counts of the line's faults becomes the events the links act on, before the data
// the fault came with. A pseudo-terminal counts nothing, so a driver that counts is stood in for.
TEST_F(CommPortTest, LeitungsfehlerDesTreibersWerdenEreignisse) {
    QString grund;
    auto pty = sim::PtyLeitung::öffnen(grund);
    ASSERT_TRUE(pty) << grund.toStdString();
    SeriellerCommPort port;
    port.setGerät(pty->gerätePfad());
    port.setRThreshold(1);
    Leitungsfehlerstand stand;
    port.setZählerquelle([&stand](qintptr) { return stand; });
    port.setPortOpen(true);

    const std::pair<quint32 Leitungsfehlerstand::*, int> fälle[] = {
        {&Leitungsfehlerstand::überlauf, commEreignis::Überlauf},
        {&Leitungsfehlerstand::pufferÜberlauf, commEreignis::EmpfangspufferVoll},
        {&Leitungsfehlerstand::parität, commEreignis::Paritätsfehler},
        {&Leitungsfehlerstand::rahmen, commEreignis::Rahmenfehler},
        {&Leitungsfehlerstand::unterbrechung, commEreignis::Unterbrechung},
    };
    for (const auto& [zähler, ereignis] : fälle) {
        stand.*zähler += 2;
        pty->senden("x");
        EXPECT_EQ(ereignisseBisEmpfang(port), (QList<int>{ereignis, commEreignis::Empfangen})) << ereignis;
    }
    pty->senden("y");
    EXPECT_EQ(ereignisseBisEmpfang(port), QList<int>{commEreignis::Empfangen}) << "no new fault, no event";
    stand.überlauf += 1;
    stand.parität += 1;
    pty->senden("z");
    EXPECT_EQ(ereignisseBisEmpfang(port),
              (QList<int>{commEreignis::Überlauf, commEreignis::Paritätsfehler, commEreignis::Empfangen}));
}

} // namespace
} // namespace vemo::test
