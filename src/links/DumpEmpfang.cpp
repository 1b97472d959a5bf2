#include "links/DumpEmpfang.h"

#include "platform/Blanks.h"

#include "core/Arbeitsdateien.h"
#include "core/CommPortAuswahl.h"
#include "core/ModulState.h"
#include "links/Form2.h"
#include "links/MyComm.h"
#include "links/Warten.h"
#include "platform/Codepage.h"
#include "platform/CommPort.h"
#include "platform/Ui.h"

#include <QFile>
#include <optional>

namespace vemo {
namespace {

const QString Leitungseinstellung = "2400,N,8,1";
// The one selector that runs the line without handshake.
const QString OhneHandshake = "Multitester = 0100-Varitron";
constexpr int Einschwingzeit = 200; // ms the port settles before its input is thrown away
constexpr int LeerzeilenAmEnde = 3;

std::unique_ptr<CommPort> portÖffnen() {
    auto port = neuerCommPort();
    port->setGerät(modulPortGerät());
    port->setSettings(Leitungseinstellung);
    port->setHandshaking(modul().Selektor() == OhneHandshake ? Handshake::Keins : Handshake::XonXoff);
    port->setPortOpen(true);
    gemeinsamerMyComm().Clear_fAbortOnError(*port);
    return port;
}

void dumpdateiÖffnen(QFile& datei) {
    datei.setFileName(arbeitsdatei(datei::Ruvo));
    if (!datei.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw fehler::mit(fehler::PfadZugriff, datei.fileName());
}

void schreiben(QFile& datei, const QByteArray& bytes) {
    if (datei.write(bytes) != bytes.size() || !datei.flush())
        throw fehler::mit(fehler::PfadZugriff, datei.fileName());
}

// Only blanks are trimmed, so a line of blanks before its CR LF counts as empty too.
bool nurZeilenende(const QByteArray& puffer) {
    return ohneRandblanks(puffer) == "\r\n";
}

// Nothing when the wait was left through Empfangsende (abort, or Enter before any data).
std::optional<QByteArray> aufErstesStückWarten(CommPort& port) {
    for (;;) {
        ui().DoEvents();
        if (modul().Empfangsende == 1)
            return std::nullopt;
        QByteArray stück = port.Input();
        if (!stück.isEmpty())
            return stück;
        ruhen();
    }
}

// Writes whole buffers as soon as they hold a line end. Three empty lines end the reception only
// when each came in a read of its own: the rule looks at a buffer as a whole, and a buffer that
// began with an earlier read is a line the instrument sent at its pace, such as the lines of blanks
// inside a dump, which arrive in many small reads. What stands in the buffer without a line end at
// the end is lost.
void zeilenEmpfangen(CommPort& port, Form2& form, QFile& datei, QByteArray puffer) {
    int leereZeilen = 0;
    bool eigenerLesevorgang = true; // the buffer holds one read only
    do {
        ui().DoEvents();
        const QByteArray stück = port.Input();
        eigenerLesevorgang = puffer.isEmpty() || (eigenerLesevorgang && stück.isEmpty());
        puffer += stück;
        if (puffer.contains("\r\n")) {
            form.zeilenAnzeigen(ausAnsi(puffer));
            schreiben(datei, puffer);
            ui().DoEvents();
            if (eigenerLesevorgang && nurZeilenende(puffer)) {
                if (++leereZeilen >= LeerzeilenAmEnde)
                    modul().Empfangsende = 1;
            } else {
                leereZeilen = 0;
            }
            puffer.clear();
        } else if (stück.isEmpty()) {
            ruhen();
        }
    } while (modul().Empfangsende != 1);
}

} // namespace

EmpfangsErgebnis dumpEmpfangen() {
    auto port = portÖffnen();
    const bool rtsVorher = port->RTSEnable();
    const bool dtrVorher = port->DTREnable();
    port->setRTSEnable(true);
    port->setDTREnable(false);
    wartenMitEreignissen(Einschwingzeit);
    port->Input();

    QFile datei;
    dumpdateiÖffnen(datei);

    Form2 form;
    form.wartenAnzeigen();
    ui().zeigeNichtModal(form);
    ui().DoEvents();
    port->InBufferLeeren();
    form.textLeeren();

    const std::optional<QByteArray> erstesStück = aufErstesStückWarten(*port);
    if (!erstesStück) {
        // The file stays behind empty; the lines are not restored, the port being closed.
        datei.close();
        port->setPortOpen(false);
        form.schließen();
        modul().Empfangsende = 0;
        return EmpfangsErgebnis::StillVerlassen;
    }

    form.datenKommen();
    zeilenEmpfangen(*port, form, datei, *erstesStück);

    port->setPortOpen(false);
    port->setRTSEnable(rtsVorher);
    port->setDTREnable(dtrVorher);
    datei.close();
    form.schließen();
    ui().DoEvents();
    return EmpfangsErgebnis::Weiter;
}

} // namespace vemo
