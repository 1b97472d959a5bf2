#include "platform/CommPortSpeicher.h"

#include <QMetaObject>

namespace vemo {

SpeicherCommPort::Paar SpeicherCommPort::paar(int stückgröße) {
    Paar p{std::make_unique<SpeicherCommPort>(stückgröße), std::make_unique<SpeicherCommPort>(stückgröße)};
    p.a->m_gegenstelle = p.b.get();
    p.b->m_gegenstelle = p.a.get();
    p.a->setGerät("speicher:a");
    p.b->setGerät("speicher:b");
    return p;
}

bool SpeicherCommPort::CTSHolding() const {
    return m_gegenstelle && m_gegenstelle->PortOpen() && m_gegenstelle->RTSEnable();
}

bool SpeicherCommPort::DSRHolding() const {
    return m_gegenstelle && m_gegenstelle->PortOpen() && m_gegenstelle->DTREnable();
}

void SpeicherCommPort::schließen() {
    m_eingang.clear();
    m_unterwegs.clear();
}

QByteArray SpeicherCommPort::lesen() {
    return std::exchange(m_eingang, {});
}

void SpeicherCommPort::schreiben(const QByteArray& bytes) {
    if (m_gegenstelle)
        m_gegenstelle->ankommen(bytes);
}

void SpeicherCommPort::ankommen(const QByteArray& bytes) {
    if (!PortOpen())
        return;
    m_unterwegs += bytes;
    if (m_zustellungGeplant)
        return;
    m_zustellungGeplant = true;
    QMetaObject::invokeMethod(this, &SpeicherCommPort::stückZustellen, Qt::QueuedConnection);
}

void SpeicherCommPort::stückZustellen() {
    m_zustellungGeplant = false;
    if (!PortOpen() || m_unterwegs.isEmpty())
        return;
    const qsizetype n =
        m_stückgröße > 0 ? std::min<qsizetype>(m_stückgröße, m_unterwegs.size()) : m_unterwegs.size();
    m_eingang += m_unterwegs.left(n);
    m_unterwegs.remove(0, n);
    empfangMelden();
    if (!m_unterwegs.isEmpty()) {
        m_zustellungGeplant = true;
        QMetaObject::invokeMethod(this, &SpeicherCommPort::stückZustellen, Qt::QueuedConnection);
    }
}

} // namespace vemo
