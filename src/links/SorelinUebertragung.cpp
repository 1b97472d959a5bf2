#include "links/SorelinUebertragung.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "core/SorelinRahmen.h"
#include "links/Warten.h"
#include "platform/Ui.h"

#include <QDir>
#include <QFile>

namespace vemo {
namespace {

// The port as the user gave it: its number, or a device path named directly.
QString portText() {
    return modul().portPfad.isEmpty() ? QString::number(modul().CommPort) : modul().portPfad;
}

QString tastenHinweis() {
    return xText("Senden-Taste am Prüfgerät drücken ...");
}

uchar byteBei(const QByteArray& puffer, qsizetype position) {
    return uchar(puffer.at(position));
}

} // namespace

frmSorelin::frmSorelin(QObject* parent) : DialogController(parent), m_sendText(tastenHinweis()) {
    m_blinker.setInterval(Blinktakt);
    connect(&m_blinker, &QTimer::timeout, this, &frmSorelin::blinken);
}

frmSorelin::~frmSorelin() {
    // A view must not outlive its controller, whichever way the transfer ended.
    schließen();
}

void frmSorelin::zeigen() {
    // The transfer starts once the dialog is on the screen and its event loop runs.
    QTimer::singleShot(0, this, &frmSorelin::übertragen);
    ui().zeigeModal(*this);
}

QString frmSorelin::titel() const {
    return modul().anwendungstitel + " - " + xText("Serielle Datenübertragung");
}

QString frmSorelin::abbrechenText() const {
    return xText("Datenübertragung Abbrechen");
}

void frmSorelin::abbrechen() {
    m_comm.CloseCom();
    modul().Abbruchmerker = 1;
    schließen();
}

void frmSorelin::übertragen() {
    if (!istOffen())
        return;
    try {
        if (portÖffnen()) {
            wartenMitEreignissen(m_einschwingzeit);
            m_comm.Receive(true);
            m_blinker.start();
            if (const auto start = startmarkeAbwarten()) {
                datenKommen();
                if (const auto daten = datenblockSuchen(*start); daten && bisEndmarke(*daten))
                    speichern();
            }
        }
    } catch (const Fehler& f) {
        fehlerMelden(f);
    }
    beenden();
}

bool frmSorelin::portÖffnen() {
    QString name = portText();
    if (m_comm.OpenCom(name, Gerätecode) != MyComm::UngültigesHandle)
        return true;
    fehlerMelden(m_comm.öffnungsfehler().value_or(fehler::mit(fehler::PortUngültig, name)));
    return false;
}

bool frmSorelin::lesen() {
    ui().DoEvents();
    if (modul().Abbruchmerker == 1)
        return false;
    const QByteArray neu = m_comm.Receive(true).toLatin1();
    if (neu.isEmpty())
        ruhen();
    m_puffer += neu;
    return true;
}

bool frmSorelin::bisLänge(qsizetype länge) {
    while (m_puffer.size() < länge)
        if (!lesen())
            return false;
    return true;
}

// There is no time limit: the user may press the send key whenever he likes. The search runs over
// the whole buffer each time, so that a mark split over two reads is found as well.
std::optional<qsizetype> frmSorelin::startmarkeAbwarten() {
    while (lesen())
        if (const qsizetype p = m_puffer.indexOf(sorelin::Startmarke); p >= 0)
            return p;
    return std::nullopt;
}

void frmSorelin::datenKommen() {
    m_blinker.stop();
    m_sendText = xText("Datenübertragung läuft...");
    m_sendTextSichtbar = true;
    emit aktualisiert();
}

// Behind the start mark stand the start block's length and the start block, then blocks of kind
// 10 with their length, until the data block of kind 30. Its position, or nothing when the transfer
// ended before (abort, or a kind the dialog does not know).
std::optional<qsizetype> frmSorelin::datenblockSuchen(qsizetype startmarke) {
    const qsizetype startlänge = startmarke + sorelin::Startmarke.size();
    if (!bisLänge(startlänge + 1))
        return std::nullopt;
    qsizetype q = startlänge + 1 + byteBei(m_puffer, startlänge);
    for (;;) {
        if (!bisLänge(q + 1))
            return std::nullopt;
        const char art = m_puffer.at(q);
        if (art == sorelin::Datenblock)
            return q;
        if (art != sorelin::Zusatzblock) {
            modul().Abbruchmerker = 1;
            ui().MsgBox(xText("Blockkennung nicht bekannt"), modul().anwendungstitel);
            return std::nullopt;
        }
        if (!bisLänge(q + 2))
            return std::nullopt;
        q += byteBei(m_puffer, q + 1) + 2;
    }
}

// The data block's length sets how far the bar goes; the end mark ends the transfer. The length
// is worked out in 16-bit arithmetic, which a length with its high bit set overflows: the image
// of a memory holds at most 32767 bytes.
bool frmSorelin::bisEndmarke(qsizetype datenblock) {
    if (!bisLänge(datenblock + sorelin::DatenblockKopf))
        return false;
    const uchar hoch = byteBei(m_puffer, datenblock + 3);
    if (hoch & 0x80)
        throw fehler::mit(fehler::Überlauf);
    const int länge = hoch * 256 + byteBei(m_puffer, datenblock + 4);
    // The bar counts 1-based positions in the buffer, as the bytes before the start mark do too.
    m_min = 1;
    m_max = int(datenblock + 1) + länge + 4 + 5;
    for (;;) {
        if (!lesen())
            return false;
        fortschrittZeigen();
        if (m_puffer.contains(sorelin::Endmarke))
            return true;
    }
}

void frmSorelin::fortschrittZeigen() {
    const int wert = int(std::min<qsizetype>(m_puffer.size(), m_max));
    const QString prozent = " " + QString::number(qint64(wert) * 100 / m_max) + "%";
    if (wert == m_wert && prozent == m_prozent)
        return;
    m_wert = wert;
    m_prozent = prozent;
    emit aktualisiert();
}

// Everything that came, the bytes before the start mark included, replaces the file of the last
// transfer.
void frmSorelin::speichern() const {
    const QString alt = arbeitsdatei(datei::Rs232Sep);
    if (QFile::exists(alt) && !QFile::remove(alt))
        throw fehler::mit(fehler::PfadZugriff, alt);
    QFile datei(QDir(modul().Datenbankverzeichnis).filePath(datei::Rs232Sep));
    if (!datei.open(QIODevice::WriteOnly | QIODevice::Truncate) || datei.write(m_puffer) != m_puffer.size())
        throw fehler::mit(fehler::PfadZugriff, datei.fileName());
}

// A port already open is told by its text alone; every other error by number and text.
void frmSorelin::fehlerMelden(const Fehler& f) {
    ui().MsgBox(f.nummer() == fehler::PortBereitsGeöffnet ? f.beschreibung() : f.meldung(),
                modul().anwendungstitel);
    modul().Abbruchmerker = 1;
}

void frmSorelin::blinken() {
    m_sendTextSichtbar = !m_sendTextSichtbar;
    emit aktualisiert();
}

void frmSorelin::beenden() {
    m_blinker.stop();
    m_comm.CloseCom();
    schließen();
}

} // namespace vemo
