#pragma once

#include "Leitung.h"

#include <QMetaObject>
#include <QPointer>

namespace vemo {
class CommPort;
}

namespace vemo::sim {

class Instrument;

// Wires an instrument to one end of a serial control, such as the in-memory pair of the tests:
// the end is opened, what it receives goes to the instrument, what the instrument sends goes out
// through it. When the end is gone, what the instrument sends is lost, as on a pulled cable.
class PortLeitung : public Leitung {
public:
    PortLeitung(CommPort& ende, Instrument& gerät);
    ~PortLeitung() override;
    PortLeitung(const PortLeitung&) = delete;
    PortLeitung& operator=(const PortLeitung&) = delete;

    void senden(const QByteArray& bytes) override;

private:
    QPointer<CommPort> m_ende;
    Instrument& m_gerät;
    QMetaObject::Connection m_empfang;
};

} // namespace vemo::sim
