#include "host/VerteilerListe.h"

#include "conversion/KontalexBericht.h"
#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "core/Sanduhr.h"
#include "core/Satzdatei.h"
#include "host/Dateinummern.h"
#include "platform/SettingsStore.h"
#include "platform/Ui.h"

#include <QFile>
#include <QFileInfo>

namespace vemo {
namespace {

const QString Abschnitt = "Application";
const QString Schlüssel = "LastFile";

// A line of the list: the provisional number and the block head, every value quoted.
QByteArray listenzeile(const QString& nummer, const Satz& kopf) {
    return satzzeile(
        {nummer, kopf.a[0], kopf.a[1], kopf.a[2], kopf.a[3], kopf.a[4], kopf.a[5], kopf.a[6], kopf.a[7]});
}

void listeSchreiben() {
    Satzleser leser(arbeitsdatei(datei::Rs232Txt));
    QFile liste(arbeitsdatei(datei::Verteil));
    if (!liste.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw fehler::mit(fehler::PfadZugriff, liste.fileName());
    Satz satz;
    try {
        do {
            leser.lesen(satz);
            if (satz.a1() != kontalexsatz::Blockmarke)
                continue;
            leser.lesen(satz);
            const QByteArray zeile =
                satz.a1().isEmpty() ? QByteArray() : listenzeile(NächsteSepNummer(), satz);
            if (liste.write(zeile) != zeile.size())
                throw fehler::mit(fehler::PfadZugriff, liste.fileName());
        } while (satz.a1() != kontalexsatz::Endemarke);
    } catch (const Fehler& f) {
        // The record file may end without its end line: that ends the list too.
        if (f.nummer() != fehler::HinterDateiende)
            throw;
    }
}

// The working dump is this record file's rendering or nothing: a dump of an earlier run left there
// would be read in its place, a logger series for a file that is no dump at all.
void arbeitsdumpLeeren() {
    QFile ruvo(arbeitsdatei(datei::Ruvo));
    if (!ruvo.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw fehler::mit(fehler::PfadZugriff, ruvo.fileName());
}

} // namespace

void VerteilerListeSchreiben() {
    if (!mitFalle(arbeitsdumpLeeren))
        return;
    const bool fertig = mitFalle([] {
        const Sanduhr sanduhr;
        modul().selektorTabelle[22] = settings().GetSetting(Abschnitt, Schlüssel, "00000000");
        const QString gemerkt = modul().selektorTabelle[22];
        listeSchreiben();
        // The numbers of the list were provisional: they use nothing up.
        modul().selektorTabelle[22] = gemerkt;
        settings().SaveSetting(Abschnitt, Schlüssel, gemerkt);
    });
    if (!fertig)
        return;
    const QString nummer = KontalexBericht(NächsteDateiNummer);
    const QString bericht = ohneGroßKlein(modul().Datenbankverzeichnis, nummer + ".SEP");
    if (!nummer.isEmpty() && QFileInfo::exists(bericht))
        mitFalle([&] { dateiKopieren(bericht, arbeitsdatei(datei::Ruvo)); });
}

} // namespace vemo
