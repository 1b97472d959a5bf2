#pragma once

#include "platform/CommPort.h"

#include <QSerialPort>

namespace vemo {

// The serial control over a real device (or a pseudo-terminal, which is one to the code). Modem
// lines that the device does not have (a pseudo-terminal has neither RTS nor DTR) are tolerated:
// the properties keep their values and nothing fails. A line that dies under the open port (the
// cable pulled, the far end of a pseudo-terminal gone) looks like silence, as on the real control.
class SeriellerCommPort : public CommPort {
    Q_OBJECT
public:
    explicit SeriellerCommPort(QObject* parent = nullptr);
    ~SeriellerCommPort() override;

    bool CTSHolding() const override;
    bool DSRHolding() const override;

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
    bool signalDa(QSerialPort::PinoutSignal signal) const;

    mutable QSerialPort m_port;
    bool m_leitungTot = false;
};

} // namespace vemo
