#pragma once

#include "Instrument.h"
#include "MultitesterGeraet.h"

#include <QTimer>

namespace vemo::sim {

// A Sorelin instrument: it hears nothing the computer sends; when its key is pressed it sends its
// memory image at the pace of its line speed, eleven bit times a byte (start, eight data bits, even
// parity, stop). The key does nothing while it sends.
// (No Q_OBJECT: it adds no signals, and the meta-object compiler reads no umlauts in class names.)
class SorelinGerät : public Instrument {
public:
    explicit SorelinGerät(QByteArray speicher, Takt takt = {9600, 0}, QObject* parent = nullptr);

    void empfangen(const QByteArray&) override {}
    void tasteGedrückt() override;

    bool sendet() const { return m_gesendet < m_speicher.size() && m_uhr.isActive(); }

private:
    void nächstesStück();

    QByteArray m_speicher;
    Takt m_takt;
    qsizetype m_gesendet = 0;
    QTimer m_uhr;
};

} // namespace vemo::sim
