#include "Sendeschlange.h"

#include <algorithm>

namespace vemo::sim {
namespace {

constexpr int Stückdauer = 20; // ms of line time written at once

// Ten bit times a byte: start, eight data bits, stop.
int dauerMs(qsizetype bytes, int baud) {
    return int((bytes * 10 * 1000 + baud - 1) / baud);
}

// A piece never parts a line's CR from its LF: a line end goes on the wire whole, so that what follows
// it after a pause (the closing empty lines of a printout) is not joined by the half of it left behind.
qsizetype stückLänge(const QByteArray& text, qsizetype anfang, qsizetype größe) {
    const qsizetype ende = std::min(anfang + größe, text.size());
    const bool trenntZeilenende = ende < text.size() && text[ende - 1] == '\r' && text[ende] == '\n';
    return ende - anfang + (trenntZeilenende ? 1 : 0);
}

} // namespace

Sendeschlange::Sendeschlange(std::function<void(const QByteArray&)> senden, QObject* parent)
    : QObject(parent), m_senden(std::move(senden)) {
    m_uhr.setSingleShot(true);
    connect(&m_uhr, &QTimer::timeout, this, &Sendeschlange::nächstesStück);
}

void Sendeschlange::anhängen(const QByteArray& text, int pauseDanach) {
    if (text.isEmpty())
        return;
    const bool warLeer = leer();
    if (m_baud <= 0) {
        m_stücke.append({text, pauseDanach});
    } else {
        const qsizetype größe = std::max<qsizetype>(1, qsizetype(m_baud) / 10 * Stückdauer / 1000);
        for (qsizetype i = 0; i < text.size();) {
            const qsizetype länge = stückLänge(text, i, größe);
            const QByteArray teil = text.mid(i, länge);
            m_stücke.append({teil, dauerMs(teil.size(), m_baud)});
            i += länge;
        }
        m_stücke.last().pauseDanach = std::max(m_stücke.last().pauseDanach, pauseDanach);
    }
    if (warLeer && !m_angehalten && !m_uhr.isActive())
        m_uhr.start(0);
}

void Sendeschlange::anhalten(bool an) {
    m_angehalten = an;
    if (an)
        m_uhr.stop();
    else if (!leer() && !m_uhr.isActive())
        m_uhr.start(0);
}

void Sendeschlange::nächstesStück() {
    if (m_angehalten || leer())
        return;
    const Stück s = m_stücke.takeFirst();
    m_senden(s.bytes);
    if (leer())
        emit drained();
    else
        m_uhr.start(s.pauseDanach);
}

} // namespace vemo::sim
