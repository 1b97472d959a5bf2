#pragma once

#include "Instrument.h"

#include <QList>
#include <QTimer>

namespace vemo::sim {

// The pace of a printout: the line speed it keeps, and the pause before each of the closing empty
// lines, so that each arrives in a read of its own.
struct Takt {
    int baud = 2400;           // 0: as fast as the line takes it
    int leerzeilenPause = 250; // ms
};

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

    bool druckt() const { return !m_warteschlange.isEmpty(); }
    bool angehalten() const { return m_angehalten; }
    // Everything one printout sends, in order.
    QByteArray ausdruck() const;

private:
    struct Stück {
        QByteArray bytes;
        int pauseDanach; // ms
    };
    QList<Stück> stücke() const;
    void nächstesStück();

    QByteArray m_speicher;
    Takt m_takt;
    QList<Stück> m_warteschlange;
    qint64 m_gesendet = 0;
    bool m_angehalten = false;
    QTimer m_uhr;
};

} // namespace vemo::sim
