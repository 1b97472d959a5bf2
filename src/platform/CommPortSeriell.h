#pragma once

#include "platform/CommPort.h"
#include "platform/Leitungsfehler.h"

#include <QSerialPort>
#include <functional>

namespace vemo {

// The serial control over a real device (or a pseudo-terminal, which is one to the code). Modem
// lines that the device does not have (a pseudo-terminal has neither RTS nor DTR) are tolerated:
// the properties keep their values and nothing fails. A line that dies under the open port (the
// cable pulled, the far end of a pseudo-terminal gone) looks like silence, as on the real control.
// Faults of the line (overrun, receive buffer overflow, parity, framing, break) are raised as comm
// events. The serial port reports no such kind of error, so whenever data comes or it reports an
// error, the port looks at what the driver has counted of them since it last looked.
class SeriellerCommPort : public CommPort {
    Q_OBJECT
public:
    using Zählerquelle = std::function<std::optional<Leitungsfehlerstand>(qintptr handle)>;

    explicit SeriellerCommPort(QObject* parent = nullptr);
    ~SeriellerCommPort() override;

    bool CTSHolding() const override;
    bool DSRHolding() const override;

    // Where the driver's counts of line faults are read: the device itself, unless a test stands
    // in for a driver that counts (a pseudo-terminal counts nothing).
    void setZählerquelle(Zählerquelle quelle) { m_zählerquelle = std::move(quelle); }

protected:
    void öffnen() override;
    void schließen() override;
    void parameterAnwenden() override;
    void leitungenAnwenden() override;
    QByteArray lesen() override;
    qsizetype wartend() const override;
    void schreiben(const QByteArray& bytes) override;
    void eingangVerwerfen() override;
    void ausgangVerwerfen() override;

private:
    void fehlerAufgetreten(QSerialPort::SerialPortError fehler);
    void datenGekommen();
    void leitungsfehlerMelden();
    bool signalDa(QSerialPort::PinoutSignal signal) const;

    mutable QSerialPort m_port;
    bool m_leitungTot = false;
    Zählerquelle m_zählerquelle = leitungsfehlerLesen;
    std::optional<Leitungsfehlerstand> m_fehlerstand; // as last seen
};

} // namespace vemo
