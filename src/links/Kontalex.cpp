#include "links/Kontalex.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "links/KontalexModelle.h"
#include "links/KontalexText.h"
#include "platform/CommPort.h"
#include "platform/Ui.h"

#include <QElapsedTimer>
#include <QThread>

namespace vemo {
namespace {

const QByteArray Bereit = "MRD";
const QByteArray Anzahl = "MNU";
const QByteArray Wer = "MWH";
const QByteArray Start = "MSS";
const QByteArray Nächster("MRE\0", 4);
const QByteArray Ende = "MEX";
const QByteArray Antwortmarke = "SER";
constexpr int Antwortlänge = 5;
constexpr int Anzahllänge = 6;
constexpr int Kopflänge = 4;
constexpr int Zusatzstelle = 8; // the ninth byte of a block
constexpr char Zusatzmarke = 'f';
constexpr int OhneBlockzahl = 2000;   // the bar's total while no number of blocks is known
constexpr int Ruhepause = 1;          // ms a wait rests between two looks, so as not to burn a core
constexpr int FragenOhneAntwort = 10; // silence intervals an unanswered "MWH" is given

// Thrown from a wait when the user has aborted: the transfer ends where it stands.
struct Empfangsabbruch {};

// "SER", 1 and a byte: the fourth byte says whether the command was done.
bool bestätigt(const QByteArray& antwort) {
    return antwort.size() == Antwortlänge && antwort.startsWith(Antwortmarke) && antwort[3] == 1;
}

// No such port, the port in use, no hardware: the dialog can do nothing.
bool portFehlt(int nummer) {
    constexpr int KeinGerät = 8006;
    return nummer == fehler::PortUngültig || nummer == fehler::PortBereitsGeöffnet || nummer == KeinGerät ||
           nummer == portfehler::HardwareNichtVerfügbar;
}

} // namespace

Kontalex::Kontalex(const Zeiten& zeiten, QObject* parent)
    : DialogController(parent), m_zeiten(zeiten), m_leitung(zeiten.stillezeit) {
    m_timer2.setInterval(zeiten.sekundentakt);
    m_bereitTimer.setInterval(zeiten.bereitTakt);
    connect(&m_timer2, &QTimer::timeout, this, &Kontalex::sekundeVorbei);
    connect(&m_bereitTimer, &QTimer::timeout, this, &Kontalex::bereitTakt);
}

Kontalex::~Kontalex() {
    m_timer2.stop();
    m_bereitTimer.stop();
    // A view must not outlive its controller, whichever way the transfer ended.
    schließen();
}

QString Kontalex::titel() const {
    return modul().anwendungstitel + " - " + xText("Serielle Datenübertragung");
}

QString Kontalex::abbrechenText() const {
    return xText("&Abbruch");
}

QString Kontalex::baudrateText() const {
    return xText("Baudrate");
}

QString Kontalex::messungenText() const {
    return xText("Messungen");
}

QString Kontalex::abbruchInText() const {
    return xText("Abbruch in");
}

bool Kontalex::laden() {
    try {
        m_leitung.öffnen();
    } catch (const Fehler& f) {
        ui().MsgBox(portFehlt(f.nummer()) ? f.beschreibung() : f.meldung(), modul().anwendungstitel);
        modul().Abbruchmerker = 1;
        return false;
    }
    // Command9, clicked by the code, starts asking; the countdown shows the time the user has.
    m_sekunden.clear();
    m_bereitTimer.start();
    m_restzeit = m_zeiten.wartezeit;
    m_sekunden = QString::number(m_restzeit);
    m_timer2.start();
    anzeigen();
    return true;
}

void Kontalex::abbrechen() {
    if (!istOffen())
        return;
    modul().Empfangsende = 1;
    m_timer2.stop();
    m_bereitTimer.stop();
    m_leitung.stilleQuittieren();
    modul().Abbruchmerker = 1;
    m_abgebrochen = true;
    ui().DoEvents();
    schließen();
}

void Kontalex::sekundeVorbei() {
    --m_restzeit;
    m_sekunden = QString::number(m_restzeit);
    anzeigen();
    if (m_restzeit <= 0) {
        m_timer2.stop();
        abbrechen();
    }
}

// Asking and looking take turns, half a second apart.
void Kontalex::bereitTakt() {
    const bool jetztFragen = m_fragen;
    m_fragen = !m_fragen;
    if (jetztFragen)
        fragen();
    else
        schauen();
}

void Kontalex::fragen() {
    m_kennung = xText("Identifikation...");
    m_zustand = xText("Gerät nicht bereit !");
    anzeigen();
    if (!schritt([this] { m_leitung.senden(Bereit); }))
        fehlgeschlagen();
}

void Kontalex::schauen() {
    if (m_leitung.stille())
        m_leitung.stilleQuittieren();
    if (!bestätigt(m_leitung.puffer()))
        return;
    m_kennung = "9600";
    m_zustand = xText("Gerät bereit !");
    m_restzeit = m_zeiten.wartezeit;
    m_sekunden.clear();
    m_bereitTimer.stop();
    anzeigen();
    übertragen();
}

void Kontalex::übertragen() {
    try {
        ablauf();
    } catch (const Empfangsabbruch&) {
        // The raw file stays as far as it came; the record file of the last run is not touched.
        m_leitung.rohdateiSchließen();
        schließen();
    }
}

void Kontalex::ablauf() {
    m_timer2.stop();
    // The raw file has the name of the block dump of the other family; a transfer replaces it.
    if (!schritt([this] { m_leitung.rohdateiÖffnen(arbeitsdatei(datei::Rs232Sep)); }))
        return fehlgeschlagen();
    int blockzahl = -1;
    schritt([&] { blockzahl = blockzahlHolen(); });
    if (blockzahl < 0)
        return fehlgeschlagen();
    m_blockzahl = blockzahl;
    QStringList geräteinfo;
    if (!schritt([&] { geräteinfo = geräteinfoHolen(); }))
        return fehlgeschlagen();

    m_zustand = xText("Datenübertragung läuft...");
    anzeigen();
    bool gestartet = false;
    schritt([&] { gestartet = speicherStarten(); });
    QByteArray dump;
    if (gestartet && schritt([&] { blöckeHolen(dump); }) && m_zusatzBlock)
        schritt([&] { dump += blockHolen(); });
    schritt([&] { fernbetriebBeenden(kontalexModell(geräteinfo.value(0))); });

    if (m_blockzahl == 0) {
        m_keineDaten = true;
        dump.clear();
    }
    dateienSchreiben(geräteinfo, dump);
    m_leitung.rohdateiSchließen();
    m_prozent = 100;
    anzeigen();
    schließen();
}

// A step that failed before any data came: the run is over.
void Kontalex::fehlgeschlagen() {
    m_timer2.stop();
    m_bereitTimer.stop();
    m_leitung.stilleQuittieren();
    m_leitung.rohdateiSchließen();
    modul().Abbruchmerker = 1;
    schließen();
}

// The trap of each step: the error's text, and the step counts as not done.
bool Kontalex::schritt(const std::function<void()>& routine) {
    try {
        routine();
        return true;
    } catch (const Fehler& f) {
        ui().MsgBox(f.beschreibung(), modul().anwendungstitel);
        return false;
    }
}

void Kontalex::warten(const std::function<bool()>& bis) {
    for (;;) {
        m_leitung.fehlerWeitergeben();
        if (bis())
            return;
        ui().DoEvents();
        if (modul().Empfangsende == 1)
            throw Empfangsabbruch{};
        QThread::msleep(Ruhepause);
    }
}

bool Kontalex::wartenHöchstens(int ms, const std::function<bool()>& bis) {
    QElapsedTimer uhr;
    uhr.start();
    bool erfüllt = false;
    warten([&] { return (erfüllt = bis()) || uhr.elapsed() >= ms; });
    return erfüllt;
}

int Kontalex::blockzahlHolen() {
    m_leitung.senden(Anzahl);
    const QByteArray& p = m_leitung.puffer();
    warten([&] { return m_leitung.stille() && p.size() >= Anzahllänge; });
    m_leitung.stilleQuittieren();
    const int hoch = quint8(p[4]);
    // The count is a 16-bit number: a high byte from 128 on overflows it.
    if (hoch > 127)
        throw fehler::mit(fehler::Überlauf);
    return hoch * 256 + quint8(p[5]);
}

// Asked again and again until the instrument says who it is.
QStringList Kontalex::geräteinfoHolen() {
    const QByteArray& p = m_leitung.puffer();
    do {
        m_leitung.senden(Wer);
        if (wartenHöchstens(FragenOhneAntwort * m_zeiten.stillezeit, [&] { return !p.isEmpty(); }))
            warten([&] { return m_leitung.stille(); });
    } while (p.isEmpty());
    m_leitung.stilleQuittieren();
    return geräteinfoLesen(p);
}

bool Kontalex::speicherStarten() {
    m_leitung.senden(Start);
    warten([&] { return m_leitung.stille(); });
    m_leitung.stilleQuittieren();
    return bestätigt(m_leitung.puffer());
}

// One pass more than announced: the empty block that ends the memory, which also tells how many
// blocks there really were.
void Kontalex::blöckeHolen(QByteArray& dump) {
    for (int i = 1; i <= m_blockzahl + 1; ++i) {
        dump += blockHolen();
        if (m_endeBlock) {
            m_blockzahl = i - 1;
            break;
        }
        if (i <= m_blockzahl)
            fortschritt(1);
        m_block = QString::number(i);
        anzeigen();
    }
}

QByteArray Kontalex::blockHolen() {
    m_leitung.senden(Nächster, true);
    const QByteArray& p = m_leitung.puffer();
    warten([&] { return p.size() >= Kopflänge && p.size() >= Kopflänge + quint8(p[Kopflänge - 1]); });
    const QByteArray block = p;
    if (quint8(block[Kopflänge - 1]) == 0)
        m_endeBlock = true;
    if (block.size() > Zusatzstelle + 1 && !m_zusatzBlock && block[Zusatzstelle] == Zusatzmarke)
        m_zusatzBlock = true;
    return block;
}

// A model that confirms gets a fifth of a second; silence then counts as done. A refusal leaves
// the port open.
void Kontalex::fernbetriebBeenden(const Kontalexmodell& modell) {
    m_leitung.senden(Ende);
    if (modell.mexMitAntwort) {
        const QByteArray& p = m_leitung.puffer();
        if (!wartenHöchstens(m_zeiten.mexFrist, [&] { return p.size() >= Antwortlänge; })) {
            ui().MsgBox(xText("TimeOut"), modul().anwendungstitel);
        } else if (!bestätigt(p)) {
            ui().MsgBox(xText("Kommunikation nicht beendet !"), modul().anwendungstitel);
            return;
        }
    }
    m_leitung.schließen();
    m_leitung.rohdateiSchließen();
}

void Kontalex::dateienSchreiben(const QStringList& geräteinfo, const QByteArray& dump) {
    const QString text = arbeitsdatei(datei::Rs232Txt);
    bool loggerDaten = false;
    if (schritt([&] { loggerDaten = kontalexTextSchreiben(text, geräteinfo, dump); }) && loggerDaten)
        schritt([&] { loggerKopfSchreiben(text); });
}

void Kontalex::fortschritt(int blöcke) {
    const int gesamt = m_blockzahl > 0 ? m_blockzahl : OhneBlockzahl;
    m_prozent = std::min(100.0, m_prozent + blöcke * 100.0 / gesamt);
    anzeigen();
}

void Kontalex::anzeigen() {
    emit aktualisiert();
}

} // namespace vemo
