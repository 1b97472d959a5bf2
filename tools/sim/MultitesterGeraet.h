#pragma once

#include "Instrument.h"
#include "Sendeschlange.h"
#include "Verhalten.h"

namespace vemo::sim {

// A Multitester or Corvex instrument: no commands; when its key is pressed it prints its memory
// down the line as if to a printer, at the pace of its line speed, and ends with three empty lines.
// It honours XOFF and XON from the computer. The key does nothing while a printout runs.
// (No Q_OBJECT: it adds no signals, and the meta-object compiler reads no umlauts in class names.)
class MultitesterGerät : public Instrument {
public:
    static constexpr char Xon = 0x11;
    static constexpr char Xoff = 0x13;
    static constexpr int SchlussLeerzeilen = 3;

    explicit MultitesterGerät(QByteArray speicher, Takt takt = {}, QObject* parent = nullptr);

    void empfangen(const QByteArray& bytes) override;
    void tasteGedrückt() override;

    bool druckt() const { return !m_schlange.leer(); }
    bool angehalten() const { return m_schlange.angehalten(); }
    // Everything one printout sends, in order.
    QByteArray ausdruck() const;

private:
    QByteArray m_speicher;
    Takt m_takt;
    Sendeschlange m_schlange;
    qint64 m_gesendet = 0;
};

} // namespace vemo::sim
