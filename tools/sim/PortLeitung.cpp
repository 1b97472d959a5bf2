#include "PortLeitung.h"

#include "Instrument.h"
#include "platform/CommPort.h"

namespace vemo::sim {

PortLeitung::PortLeitung(CommPort& ende, Instrument& gerät) : m_ende(&ende), m_gerät(gerät) {
    ende.setRThreshold(1);
    if (!ende.PortOpen())
        ende.setPortOpen(true);
    m_empfang = QObject::connect(&ende, &CommPort::comm, &gerät, [this](int ereignis) {
        if (ereignis == commEreignis::Empfangen && m_ende)
            m_gerät.empfangen(m_ende->Input());
    });
    gerät.setLeitung(this);
}

PortLeitung::~PortLeitung() {
    QObject::disconnect(m_empfang);
    m_gerät.setLeitung(nullptr);
}

void PortLeitung::senden(const QByteArray& bytes) {
    if (m_ende && m_ende->PortOpen())
        m_ende->Output(bytes);
}

} // namespace vemo::sim
