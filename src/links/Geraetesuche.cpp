#include "links/Geraetesuche.h"

#include "core/CommPortAuswahl.h"
#include "core/Geraetetypen.h"
#include "links/KontalexText.h"
#include "links/ZemakVarianten.h"
#include "platform/Codepage.h"
#include "platform/CommPort.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <memory>

namespace vemo {
namespace {

const QString Leitungseinstellung = "9600,N,8,1"; // both families that can be asked talk so
constexpr int Einschwingzeit = 200; // ms the port settles before what waits in it is thrown away
constexpr int Antwortfrist = 300;   // ms a 37xx instrument has for its identification
constexpr int Stillezeit = 40;      // ms without a byte that end a Kontalex answer
constexpr int Kontalexfrist = 400;  // ms a Kontalex instrument has to begin its answer
constexpr int Höchstdauer = 2000;   // ms an answer may take at all: a line full of noise ends too
constexpr int KontalexTyp = 101;
const QByteArray Kennungsfrage = "ID\r";
const QByteArray Werfrage = "MWH";

void ruhen() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QThread::msleep(2);
}

std::unique_ptr<CommPort> öffnen(const QString& gerät) {
    auto port = neuerCommPort();
    port->setGerät(gerät);
    port->setSettings(Leitungseinstellung);
    port->setHandshaking(Handshake::Keins);
    port->setPortOpen(true);
    QElapsedTimer uhr;
    uhr.start();
    while (uhr.elapsed() < Einschwingzeit)
        ruhen();
    port->Input();
    return port;
}

// The line of the reply that holds one of the family's identifications, and its variant.
std::pair<const Zemakvariante*, QByteArray> zemakErkennen(const QByteArray& antwort) {
    for (const QByteArray& zeile : antwort.split('\r'))
        for (const Zemakvariante& v : zemakVarianten())
            if (QLatin1String(zeile).contains(QLatin1String(v.kennung), Qt::CaseInsensitive))
                return {&v, zeile};
    return {nullptr, {}};
}

int typVon(const QString& selektor) {
    for (const Gerätetyp& t : gerätetypen())
        if (t.selektor == selektor)
            return t.code;
    return 0;
}

// A 37xx instrument answers with its name, version and serial number, comma-separated, and CR.
bool alsZemakFragen(CommPort& port, Gerätefund& fund) {
    port.Output(Kennungsfrage);
    QByteArray antwort;
    QElapsedTimer uhr;
    uhr.start();
    while (uhr.elapsed() <= Antwortfrist) {
        antwort += port.Input();
        if (const auto [variante, zeile] = zemakErkennen(antwort); variante && antwort.endsWith('\r')) {
            const QList<QByteArray> felder = zeile.split(',');
            fund.typ = typVon(variante->selektor);
            fund.name = ausAnsi(felder.value(0).trimmed()) + " " + ausAnsi(felder.value(1).trimmed());
            return true;
        }
        ruhen();
    }
    return false;
}

// A Kontalex answer has no end mark: it is whole when the line has been silent for a while.
QByteArray kontalexAntwort(CommPort& port) {
    port.InBufferLeeren();
    port.Output(Werfrage);
    QByteArray antwort;
    QElapsedTimer gesamt;
    QElapsedTimer seitLetztem;
    gesamt.start();
    seitLetztem.start();
    while (gesamt.elapsed() < Höchstdauer) {
        if (const QByteArray neu = port.Input(); !neu.isEmpty()) {
            antwort += neu;
            seitLetztem.restart();
        }
        if (antwort.isEmpty() ? gesamt.elapsed() > Kontalexfrist : seitLetztem.elapsed() >= Stillezeit)
            break;
        ruhen();
    }
    return antwort;
}

// Its answer is fields ended by byte 0, the model's name the third.
bool alsKontalexFragen(CommPort& port, Gerätefund& fund) {
    const QByteArray antwort = kontalexAntwort(port);
    if (!antwort.contains('\0'))
        return false;
    const QString modell = geräteinfoLesen(antwort).value(0);
    if (modell.isEmpty())
        return false;
    fund.typ = KontalexTyp;
    fund.name = modell;
    return true;
}

} // namespace

QString Gerätefund::zeile() const {
    if (!fehler.isEmpty())
        return port + ": cannot be opened: " + fehler;
    if (!gefunden())
        return port + ": nothing answered";
    return port + ": " + QString::number(typ) + " " + name;
}

Gerätefund gerätSuchen(const QString& gerät) {
    Gerätefund fund{gerät, 0, {}, {}};
    try {
        const auto port = öffnen(gerät);
        if (!alsZemakFragen(*port, fund))
            alsKontalexFragen(*port, fund);
        port->setPortOpen(false);
    } catch (const Fehler& f) {
        fund.fehler = f.meldung();
    }
    return fund;
}

} // namespace vemo
