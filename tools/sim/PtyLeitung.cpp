#include "PtyLeitung.h"

#include "Instrument.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace vemo::sim {

std::unique_ptr<PtyLeitung> PtyLeitung::öffnen(QString& fehler) {
    const int master = posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) {
        fehler = QString::fromLocal8Bit(std::strerror(errno));
        if (master >= 0)
            ::close(master);
        return nullptr;
    }
    const char* name = ptsname(master);
    const int slave = name ? ::open(name, O_RDWR | O_NOCTTY) : -1;
    if (slave < 0) {
        fehler = QString::fromLocal8Bit(std::strerror(errno));
        ::close(master);
        return nullptr;
    }
    // A printer line: no echo, no translation of CR or LF.
    termios t{};
    if (tcgetattr(slave, &t) == 0) {
        cfmakeraw(&t);
        tcsetattr(slave, TCSANOW, &t);
    }
    fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
    return std::make_unique<PtyLeitung>(master, slave, QString::fromLocal8Bit(name));
}

PtyLeitung::PtyLeitung(int master, int slave, QString slavePfad)
    : m_master(master), m_slave(slave), m_slavePfad(std::move(slavePfad)),
      m_lesbar(master, QSocketNotifier::Read), m_schreibbar(master, QSocketNotifier::Write) {
    m_schreibbar.setEnabled(false);
    connect(&m_lesbar, &QSocketNotifier::activated, this, &PtyLeitung::lesen);
    connect(&m_schreibbar, &QSocketNotifier::activated, this, &PtyLeitung::weiterSchreiben);
}

PtyLeitung::~PtyLeitung() {
    if (m_gerät)
        m_gerät->setLeitung(nullptr);
    m_lesbar.setEnabled(false);
    m_schreibbar.setEnabled(false);
    ::close(m_slave);
    ::close(m_master);
}

void PtyLeitung::setInstrument(Instrument* gerät) {
    if (m_gerät)
        m_gerät->setLeitung(nullptr);
    m_gerät = gerät;
    if (m_gerät)
        m_gerät->setLeitung(this);
}

void PtyLeitung::lesen() {
    char puffer[512];
    const ssize_t n = ::read(m_master, puffer, sizeof puffer);
    if (n > 0 && m_gerät)
        m_gerät->empfangen(QByteArray(puffer, n));
}

void PtyLeitung::senden(const QByteArray& bytes) {
    m_ausgang += bytes;
    weiterSchreiben();
}

void PtyLeitung::weiterSchreiben() {
    while (!m_ausgang.isEmpty()) {
        const ssize_t n = ::write(m_master, m_ausgang.constData(), size_t(m_ausgang.size()));
        if (n > 0) {
            m_ausgang.remove(0, n);
            continue;
        }
        if (n < 0 && errno == EINTR)
            continue;
        break; // the line is full: go on when it takes more
    }
    m_schreibbar.setEnabled(!m_ausgang.isEmpty());
}

} // namespace vemo::sim
