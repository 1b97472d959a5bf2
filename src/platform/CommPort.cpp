#include "platform/CommPort.h"

#include <QMetaObject>
#include <QStringList>
#include <map>

namespace vemo {

namespace portfehler {
Fehler mit(int nummer, const QString& detail) {
    static const std::map<int, QString> eigene{
        {UngültigerEigenschaftswert, "Ungültiger Eigenschaftswert"},
        {GeräteKennungUngültig, "Die Gerätekennung ist ungültig oder wird nicht unterstützt"},
        {HardwareNichtVerfügbar, "Die Hardware ist nicht verfügbar"},
        {ParameterNichtGesetzt, "Die Anschlussparameter konnten nicht gesetzt werden"},
    };
    const auto it = eigene.find(nummer);
    const QString beschreibung = it != eigene.end() ? it->second : fehler::mit(nummer).deutscheBeschreibung();
    return Fehler(nummer, detail.isEmpty() ? beschreibung : beschreibung + " (" + detail + ")");
}
} // namespace portfehler

std::optional<Leitungsparameter> Leitungsparameter::lesen(const QString& settings) {
    const QStringList teile = settings.split(',');
    if (teile.size() != 4)
        return std::nullopt;
    Leitungsparameter p;
    bool ok = false;
    p.baud = teile[0].trimmed().toInt(&ok);
    if (!ok || p.baud <= 0)
        return std::nullopt;
    const QString parität = teile[1].trimmed().toUpper();
    if (parität.size() != 1 || !QString("NEOMS").contains(parität))
        return std::nullopt;
    p.parität = parität[0].toLatin1();
    p.datenbits = teile[2].trimmed().toInt(&ok);
    if (!ok || p.datenbits < 4 || p.datenbits > 8)
        return std::nullopt;
    p.stoppbits = teile[3].trimmed();
    if (p.stoppbits != "1" && p.stoppbits != "1.5" && p.stoppbits != "2")
        return std::nullopt;
    return p;
}

void CommPort::setGerät(const QString& pfad) {
    // The serial control refuses a new port while the old one is open.
    if (m_offen)
        throw portfehler::mit(fehler::PortBereitsGeöffnet, m_gerät);
    m_gerät = pfad;
}

void CommPort::setSettings(const QString& settings) {
    const auto p = Leitungsparameter::lesen(settings);
    if (!p)
        throw portfehler::mit(portfehler::UngültigerEigenschaftswert, settings);
    m_parameter = *p;
    m_settingsText = settings;
    if (m_offen)
        parameterAnwenden();
}

void CommPort::setHandshaking(Handshake h) {
    m_handshake = h;
    if (m_offen)
        parameterAnwenden();
}

void CommPort::setPortOpen(bool offen) {
    if (offen == m_offen) {
        if (offen)
            throw portfehler::mit(fehler::PortBereitsGeöffnet, m_gerät);
        return;
    }
    if (offen) {
        if (m_gerät.isEmpty())
            throw portfehler::mit(fehler::PortUngültig);
        öffnen();
        try {
            parameterAnwenden();
        } catch (const Fehler&) {
            schließen();
            throw;
        }
        m_offen = true;
        leitungenAnwenden();
    } else {
        schließen();
        m_offen = false;
    }
}

void CommPort::setRTSEnable(bool an) {
    m_rts = an;
    if (m_offen)
        leitungenAnwenden();
}

void CommPort::setDTREnable(bool an) {
    m_dtr = an;
    if (m_offen)
        leitungenAnwenden();
}

void CommPort::offenVerlangen() const {
    if (!m_offen)
        throw portfehler::mit(fehler::PortNichtGeöffnet, m_gerät);
}

QByteArray CommPort::Input() {
    offenVerlangen();
    return lesen();
}

void CommPort::Output(const QByteArray& bytes) {
    offenVerlangen();
    if (!bytes.isEmpty())
        schreiben(bytes);
}

int CommPort::InBufferCount() const {
    return m_offen ? int(wartend()) : 0;
}

void CommPort::InBufferLeeren() {
    offenVerlangen();
    eingangVerwerfen();
}

void CommPort::OutBufferLeeren() {
    offenVerlangen();
    ausgangVerwerfen();
}

void CommPort::empfangMelden() {
    // One check waits in the queue at a time; it looks at the buffer when it runs, so that a caller
    // who has taken the input meanwhile gets no event for it.
    if (m_empfangGemeldet || m_rThreshold <= 0)
        return;
    m_empfangGemeldet = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_empfangGemeldet = false;
            if (m_offen && m_rThreshold > 0 && wartend() >= m_rThreshold) {
                m_commEvent = commEreignis::Empfangen;
                emit comm(commEreignis::Empfangen);
            }
        },
        Qt::QueuedConnection);
}

void CommPort::ereignisMelden(int ereignis) {
    QMetaObject::invokeMethod(
        this,
        [this, ereignis] {
            if (!m_offen)
                return;
            m_commEvent = ereignis;
            emit comm(ereignis);
        },
        Qt::QueuedConnection);
}

} // namespace vemo
