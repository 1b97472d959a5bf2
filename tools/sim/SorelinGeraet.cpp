#include "SorelinGeraet.h"

#include <algorithm>

namespace vemo::sim {
namespace {

constexpr int BitsJeByte = 11;
constexpr int Stückdauer = 20; // ms of line time written at once

} // namespace

SorelinGerät::SorelinGerät(QByteArray speicher, Takt takt, QObject* parent)
    : Instrument(parent), m_speicher(std::move(speicher)), m_takt(takt), m_gesendet(m_speicher.size()) {
    m_uhr.setSingleShot(true);
    connect(&m_uhr, &QTimer::timeout, this, &SorelinGerät::nächstesStück);
}

void SorelinGerät::tasteGedrückt() {
    if (sendet())
        return;
    m_gesendet = 0;
    m_uhr.start(0);
}

void SorelinGerät::nächstesStück() {
    const qsizetype größe =
        m_takt.baud > 0 ? std::max<qsizetype>(1, qsizetype(m_takt.baud) / BitsJeByte * Stückdauer / 1000)
                        : m_speicher.size();
    const QByteArray stück = m_speicher.mid(m_gesendet, größe);
    senden(stück);
    m_gesendet += stück.size();
    if (m_gesendet >= m_speicher.size()) {
        emit sent(m_gesendet);
        return;
    }
    m_uhr.start(m_takt.baud > 0 ? int(stück.size() * BitsJeByte * 1000 / m_takt.baud) : 0);
}

} // namespace vemo::sim
