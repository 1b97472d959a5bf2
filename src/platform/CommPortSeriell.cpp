#include "platform/CommPortSeriell.h"

#include <QFileInfo>
#include <QMetaObject>

namespace vemo {
namespace {

QSerialPort::Parity parität(char p) {
    switch (p) {
    case 'E':
        return QSerialPort::EvenParity;
    case 'O':
        return QSerialPort::OddParity;
    case 'M':
        return QSerialPort::MarkParity;
    case 'S':
        return QSerialPort::SpaceParity;
    default:
        return QSerialPort::NoParity;
    }
}

QSerialPort::StopBits stoppbits(const QString& s) {
    if (s == "2")
        return QSerialPort::TwoStop;
    if (s == "1.5")
        return QSerialPort::OneAndHalfStop;
    return QSerialPort::OneStop;
}

QSerialPort::FlowControl flusssteuerung(Handshake h) {
    switch (h) {
    case Handshake::XonXoff:
        return QSerialPort::SoftwareControl;
    case Handshake::RtsCts:
    case Handshake::RtsCtsXonXoff: // the device offers one at a time; the lines win
        return QSerialPort::HardwareControl;
    default:
        return QSerialPort::NoFlowControl;
    }
}

bool istPseudoterminal(const QString& pfad) {
    return QFileInfo(pfad).canonicalFilePath().startsWith("/dev/pts/");
}

// A device that exists and may be read and written, yet refuses to open, is held by another.
Fehler öffnungsfehler(QSerialPort::SerialPortError fehler, const QString& pfad, const QString& text) {
    const QString detail = pfad + ": " + text;
    switch (fehler) {
    case QSerialPort::DeviceNotFoundError:
        return portfehler::mit(fehler::PortUngültig, detail);
    case QSerialPort::OpenError:
        return portfehler::mit(fehler::PortBereitsGeöffnet, detail);
    case QSerialPort::PermissionError: {
        const QFileInfo info(pfad);
        if (info.isReadable() && info.isWritable())
            return portfehler::mit(fehler::PortBereitsGeöffnet, detail);
        return portfehler::mit(fehler::PfadZugriff, detail);
    }
    default:
        return portfehler::mit(portfehler::HardwareNichtVerfügbar, detail);
    }
}

} // namespace

SeriellerCommPort::SeriellerCommPort(QObject* parent) : CommPort(parent) {
    connect(&m_port, &QSerialPort::readyRead, this, &SeriellerCommPort::datenGekommen);
    connect(&m_port, &QSerialPort::errorOccurred, this, &SeriellerCommPort::fehlerAufgetreten);
}

SeriellerCommPort::~SeriellerCommPort() {
    m_port.disconnect(this);
    if (m_port.isOpen())
        m_port.close();
}

// A fault counted comes before the data it spoiled is reported.
void SeriellerCommPort::datenGekommen() {
    leitungsfehlerMelden();
    empfangMelden();
}

void SeriellerCommPort::leitungsfehlerMelden() {
    if (!m_fehlerstand || !m_port.isOpen())
        return;
    const std::optional<Leitungsfehlerstand> jetzt = m_zählerquelle(m_port.handle());
    if (!jetzt)
        return;
    for (const int ereignis : leitungsereignisse(*m_fehlerstand, *jetzt))
        ereignisMelden(ereignis);
    m_fehlerstand = jetzt;
}

void SeriellerCommPort::fehlerAufgetreten(QSerialPort::SerialPortError fehler) {
    if (fehler == QSerialPort::NoError)
        return;
    leitungsfehlerMelden();
    if (fehler != QSerialPort::ReadError && fehler != QSerialPort::ResourceError)
        return;
    // The line is gone. The device is let go from the event loop, not from inside its own call.
    m_leitungTot = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_leitungTot && m_port.isOpen())
                m_port.close();
        },
        Qt::QueuedConnection);
}

void SeriellerCommPort::öffnen() {
    m_leitungTot = false;
    m_port.setPortName(gerät());
    if (!m_port.open(QIODevice::ReadWrite)) {
        const Fehler f = öffnungsfehler(m_port.error(), gerät(), m_port.errorString());
        m_port.clearError();
        throw f;
    }
    m_fehlerstand = m_zählerquelle(m_port.handle());
}

void SeriellerCommPort::schließen() {
    m_leitungTot = false;
    m_fehlerstand.reset();
    if (m_port.isOpen())
        m_port.close();
    m_port.clearError();
}

void SeriellerCommPort::parameterAnwenden() {
    if (!m_port.isOpen())
        return;
    const Leitungsparameter p = parameter();
    // A pseudo-terminal carries no parity bit and refuses to be given one; it is a serial line to
    // the code in every other way.
    const bool paritätOk = m_port.setParity(parität(p.parität)) || istPseudoterminal(gerät());
    const bool ok =
        paritätOk && m_port.setBaudRate(p.baud) && m_port.setDataBits(QSerialPort::DataBits(p.datenbits)) &&
        m_port.setStopBits(stoppbits(p.stoppbits)) && m_port.setFlowControl(flusssteuerung(Handshaking()));
    if (!ok) {
        const QString text = m_port.errorString();
        m_port.clearError();
        throw portfehler::mit(portfehler::ParameterNichtGesetzt, Settings() + ": " + text);
    }
}

void SeriellerCommPort::leitungenAnwenden() {
    if (!m_port.isOpen())
        return;
    // Under hardware handshaking the device drives RTS itself.
    if (m_port.flowControl() != QSerialPort::HardwareControl)
        m_port.setRequestToSend(RTSEnable());
    m_port.setDataTerminalReady(DTREnable());
    m_port.clearError();
}

bool SeriellerCommPort::signalDa(QSerialPort::PinoutSignal signal) const {
    if (!m_port.isOpen())
        return false;
    const bool da = m_port.pinoutSignals().testFlag(signal);
    m_port.clearError();
    return da;
}

bool SeriellerCommPort::CTSHolding() const {
    return signalDa(QSerialPort::ClearToSendSignal);
}

bool SeriellerCommPort::DSRHolding() const {
    return signalDa(QSerialPort::DataSetReadySignal);
}

QByteArray SeriellerCommPort::lesen() {
    if (m_leitungTot || !m_port.isOpen())
        return {};
    // Fetches what the driver holds now, without waiting, even when no event loop ran meanwhile.
    if (m_port.bytesAvailable() == 0 && !m_port.waitForReadyRead(0) && !m_leitungTot)
        m_port.clearError();
    return m_port.readAll();
}

qsizetype SeriellerCommPort::wartend() const {
    return m_port.isOpen() ? m_port.bytesAvailable() : 0;
}

void SeriellerCommPort::schreiben(const QByteArray& bytes) {
    // Bytes sent into a dead line are lost, as on a pulled cable.
    if (m_leitungTot || !m_port.isOpen())
        return;
    m_port.write(bytes);
    m_port.flush();
}

void SeriellerCommPort::eingangVerwerfen() {
    if (m_port.isOpen())
        m_port.clear(QSerialPort::Input);
}

void SeriellerCommPort::ausgangVerwerfen() {
    if (m_port.isOpen())
        m_port.clear(QSerialPort::Output);
}

} // namespace vemo
