#pragma once

#include "platform/Fehler.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <optional>

namespace vemo {

// The event numbers of the serial control, as the links compare CommEvent with them.
namespace commEreignis {
constexpr int Gesendet = 1;  // the send buffer has drained
constexpr int Empfangen = 2; // RThreshold characters are waiting
constexpr int CtsGeändert = 3;
constexpr int DsrGeändert = 4;
constexpr int CdGeändert = 5;
constexpr int Klingeln = 6;
constexpr int Dateiende = 7;
constexpr int Unterbrechung = 1001;
constexpr int Rahmenfehler = 1004;
constexpr int Überlauf = 1006; // data lost in the port
constexpr int EmpfangspufferVoll = 1008;
constexpr int Paritätsfehler = 1009;
constexpr int SendepufferVoll = 1010;
constexpr int DcbFehler = 1011;
} // namespace commEreignis

// The handshaking of the serial control, numbered as its property is.
enum class Handshake { Keins = 0, XonXoff = 1, RtsCts = 2, RtsCtsXonXoff = 3 };

// The line parameters of a settings text such as "2400,N,8,1".
struct Leitungsparameter {
    qint32 baud = 9600;
    char parität = 'N'; // N, E, O, M or S
    int datenbits = 8;
    QString stoppbits = "1"; // "1", "1.5" or "2"

    // Nothing when the text is not of that form.
    static std::optional<Leitungsparameter> lesen(const QString& settings);
};

// The message-driven serial control the links talk to. Properties may be set while the port is
// closed and take effect on opening; the line settings and RTS/DTR also take effect at once on an
// open port. Data that has come waits in the receive buffer until Input takes it; the signal comm
// reports events through the event loop, never from inside a call of the caller.
// Port errors are raised as Fehler with the numbers the system's messages know (8002, 8005, 8012...).
class CommPort : public QObject {
    Q_OBJECT
public:
    explicit CommPort(QObject* parent = nullptr) : QObject(parent) {}

    // The device path of the port (on Windows the port's name, "COM1").
    void setGerät(const QString& pfad);
    QString gerät() const { return m_gerät; }

    void setSettings(const QString& settings);
    QString Settings() const { return m_settingsText; }
    Leitungsparameter parameter() const { return m_parameter; }

    void setHandshaking(Handshake h);
    Handshake Handshaking() const { return m_handshake; }

    // Receive events come when at least this many characters wait; 0 switches them off.
    void setRThreshold(int zeichen) { m_rThreshold = zeichen; }
    int RThreshold() const { return m_rThreshold; }

    void setPortOpen(bool offen);
    bool PortOpen() const { return m_offen; }

    // The event last reported.
    int CommEvent() const { return m_commEvent; }

    void setRTSEnable(bool an);
    bool RTSEnable() const { return m_rts; }
    void setDTREnable(bool an);
    bool DTREnable() const { return m_dtr; }
    // The lines the other end drives; false where the device can't tell.
    virtual bool CTSHolding() const = 0;
    virtual bool DSRHolding() const = 0;

    // Takes all that has come; error 8012 when the port is closed.
    QByteArray Input();
    // Sends the bytes; error 8012 when the port is closed.
    void Output(const QByteArray& bytes);
    int InBufferCount() const;
    // Throws away what waits in the receive or send buffer.
    void InBufferLeeren();
    void OutBufferLeeren();

signals:
    void comm(int ereignis);

protected:
    // The device itself. öffnen raises a Fehler when the port cannot be had.
    virtual void öffnen() = 0;
    virtual void schließen() = 0;
    virtual void parameterAnwenden() = 0; // settings and handshaking, on an open port
    virtual void leitungenAnwenden() = 0; // RTS and DTR, on an open port; failures are tolerated
    virtual QByteArray lesen() = 0;
    virtual qsizetype wartend() const = 0;
    virtual void schreiben(const QByteArray& bytes) = 0;
    virtual void eingangVerwerfen() = 0;
    virtual void ausgangVerwerfen() = 0;

    // For the implementations: characters have come; reports the receive event through the event
    // loop when the threshold is reached.
    void empfangMelden();
    // Reports an event through the event loop.
    void ereignisMelden(int ereignis);

private:
    void offenVerlangen() const;

    QString m_gerät;
    QString m_settingsText = "9600,N,8,1";
    Leitungsparameter m_parameter;
    Handshake m_handshake = Handshake::Keins;
    int m_rThreshold = 0;
    bool m_offen = false;
    int m_commEvent = 0;
    bool m_rts = false;
    bool m_dtr = false;
    bool m_empfangGemeldet = false;
};

// The errors of the port: the numbers of the store's table (8002, 8005, 8012) and those only the
// port raises, each with its description and, when given, the detail in brackets.
namespace portfehler {
constexpr int UngültigerEigenschaftswert = 380;
constexpr int GeräteKennungUngültig = 8006;
constexpr int HardwareNichtVerfügbar = 8010;
constexpr int ParameterNichtGesetzt = 8015;

Fehler mit(int nummer, const QString& detail = {});
} // namespace portfehler

} // namespace vemo
