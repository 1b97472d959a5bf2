#include "MultitesterGeraet.h"

namespace vemo::sim {
namespace {
const QByteArray Zeilenende = "\r\n";
} // namespace

MultitesterGerät::MultitesterGerät(QByteArray speicher, Takt takt, QObject* parent)
    : Instrument(parent), m_speicher(std::move(speicher)), m_takt(takt),
      m_schlange([this](const QByteArray& b) {
          senden(b);
          m_gesendet += b.size();
      }) {
    m_schlange.setBaud(takt.baud);
    connect(&m_schlange, &Sendeschlange::drained, this, [this] { emit sent(m_gesendet); });
}

QByteArray MultitesterGerät::ausdruck() const {
    return m_speicher + Zeilenende.repeated(SchlussLeerzeilen);
}

void MultitesterGerät::tasteGedrückt() {
    if (druckt())
        return;
    m_gesendet = 0;
    m_schlange.anhängen(m_speicher, m_speicher.isEmpty() ? 0 : m_takt.leerzeilenPause);
    for (int i = 1; i <= SchlussLeerzeilen; ++i)
        m_schlange.anhängen(Zeilenende, i < SchlussLeerzeilen ? m_takt.leerzeilenPause : 0);
}

void MultitesterGerät::empfangen(const QByteArray& bytes) {
    const qsizetype xoff = bytes.lastIndexOf(Xoff);
    const qsizetype xon = bytes.lastIndexOf(Xon);
    if (xoff < 0 && xon < 0)
        return;
    m_schlange.anhalten(xoff > xon);
}

} // namespace vemo::sim
