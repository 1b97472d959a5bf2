#include "links/MyComm.h"

#include "core/CommPortAuswahl.h"
#include "core/ModulState.h"
#include "platform/Codepage.h"
#include "platform/CommPort.h"
#include "platform/Fehler.h"

#include <QRegularExpression>
#include <array>
#include <optional>

namespace vemo {
namespace {

// The small arguments of OpenCom select a device code; any other argument is the code itself.
constexpr std::array<std::pair<qint16, qint16>, 8> geräteAuswahl{{
    {0, 6193},
    {1, 6290},
    {4, 6290},
    {5, 6290},
    {2, 6250},
    {3, 6232},
    {6, 6292},
    {7, 6300},
}};

// The line parameters of a device code. "RTS held on, DTR control off" is what the devices of
// the block transfer need; unset lines stay as the port has them.
struct Geräteprofil {
    qint16 code;
    qint32 baud;
    char parität;
    Handshake handshake;
    std::optional<bool> dtr;
    std::optional<bool> rts;
};

constexpr std::array<Geräteprofil, 8> geräteprofile{{
    {6290, 9600, 'E', Handshake::Keins, false, true},
    {6291, 9600, 'E', Handshake::Keins, false, true},
    {6295, 9600, 'E', Handshake::Keins, false, true},
    {102, 9600, 'E', Handshake::Keins, false, true},
    {6292, 9600, 'N', Handshake::Keins, false, true},
    {6232, 2400, 'N', Handshake::Keins, false, true},
    {6250, 9600, 'N', Handshake::XonXoff, std::nullopt, std::nullopt},
    // Hardware handshake with DTR on; RTS belongs to the handshake.
    {200, 19200, 'N', Handshake::RtsCts, true, std::nullopt},
}};

constexpr Geräteprofil standardProfil{0, 9600, 'N', Handshake::Keins, std::nullopt, std::nullopt};

qint16 geräteCode(qint16 argument) {
    for (const auto& [auswahl, code] : geräteAuswahl)
        if (auswahl == argument)
            return code;
    return argument;
}

const Geräteprofil& profil(qint16 code) {
    for (const auto& p : geräteprofile)
        if (p.code == code)
            return p;
    return standardProfil;
}

// "COMn" names a port by its number; anything else is the device path itself.
QString gerätZumNamen(const QString& name) {
#ifdef Q_OS_WIN
    return "\\\\.\\" + name;
#else
    static const QRegularExpression portName("^COM(\\d+)$", QRegularExpression::CaseInsensitiveOption);
    const auto treffer = portName.match(name);
    return treffer.hasMatch() ? portGerät(treffer.captured(1).toInt()) : name;
#endif
}

Portpuffer& empfangsspeicher() {
    return modul().portpuffer;
}

constexpr qsizetype Anfangsplätze = 100000;
constexpr qsizetype Mindestfrei = 100000;
constexpr qsizetype Wachstum = 1000000;

qint32 nächstesHandle() {
    return ++modul().portpuffer.letztesHandle;
}

} // namespace

MyComm::MyComm() = default;
MyComm::~MyComm() = default;

void MyComm::Clear_fAbortOnError(const CommPort&) {}

qint32 MyComm::OpenCom(QString& sCom, qint16 device) {
    m_nDevice = geräteCode(device);
    if (sCom.size() < 4)
        sCom = "COM" + sCom;
    sCom = gerätZumNamen(sCom);

    const Geräteprofil& p = profil(m_nDevice);
    m_port = neuerCommPort();
    m_hCom = UngültigesHandle;
    m_öffnungsfehler.reset();
    try {
        m_port->setGerät(sCom);
        m_port->setSettings(QString("%1,%2,8,1").arg(p.baud).arg(QChar(p.parität)));
        m_port->setHandshaking(p.handshake);
        if (p.dtr)
            m_port->setDTREnable(*p.dtr);
        if (p.rts)
            m_port->setRTSEnable(*p.rts);
        m_port->setPortOpen(true);
        m_hCom = nächstesHandle();
    } catch (const Fehler& f) {
        // Failure shows only in the handle; later calls on the port fail without effect.
        m_öffnungsfehler = f;
        m_port.reset();
    }
    m_fIsOpen = true;
    return m_hCom;
}

qint32 MyComm::CloseCom() {
    m_port.reset();
    m_fIsOpen = false;
    return 0;
}

void MyComm::SetupReceiveBytes() {
    auto& s = empfangsspeicher();
    s.bytes = QByteArray(Anfangsplätze, '\0');
    s.anzahl = 0;
}

QByteArray MyComm::eingangHolen() {
    if (!m_port || !m_port->PortOpen()) {
        m_lastResult = 0;
        return {};
    }
    m_lastResult = 1;
    return m_port->Input();
}

QString MyComm::Receive(bool binary) {
    const QByteArray bytes = eingangHolen();
    m_sReceived = binary ? QString::fromLatin1(bytes) : ausAnsi(bytes);
    m_nReceived = qint32(bytes.size());
    return m_sReceived;
}

qint32 MyComm::ReceiveBytes() {
    auto& s = empfangsspeicher();
    const qint32 vorher = s.anzahl;
    if (s.bytes.size() - s.anzahl < Mindestfrei)
        s.bytes.resize(s.bytes.size() + Wachstum);
    const QByteArray neu = eingangHolen();
    while (s.bytes.size() - s.anzahl < neu.size())
        s.bytes.resize(s.bytes.size() + Wachstum);
    std::copy(neu.begin(), neu.end(), s.bytes.begin() + s.anzahl);
    s.anzahl += qint32(neu.size());
    return s.anzahl - vorher;
}

qint16 MyComm::Transmit(const QString& text) {
    if (text.size() > PufferGröße)
        throw fehler::mit(fehler::IndexAußerhalb);
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text)
        bytes.append(char(c.unicode() & 0xFF));
    if (!m_port || !m_port->PortOpen()) {
        m_lastResult = 0;
        return 0;
    }
    m_port->Output(bytes);
    m_lastResult = 1;
    return 0;
}

QByteArray MyComm::receivedBytes() {
    const auto& s = empfangsspeicher();
    return s.bytes.left(s.anzahl);
}

qint32 MyComm::receivedCount() {
    return empfangsspeicher().anzahl;
}

qsizetype MyComm::receivedBytesPlätze() {
    return empfangsspeicher().bytes.size();
}

MyComm& gemeinsamerMyComm() {
    auto& instanz = modul().gemeinsamerMyComm;
    if (!instanz)
        instanz = std::make_shared<MyComm>();
    return *instanz;
}

} // namespace vemo
