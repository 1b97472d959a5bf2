#include "links/KontalexLeitung.h"

#include "core/CommPortAuswahl.h"
#include "links/MyComm.h"
#include "platform/CommPort.h"

namespace vemo {
namespace {
const QString Leitungseinstellung = "9600,N,8,1";
}

KontalexLeitung::KontalexLeitung(int stillezeit, QObject* parent) : QObject(parent) {
    m_timer1.setInterval(stillezeit);
    connect(&m_timer1, &QTimer::timeout, this, &KontalexLeitung::stilleTakt);
}

KontalexLeitung::~KontalexLeitung() {
    rohdateiSchließen();
}

void KontalexLeitung::öffnen() {
    auto port = neuerCommPort();
    port->setGerät(modulPortGerät());
    port->setSettings(Leitungseinstellung);
    port->setHandshaking(Handshake::Keins);
    port->setRThreshold(1);
    port->setPortOpen(true);
    gemeinsamerMyComm().Clear_fAbortOnError(*port);
    connect(port.get(), &CommPort::comm, this, &KontalexLeitung::ereignis);
    m_port = std::move(port);
}

void KontalexLeitung::schließen() {
    if (m_port && m_port->PortOpen())
        m_port->setPortOpen(false);
}

void KontalexLeitung::rohdateiÖffnen(const QString& pfad) {
    rohdateiSchließen();
    m_rohdatei.setFileName(pfad);
    if (QFile::exists(pfad) && !QFile::remove(pfad))
        throw fehler::mit(fehler::PfadZugriff, pfad);
    if (!m_rohdatei.open(QIODevice::WriteOnly))
        throw fehler::mit(fehler::PfadZugriff, pfad);
}

void KontalexLeitung::rohdateiSchließen() {
    if (m_rohdatei.isOpen())
        m_rohdatei.close();
}

void KontalexLeitung::senden(const QByteArray& befehl, bool eingangLeeren) {
    if (!m_port)
        throw fehler::mit(fehler::PortNichtGeöffnet);
    m_puffer.clear();
    m_letzterPuffer.clear();
    m_stille = false;
    if (eingangLeeren)
        m_port->InBufferLeeren();
    m_port->Output(befehl);
    m_timer1.start();
}

void KontalexLeitung::stilleQuittieren() {
    m_stille = false;
    m_timer1.stop();
}

void KontalexLeitung::fehlerWeitergeben() {
    if (m_fehler) {
        const Fehler f = *m_fehler;
        m_fehler.reset();
        throw f;
    }
}

// Only what came is of interest; a line error shows no message here.
void KontalexLeitung::ereignis(int ereignis) {
    if (ereignis != commEreignis::Empfangen || !m_port || !m_port->PortOpen())
        return;
    const QByteArray neu = m_port->Input();
    m_puffer += neu;
    if (m_rohdatei.isOpen() && !neu.isEmpty() && (m_rohdatei.write(neu) != neu.size() || !m_rohdatei.flush()))
        m_fehler = fehler::mit(fehler::PfadZugriff, m_rohdatei.fileName());
}

void KontalexLeitung::stilleTakt() {
    if (m_puffer.isEmpty())
        return;
    if (m_puffer == m_letzterPuffer)
        m_stille = true;
    m_letzterPuffer = m_puffer;
}

} // namespace vemo
