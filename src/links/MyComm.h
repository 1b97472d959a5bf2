#pragma once

#include "platform/Fehler.h"

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>

namespace vemo {

class CommPort;

// The thin wrapper around a serial device that the links use where the message-driven control
// will not do: the block transfer runs its raw port through it (binary data with even parity that
// must arrive byte for byte), and the other links hand it the port of their control right after
// opening. Here it sits on the same serial layer as the control: a port name "COMn" is mapped to
// its device, anything else is taken as a device path.
class MyComm {
public:
    static constexpr qint32 UngültigesHandle = -1;
    static constexpr int PufferGröße = 10241; // the largest text Transmit takes

    MyComm();
    ~MyComm();
    MyComm(const MyComm&) = delete;
    MyComm& operator=(const MyComm&) = delete;

    // On this platform a line error never stalls a port until somebody clears it: there is no
    // abort-on-error mode to leave. The call keeps its place in the links and changes nothing.
    void Clear_fAbortOnError(const CommPort& port);

    // Opens the port with the line parameters of the device code; sCom becomes the device opened.
    // The caller tells success by comparing the handle with UngültigesHandle.
    qint32 OpenCom(QString& sCom, qint16 device);
    qint32 CloseCom();

    // Sizes receivedBytes to 100000 places and empties it.
    static void SetupReceiveBytes();
    // What has come, without waiting: one byte to one character when binary, else decoded from
    // the Western code page. Empty when nothing has come or the port is dead.
    QString Receive(bool binary);
    // Appends what has come to receivedBytes; the number of bytes added.
    qint32 ReceiveBytes();
    // Sends the low byte of each character; always 0, the outcome is in lastResult.
    qint16 Transmit(const QString& text);

    static qint32 ClearBit(qint32 wert, int bit) { return wert & ~(qint32(1) << bit); }
    static qint32 SetBit(qint32 wert, int bit) { return wert | (qint32(1) << bit); }

    qint32 HandleCom() const { return m_hCom; }
    bool IsOpen() const { return m_fIsOpen; }
    void setIsOpen(bool offen) { m_fIsOpen = offen; }
    qint16 nDevice() const { return m_nDevice; }
    qint32 nReceived() const { return m_nReceived; }
    const QString& sReceived() const { return m_sReceived; }
    // 1 when the last read or write succeeded, 0 when it failed.
    qint32 lastResult() const { return m_lastResult; }
    // The port behind the handle, or none.
    const CommPort* port() const { return m_port.get(); }
    // Why the last OpenCom gave the invalid handle, for a caller that tells the user.
    const std::optional<Fehler>& öffnungsfehler() const { return m_öffnungsfehler; }

    // Shared by all instances: the bytes ReceiveBytes collected, and how many places there are.
    static QByteArray receivedBytes();
    static qint32 receivedCount();
    static qsizetype receivedBytesPlätze();

private:
    QByteArray eingangHolen();

    std::unique_ptr<CommPort> m_port;
    qint32 m_hCom = UngültigesHandle;
    bool m_fIsOpen = false;
    qint16 m_nDevice = 0;
    qint32 m_nReceived = 0;
    QString m_sReceived;
    qint32 m_lastResult = 0;
    std::optional<Fehler> m_öffnungsfehler;
};

// The one instance the links share for Clear_fAbortOnError, made on first use.
MyComm& gemeinsamerMyComm();

} // namespace vemo
