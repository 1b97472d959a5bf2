#include "links/ZemakEinstellung.h"

#include "core/CommPortAuswahl.h"
#include "core/InitTabelle.h"
#include "core/Instrumentenuhr.h"
#include "core/ModulState.h"
#include "links/MyComm.h"
#include "platform/Codepage.h"
#include "platform/CommPort.h"
#include "platform/Ui.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QThread>

namespace vemo {
namespace {

const QString Leitungseinstellung = "9600,N,8,1";
const QString Zeitformat = "dd.MM.yyyy HH:mm:ss";
const QByteArray Uhrwort = "XG,";
constexpr int Einschwingzeit = 200; // ms the port settles before its input is thrown away
constexpr int Ruhepause = 2;        // ms a wait rests between two looks, so as not to burn a core
constexpr int Kennungslänge = 8;

// The init values of the two combos, and the digits each entry gives to the first part.
const QStringList Stellenmuster{"abbb", "aabb", "aaab"};

bool portFehltGanz(int nummer) {
    return nummer == fehler::PortUngültig || nummer == fehler::PortBereitsGeöffnet ||
           nummer == portfehler::GeräteKennungUngültig || nummer == portfehler::HardwareNichtVerfügbar;
}

// The 1-based position of a word in a reply, whatever its case; 0 when it is not there.
qsizetype stelle(const QByteArray& antwort, const QByteArray& wort) {
    return QLatin1String(antwort).indexOf(QLatin1String(wort), 0, Qt::CaseInsensitive) + 1;
}

// The field that begins at von and ends before the next comma (or the reply's end), and where the
// field behind it begins.
std::pair<QByteArray, qsizetype> feld(const QByteArray& antwort, qsizetype von) {
    const qsizetype komma = antwort.indexOf(',', von);
    if (komma < 0)
        return {antwort.mid(von), antwort.size()};
    return {antwort.mid(von, komma - von), komma + 1};
}

QByteArray ohneCr(QByteArray text) {
    if (text.endsWith('\r'))
        text.chop(1);
    return text;
}

QString jetzt() {
    return QDateTime::currentDateTime().toString(Zeitformat);
}

// The entries of a combo: the two parts named, and the digits of each in the four-digit code.
QStringList stellenListe(const QString& erster, const QString& zweiter, char a, char b) {
    QStringList liste;
    for (QString muster : Stellenmuster)
        liste << xText(erster) + "(" + a + ")," + xText(zweiter) + "(" + b +
                     "): " + muster.replace('a', a).replace('b', b);
    return liste;
}

// A combo's index for what init holds: 1 to 3 are the entries, anything else none of them.
int stellenIndex(const QString& wert) {
    bool ok = false;
    const int stellen = wert.trimmed().toInt(&ok);
    return ok && stellen >= 1 && stellen <= 3 ? stellen - 1 : -1;
}

} // namespace

frmSettingZEMAK3710::frmSettingZEMAK3710(const Einstellungsvariante& variante, QObject* parent)
    : DialogController(parent), m_variante(variante), m_pcZeit(jetzt()) {
    m_gerät = "(" + xText("keine Verbindung") + ")";
    m_timer1.setInterval(Taktzeit);
    connect(&m_timer1, &QTimer::timeout, this, &frmSettingZEMAK3710::Timer1);
}

frmSettingZEMAK3710::~frmSettingZEMAK3710() {
    m_timer1.stop();
    portSchließen();
    // A view must not outlive its controller.
    schließen();
}

QString frmSettingZEMAK3710::titel() const {
    return xText("Einstellungen") + " " + xText(m_variante.titelZusatz);
}

QString frmSettingZEMAK3710::uhrRahmen() const {
    return xText("Datum") + "-" + xText("Uhrzeit");
}

QString frmSettingZEMAK3710::kennungsRahmen() const {
    return xText("Prüfgerät") + "-" + xText("ID");
}

QString frmSettingZEMAK3710::aufteilungsRahmen() const {
    return xText(m_variante.rahmen);
}

QStringList frmSettingZEMAK3710::kundenstellenListe() const {
    return stellenListe("Kunde", "Anlage", 'a', 'b');
}

QStringList frmSettingZEMAK3710::verteilerstellenListe() const {
    return stellenListe("Verteiler", "Stromkreis", 'c', 'd');
}

// The check box is on for "1" only. A digit count the combos don't offer stays as it is in init.
void frmSettingZEMAK3710::laden() {
    try {
        m_codeSplitting = InitLesen("codeSplitting3720", "0").trimmed() == "1";
        m_kundenstellenGelesen = InitLesen("Kundencodestellen3720", "2");
        m_verteilerstellenGelesen = InitLesen("Verteilercodestellen3720", "2");
        m_kundenstellen = stellenIndex(m_kundenstellenGelesen);
        m_verteilerstellen = stellenIndex(m_verteilerstellenGelesen);
        m_aufteilungSichtbar = InitLesen("3720enabled", "0") == "1";
    } catch (const Fehler& f) {
        fehlerZeigen(f);
    }
    emit aktualisiert();
}

void frmSettingZEMAK3710::zeigen() {
    if (!istOffen())
        return;
    if (verbinden() && istOffen())
        m_timer1.start();
}

bool frmSettingZEMAK3710::verbinden() {
    try {
        m_port = neuerCommPort();
        m_port->setGerät(modulPortGerät());
        m_port->setSettings(Leitungseinstellung);
        m_port->setHandshaking(Handshake::Keins);
        m_port->setRThreshold(1);
        m_port->setPortOpen(true);
        gemeinsamerMyComm().Clear_fAbortOnError(*m_port);
        QElapsedTimer uhr;
        uhr.start();
        while (uhr.elapsed() < Einschwingzeit) {
            ui().DoEvents();
            QThread::msleep(Ruhepause);
        }
        m_port->Input();
    } catch (const Fehler& f) {
        öffnungsfehler(f);
        return false;
    }
    return true;
}

// A port that is not there, or held by another, closes the dialog; with any other error it stays,
// without polling, and the user leaves it by its button.
void frmSettingZEMAK3710::öffnungsfehler(const Fehler& f) {
    if (!portFehltGanz(f.nummer())) {
        fehlerZeigen(f);
        return;
    }
    ui().MsgBox(f.beschreibung(), modul().anwendungstitel);
    entladen();
}

// A tick that comes while the instrument is still being talked to is left out.
void frmSettingZEMAK3710::Timer1() {
    if (m_beschäftigt || m_entladen || !m_port || !m_port->PortOpen())
        return;
    m_beschäftigt = true;
    try {
        taktAusführen();
    } catch (const Fehler& f) {
        fehlerZeigen(f);
    }
    m_beschäftigt = false;
    emit aktualisiert();
    if (m_entladenNachTakt)
        entladen();
}

void frmSettingZEMAK3710::taktAusführen() {
    const QByteArray antwort = fragen("ID", m_variante.kennwort);
    const qsizetype p = stelle(antwort, m_variante.kennwort);
    if (p == 0) {
        keineVerbindung();
        return;
    }
    gerätZeigen(antwort, p);
    uhrZeigen();
}

// The reply is name, version and serial number, comma-separated, from the identification word on.
void frmSettingZEMAK3710::gerätZeigen(const QByteArray& antwort, qsizetype p) {
    m_verbunden = true;
    const auto [name, hinterName] = feld(antwort, p - 1);
    const auto [version, hinterVersion] = feld(antwort, hinterName);
    m_gerät = ausAnsi(ohneCr(name)) + " " + ausAnsi(ohneCr(version));
    m_serienNr = ausAnsi(ohneCr(antwort.mid(hinterVersion)));
    if (m_kennungstext == Vorgabekennung) {
        m_kennungstext = m_serienNr.trimmed();
        emit kennungUebernommen();
    }
}

void frmSettingZEMAK3710::uhrZeigen() {
    const QByteArray antwort = fragen("XG", Uhrwort);
    const qsizetype q = stelle(antwort, Uhrwort);
    if (q == 0)
        return;
    bool ok = false;
    const quint32 sekunden = ohneCr(antwort.mid(q - 1 + Uhrwort.size())).trimmed().toUInt(&ok);
    if (!ok)
        throw fehler::mit(fehler::TypenUnverträglich);
    m_prüfgerätZeit = ZeitAusSekunden(sekunden).toString(Zeitformat);
    m_pcZeit = jetzt();
}

void frmSettingZEMAK3710::keineVerbindung() {
    m_verbunden = false;
    m_pcZeit = jetzt();
    m_serienNr.clear();
    m_prüfgerätZeit.clear();
    m_gerät = "(" + xText("keine Verbindung") + ")";
}

// The tick reads the line itself. Its wait lets the line's own events through, but no click or
// key: no button can act in the middle of a poll.
QByteArray frmSettingZEMAK3710::fragen(const QByteArray& befehl, const QByteArray& wort) {
    QByteArray antwort;
    m_port->Output(befehl + '\r');
    QElapsedTimer uhr;
    uhr.start();
    for (;;) {
        antwort += m_port->Input();
        if ((stelle(antwort, wort) > 0 && antwort.endsWith('\r')) || uhr.elapsed() > Antwortfrist)
            return antwort;
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(Ruhepause);
    }
}

// What the instrument answers to a command is not looked at: a command it did not understand, or
// a cable lost meanwhile, goes unnoticed.
void frmSettingZEMAK3710::befehlSenden(const QByteArray& befehl) {
    if (m_beschäftigt)
        return;
    m_beschäftigt = true;
    ui().sanduhr(true);
    try {
        if (!m_port)
            throw fehler::mit(fehler::PortNichtGeöffnet);
        m_port->Output(befehl + '\r');
        QElapsedTimer uhr;
        uhr.start();
        while (uhr.elapsed() < Befehlspause) {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            QThread::msleep(Ruhepause);
        }
        m_port->Input();
        ui().sanduhr(false);
    } catch (const Fehler& f) {
        ui().sanduhr(false);
        fehlerZeigen(f);
    }
    m_beschäftigt = false;
}

QString frmSettingZEMAK3710::kennungFürGerät(const QString& text) {
    const QString t = text.trimmed();
    return t.size() > Kennungslänge ? t.right(Kennungslänge) : t.rightJustified(Kennungslänge, ' ');
}

void frmSettingZEMAK3710::setKennungstext(const QString& text) {
    m_kennungstext = text;
}

void frmSettingZEMAK3710::setCodeSplitting(bool an) {
    m_codeSplitting = an;
    emit aktualisiert();
}

void frmSettingZEMAK3710::setKundenstellenIndex(int index) {
    m_kundenstellen = index;
}

void frmSettingZEMAK3710::setVerteilerstellenIndex(int index) {
    m_verteilerstellen = index;
}

void frmSettingZEMAK3710::ComSend() {
    befehlSenden("PS 0," + nachAnsi(kennungFürGerät(m_kennungstext)));
}

void frmSettingZEMAK3710::ComSync() {
    const auto sekunden = instrumentenzeit(QDateTime::currentDateTime());
    if (!sekunden) {
        fehlerZeigen(fehler::mit(fehler::Überlauf));
        return;
    }
    befehlSenden("XS," + QByteArray::number(*sekunden));
}

void frmSettingZEMAK3710::ComMesLöschen() {
    const MsgStil jaNein{MsgKnöpfe::JaNein, MsgSymbol::Keins, 2};
    const QString titel = modul().anwendungstitel + " - " + xText("Prüfgerätespeicher löschen");
    if (ui().MsgBox(xText("Sicher Prüfgerätespeicher?"), titel, jaNein) == antwort::Ja)
        befehlSenden("CD");
}

void frmSettingZEMAK3710::ComSchließen() {
    m_timer1.stop();
    ui().DoEvents();
    entladen();
}

void frmSettingZEMAK3710::entladen() {
    if (m_entladen)
        return;
    if (m_beschäftigt) {
        m_entladenNachTakt = true;
        return;
    }
    m_entladen = true;
    m_timer1.stop();
    portSchließen();
    einstellungenSchreiben();
    schließen();
}

void frmSettingZEMAK3710::portSchließen() {
    try {
        if (m_port && m_port->PortOpen())
            m_port->setPortOpen(false);
    } catch (const Fehler& f) {
        fehlerZeigen(f);
    }
}

// Written whether the frame shows or not; 3720enabled is never written here.
void frmSettingZEMAK3710::einstellungenSchreiben() {
    const auto stellen = [](int index, const QString& gelesen) {
        return index >= 0 ? QString::number(index + 1) : gelesen;
    };
    try {
        InitSchreiben("codeSplitting3720", m_codeSplitting ? "1" : "0");
        InitSchreiben("Kundencodestellen3720", stellen(m_kundenstellen, m_kundenstellenGelesen));
        InitSchreiben("Verteilercodestellen3720", stellen(m_verteilerstellen, m_verteilerstellenGelesen));
    } catch (const Fehler& f) {
        fehlerZeigen(f);
    }
}

void einstellungZemak3710() {
    frmSettingZEMAK3710 form(einstellungsvariante(modul().PrüfgeräteTypID));
    form.laden();
    QTimer::singleShot(0, &form, &frmSettingZEMAK3710::zeigen);
    ui().zeigeModal(form);
}

} // namespace vemo
