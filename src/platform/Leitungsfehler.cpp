#include "platform/Leitungsfehler.h"

#include "platform/CommPort.h"

#ifdef Q_OS_LINUX
#include <linux/serial.h>
#include <sys/ioctl.h>
#endif

namespace vemo {

std::optional<Leitungsfehlerstand> leitungsfehlerLesen(qintptr handle) {
#ifdef Q_OS_LINUX
    serial_icounter_struct zähler{};
    if (handle < 0 || ::ioctl(int(handle), TIOCGICOUNT, &zähler) != 0)
        return std::nullopt;
    return Leitungsfehlerstand{quint32(zähler.overrun), quint32(zähler.buf_overrun), quint32(zähler.parity),
                               quint32(zähler.frame), quint32(zähler.brk)};
#else
    Q_UNUSED(handle);
    return std::nullopt;
#endif
}

QList<int> leitungsereignisse(const Leitungsfehlerstand& vorher, const Leitungsfehlerstand& jetzt) {
    struct Art {
        quint32 Leitungsfehlerstand::*zähler;
        int ereignis;
    };
    static constexpr Art Arten[] = {
        {&Leitungsfehlerstand::überlauf, commEreignis::Überlauf},
        {&Leitungsfehlerstand::pufferÜberlauf, commEreignis::EmpfangspufferVoll},
        {&Leitungsfehlerstand::parität, commEreignis::Paritätsfehler},
        {&Leitungsfehlerstand::rahmen, commEreignis::Rahmenfehler},
        {&Leitungsfehlerstand::unterbrechung, commEreignis::Unterbrechung},
    };
    QList<int> ereignisse;
    for (const Art& a : Arten)
        if (jetzt.*a.zähler != vorher.*a.zähler)
            ereignisse << a.ereignis;
    return ereignisse;
}

} // namespace vemo
