#include "links/ZemakDialog.h"

#include "core/CommPortAuswahl.h"
#include "core/Instrumentenuhr.h"
#include "core/ModulState.h"
#include "links/MyComm.h"
#include "links/ZemakSpeichern.h"
#include "platform/Codepage.h"
#include "platform/CommPort.h"
#include "platform/Ui.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QThread>
#include <cmath>
#include <limits>
#include <map>

namespace vemo {
namespace {

const QString Leitungseinstellung = "9600,N,8,1";
const QByteArray Abfrage = "~QD 2.";
const QByteArray Antwortkopf = "QD 2,";
const QByteArray Uhrantwort = "XG,";
const QByteArray Leer = "5\r";      // the reply to the query when the memory holds nothing
const qsizetype Kopflänge = 5;      // "QD 2,"
constexpr int Einschwingzeit = 200; // ms the port settles before its input is thrown away
constexpr int Uhrfrist = 1000;      // ms the clock's reply may take
constexpr int Nachlauf = 200;       // ms always served after it
constexpr int Stellfrist = 200;     // ms the reply to setting the clock may take
constexpr int Ruhepause = 2;        // ms a wait rests between two looks, so as not to burn a core

// The line errors that make the dialog deaf; their texts are not translated.
const std::map<int, QString>& leitungsfehler() {
    static const std::map<int, QString> tabelle{
        {commEreignis::Überlauf, "Data transmission Error: Data lost"},
        {commEreignis::EmpfangspufferVoll, "Data transmission Error: Receive buffer overflow"},
        {commEreignis::Paritätsfehler, "Data transmission Error: Parity Error"},
    };
    return tabelle;
}

// Port errors after which there is nothing to wait for: the message is the error's own text.
bool portFehltGanz(int nummer) {
    return nummer == fehler::PortUngültig || nummer == fehler::PortBereitsGeöffnet ||
           nummer == portfehler::GeräteKennungUngültig || nummer == portfehler::HardwareNichtVerfügbar;
}

// The text from von up to the next comma, or to the line's end.
QByteArray feldAb(const QByteArray& text, qsizetype von) {
    qsizetype ende = von;
    while (ende < text.size() && text[ende] != ',' && text[ende] != '\r')
        ++ende;
    return text.mid(von, ende - von);
}

QString portname() {
    return modul().portPfad.isEmpty() ? QString::number(modul().CommPort) : modul().portPfad;
}

} // namespace

frmZEMAK::frmZEMAK(const Zemakvariante& variante, QObject* parent)
    : DialogController(parent), m_variante(variante),
      m_gerätezustand(xText(variante.suchtext) + " " + portname()), m_hinweis(xText(variante.hinweis)) {
    m_timer1.setInterval(Taktzeit);
    connect(&m_timer1, &QTimer::timeout, this, &frmZEMAK::Timer1);
}

frmZEMAK::~frmZEMAK() {
    // A view must not outlive its controller, whichever way the transfer ended.
    schließen();
}

QString frmZEMAK::titel() const {
    return modul().anwendungstitel + " - " + xText("Serielle Datenübertragung");
}

QString frmZEMAK::abbrechenText() const {
    return xText("Datenübertragung Abbrechen");
}

QString frmZEMAK::zustandRahmen() const {
    return xText("Zustand");
}

QString frmZEMAK::hinweisRahmen() const {
    return xText("Hinweis");
}

void frmZEMAK::zeigen() {
    if (!istOffen())
        return;
    m_empfangAktiv = false;
    try {
        portÖffnen();
    } catch (const Fehler& f) {
        öffnungsfehler(f);
        return;
    }
    gemeinsamerMyComm().Clear_fAbortOnError(*m_port);
    warten(Einschwingzeit);
    if (!istOffen())
        return;
    m_port->Input();
    m_empfangspuffer.clear();
    ui().DoEvents();
    if (!istOffen())
        return;
    m_empfangAktiv = true;
    m_gerätGefunden = false;
    m_abfrageGesendet = false;
    m_timer1.start();
    m_wiederholungen = 0;
}

void frmZEMAK::portÖffnen() {
    m_port = neuerCommPort();
    connect(m_port.get(), &CommPort::comm, this, &frmZEMAK::OnComm);
    m_port->setGerät(modulPortGerät());
    m_port->setSettings(Leitungseinstellung);
    m_port->setHandshaking(Handshake::Keins);
    m_port->setRThreshold(1);
    m_port->setPortOpen(true);
}

// A port that is not there, or held by another, ends the transfer; with any other error the
// dialog stays, and the user leaves it by its button.
void frmZEMAK::öffnungsfehler(const Fehler& f) {
    if (!portFehltGanz(f.nummer())) {
        fehlerZeigen(f);
        return;
    }
    ui().MsgBox(f.beschreibung(), modul().anwendungstitel);
    modul().Abbruchmerker = 1;
    schließen();
}

void frmZEMAK::abbrechen() {
    if (!istOffen())
        return;
    m_timer1.stop();
    portSchließen();
    modul().Abbruchmerker = 1;
    schließen();
}

void frmZEMAK::OnComm(int ereignis) {
    if (!m_empfangAktiv)
        return;
    if (ereignis == commEreignis::Empfangen) {
        m_empfangspuffer += m_port->Input();
        return;
    }
    const auto it = leitungsfehler().find(ereignis);
    if (it == leitungsfehler().end())
        return;
    // Deaf from here on: the timer runs on, and only the abort button ends the dialog.
    m_empfangAktiv = false;
    modul().Abbruchmerker = 1;
    ui().MsgBox(it->second, modul().anwendungstitel);
}

// A tick that comes while an earlier one still waits is left out.
void frmZEMAK::Timer1() {
    if (m_imTakt)
        return;
    m_imTakt = true;
    try {
        taktAusführen();
    } catch (const Fehler& f) {
        fehlerZeigen(f);
        m_timer1.stop();
        portSchließen();
        modul().Abbruchmerker = 1;
        schließen();
    }
    m_imTakt = false;
}

void frmZEMAK::taktAusführen() {
    if (!m_gerätGefunden)
        suchen();
    else if (!m_abfrageGesendet)
        uhrStellenUndAbfragen();
    else
        sammeln();
}

// "ID" goes out at every tick without its reply, into an emptied buffer, so that replies never
// pile up. Once it is there the buffer stays as it is: it becomes the head of the working file.
void frmZEMAK::suchen() {
    const qsizetype p = stelle(m_variante.kennung);
    if (p == 0) {
        m_empfangspuffer.clear();
        senden("ID");
        return;
    }
    m_gerätGefunden = true;
    const QByteArray name = feldAb(m_empfangspuffer, p - 1);
    const QByteArray version = feldAb(m_empfangspuffer, p - 1 + name.size() + 1);
    m_gerätezustand = ausAnsi(name) + " " + ausAnsi(version) + " " + xText("gefunden");
    emit aktualisiert();
}

// The clock is set at every transfer without asking. Its reading only serves as a handshake; the
// waits end quietly when their time is up.
void frmZEMAK::uhrStellenUndAbfragen() {
    senden("XG");
    warten(Uhrfrist, [this] { return stelle(Uhrantwort) > 0; });
    warten(Nachlauf);
    if (!istOffen())
        return;
    const auto sekunden = instrumentenzeit(QDateTime::currentDateTime());
    if (!sekunden)
        throw fehler::mit(fehler::Überlauf);
    const qsizetype länge = m_empfangspuffer.size();
    senden("XS," + QByteArray::number(*sekunden));
    warten(Stellfrist, [this, länge] { return m_empfangspuffer.size() >= länge + 2; });
    if (!istOffen())
        return;
    senden(Abfrage);
    m_abfrageGesendet = true;
}

void frmZEMAK::sammeln() {
    const qsizetype p = stelle(Antwortkopf);
    if (p > 0)
        fortschrittZeigen(p);
    const QByteArray schluss = m_empfangspuffer.right(4);
    if (!schluss.isEmpty() && schluss.front() == '\r' && schluss.back() == '\r')
        antwortVollständig();
    else if (p == 0 && m_empfangspuffer.endsWith(Leer))
        keineDaten();
}

// The bar runs to the length the whole reply will have: the records announced by the count, and
// the head and closing of the variant. A count that has not come whole yet waits for the next tick.
void frmZEMAK::fortschrittZeigen(qsizetype p) {
    const QByteArray zähler = m_empfangspuffer.mid(p - 1 + Kopflänge, m_variante.zählerstellen);
    if (zähler.size() < m_variante.zählerstellen)
        return;
    bool ok = false;
    const qint64 n = zähler.toLongLong(&ok, 16);
    if (!ok || n < 0)
        throw fehler::mit(fehler::TypenUnverträglich);
    const qint64 max = p + m_variante.kopf + qint64(m_variante.satzlänge) * n;
    if (max > std::numeric_limits<int>::max())
        throw fehler::mit(fehler::Überlauf);
    if (m_empfangspuffer.size() > max)
        throw portfehler::mit(portfehler::UngültigerEigenschaftswert);
    m_balkenMax = int(max);
    m_balkenWert = int(m_empfangspuffer.size());
    m_prozent = " " + QString::number(std::lround(100.0 * m_balkenWert / m_balkenMax)) + "%";
    m_hinweis = QString::number(n) + " " + xText("Messungen werden übertragen. Bitte warten!");
    emit aktualisiert();
}

// The file is written whatever the reply holds, so that five short passes leave the last one.
void frmZEMAK::antwortVollständig() {
    m_timer1.stop();
    try {
        SaveZEMAKMessungen(m_empfangspuffer, m_variante.kommas);
    } catch (const Fehler& f) {
        fehlerZeigen(f);
    }
    if (m_balkenMax - Nachsicht <= m_empfangspuffer.size()) {
        fertig();
        return;
    }
    if (++m_wiederholungen >= Wiederholungsgrenze) {
        abbrechen();
        return;
    }
    m_gerätGefunden = false;
    m_abfrageGesendet = false;
    m_empfangspuffer.clear();
    m_timer1.start();
}

void frmZEMAK::keineDaten() {
    m_timer1.stop();
    ui().MsgBox(xText("keine Daten vorhanden !"), modul().anwendungstitel);
    abbrechen();
}

void frmZEMAK::fertig() {
    portSchließen();
    schließen();
}

void frmZEMAK::portSchließen() {
    if (m_port && m_port->PortOpen())
        m_port->setPortOpen(false);
}

void frmZEMAK::senden(const QByteArray& befehl) {
    m_port->Output(befehl + '\r');
}

void frmZEMAK::warten(int ms, const std::function<bool()>& bedingung) {
    QElapsedTimer uhr;
    uhr.start();
    while (istOffen() && uhr.elapsed() < ms && !(bedingung && bedingung())) {
        ui().DoEvents();
        QThread::msleep(Ruhepause);
    }
}

qsizetype frmZEMAK::stelle(const QByteArray& text) const {
    return QLatin1String(m_empfangspuffer).indexOf(QLatin1String(text), 0, Qt::CaseInsensitive) + 1;
}

void zemakÜbertragen(const Zemakvariante& variante) {
    frmZEMAK form(variante);
    QTimer::singleShot(0, &form, &frmZEMAK::zeigen);
    ui().zeigeModal(form);
}

} // namespace vemo
