#pragma once

#include <QList>
#include <QtGlobal>
#include <optional>

namespace vemo {

// What a serial driver has counted of the line's faults since the device was opened.
struct Leitungsfehlerstand {
    quint32 überlauf = 0;       // characters lost in the port itself, the next one came too soon
    quint32 pufferÜberlauf = 0; // characters lost because the driver's receive buffer was full
    quint32 parität = 0;
    quint32 rahmen = 0;
    quint32 unterbrechung = 0;
};

// The counts of the open device behind the handle; nothing where the device keeps none (a
// pseudo-terminal, a driver without them, a platform without the call).
std::optional<Leitungsfehlerstand> leitungsfehlerLesen(qintptr handle);

// The comm events of the faults counted between two looks, each kind once, as the serial control
// raises them: overrun, receive buffer overflow, parity, framing, break.
QList<int> leitungsereignisse(const Leitungsfehlerstand& vorher, const Leitungsfehlerstand& jetzt);

} // namespace vemo
