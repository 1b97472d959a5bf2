#include "Instrument.h"

#include "Leitung.h"

namespace vemo::sim {

void Instrument::senden(const QByteArray& bytes) {
    // An instrument without a cable prints into the air.
    if (m_leitung)
        m_leitung->senden(bytes);
}

} // namespace vemo::sim
