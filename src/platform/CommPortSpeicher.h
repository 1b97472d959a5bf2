#pragma once

#include "platform/CommPort.h"

#include <QPointer>
#include <memory>

namespace vemo {

// The two ends of a null-modem cable in memory, for tests: what one end sends, the other receives
// through the event loop, a piece at a time, as a real port hands out what has come so far. Each
// end sees the other's RTS as its CTS and the other's DTR as its DSR. What reaches a closed end,
// or is sent to an end that no longer exists, is lost, as on a real line.
class SpeicherCommPort : public CommPort {
    Q_OBJECT
public:
    struct Paar {
        std::unique_ptr<SpeicherCommPort> a;
        std::unique_ptr<SpeicherCommPort> b;
    };
    // stückgröße: the most bytes one turn of the event loop delivers; 0 delivers each send whole.
    static Paar paar(int stückgröße = 64);
    // An end with nobody behind it until paar() joins two.
    explicit SpeicherCommPort(int stückgröße) : m_stückgröße(stückgröße) {}

    bool CTSHolding() const override;
    bool DSRHolding() const override;

    // A line event as a device reports it (overrun, parity error, ...), through the event loop.
    void ereignisAuslösen(int ereignis) { ereignisMelden(ereignis); }

protected:
    void öffnen() override {}
    void schließen() override;
    void parameterAnwenden() override {}
    void leitungenAnwenden() override {}
    QByteArray lesen() override;
    qsizetype wartend() const override { return m_eingang.size(); }
    void schreiben(const QByteArray& bytes) override;
    void eingangVerwerfen() override { m_eingang.clear(); }
    void ausgangVerwerfen() override {}

private:
    void ankommen(const QByteArray& bytes);
    void stückZustellen();

    QPointer<SpeicherCommPort> m_gegenstelle;
    int m_stückgröße;
    QByteArray m_unterwegs; // on the wire, not yet in the receive buffer
    QByteArray m_eingang;   // the receive buffer
    bool m_zustellungGeplant = false;
};

} // namespace vemo
