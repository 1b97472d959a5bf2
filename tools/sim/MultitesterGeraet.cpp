#include "MultitesterGeraet.h"

#include <algorithm>

namespace vemo::sim {
namespace {

const QByteArray Zeilenende = "\r\n";
constexpr int Stückdauer = 20; // ms of line time written at once

// Ten bit times a byte: start, eight data bits, stop.
int dauerMs(qsizetype bytes, int baud) {
    return int((bytes * 10 * 1000 + baud - 1) / baud);
}

} // namespace

MultitesterGerät::MultitesterGerät(QByteArray speicher, Takt takt, QObject* parent)
    : Instrument(parent), m_speicher(std::move(speicher)), m_takt(takt) {
    m_uhr.setSingleShot(true);
    connect(&m_uhr, &QTimer::timeout, this, &MultitesterGerät::nächstesStück);
}

QList<MultitesterGerät::Stück> MultitesterGerät::stücke() const {
    QList<Stück> liste;
    if (m_takt.baud > 0) {
        const qsizetype größe = std::max<qsizetype>(1, qsizetype(m_takt.baud) / 10 * Stückdauer / 1000);
        for (qsizetype i = 0; i < m_speicher.size(); i += größe) {
            const QByteArray teil = m_speicher.mid(i, größe);
            liste.append({teil, dauerMs(teil.size(), m_takt.baud)});
        }
    } else if (!m_speicher.isEmpty()) {
        liste.append({m_speicher, 0});
    }
    for (int i = 0; i < SchlussLeerzeilen; ++i) {
        if (!liste.isEmpty())
            liste.last().pauseDanach = std::max(liste.last().pauseDanach, m_takt.leerzeilenPause);
        liste.append({Zeilenende, 0});
    }
    return liste;
}

QByteArray MultitesterGerät::ausdruck() const {
    QByteArray alles;
    for (const Stück& s : stücke())
        alles += s.bytes;
    return alles;
}

void MultitesterGerät::tasteGedrückt() {
    if (druckt())
        return;
    m_warteschlange = stücke();
    m_gesendet = 0;
    if (!m_angehalten)
        m_uhr.start(0);
}

void MultitesterGerät::empfangen(const QByteArray& bytes) {
    const qsizetype xoff = bytes.lastIndexOf(Xoff);
    const qsizetype xon = bytes.lastIndexOf(Xon);
    if (xoff < 0 && xon < 0)
        return;
    m_angehalten = xoff > xon;
    if (m_angehalten)
        m_uhr.stop();
    else if (druckt() && !m_uhr.isActive())
        m_uhr.start(0);
}

void MultitesterGerät::nächstesStück() {
    if (m_angehalten || m_warteschlange.isEmpty())
        return;
    const Stück s = m_warteschlange.takeFirst();
    senden(s.bytes);
    m_gesendet += s.bytes.size();
    if (m_warteschlange.isEmpty())
        emit sent(m_gesendet);
    else
        m_uhr.start(s.pauseDanach);
}

} // namespace vemo::sim
