#include "host/KontalexTransfer.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "host/Dateinummern.h"
#include "host/VerteilerListe.h"
#include "links/Kontalex.h"
#include "links/KontalexSpeicher.h"
#include "links/KontalexText.h"
#include "platform/Ui.h"

#include <QFile>

namespace vemo {

Ausgang kontalexÜbertragen() {
    Kontalex dialog;
    if (dialog.laden())
        ui().zeigeModal(dialog);
    if (dialog.abgebrochen())
        return Ausgang::Verlassen;
    if (modul().Abbruchmerker != 1)
        VerteilerListeSchreiben();
    return Ausgang::Weiter;
}

void kontalexDateiÜbernehmen(const QString& pfad) {
    QFile quelle(pfad);
    if (!quelle.open(QIODevice::ReadOnly))
        throw fehler::mit(QFile::exists(pfad) ? fehler::PfadZugriff : fehler::DateiNichtGefunden, pfad);
    const auto speicher = kontalexSpeicherLesen(quelle.readAll());
    if (!speicher) {
        dateiKopieren(pfad, arbeitsdatei(datei::Rs232Txt));
    } else {
        dateiKopieren(pfad, arbeitsdatei(datei::Rs232Sep));
        const QString text = arbeitsdatei(datei::Rs232Txt);
        // A memory that held no block leaves the end line alone, as after the transfer.
        const QByteArray dump = speicher->blockzahl() == 0 ? QByteArray() : speicher->dump();
        if (kontalexTextSchreiben(text, geräteinfoLesen(speicher->wer), dump))
            loggerKopfSchreiben(text);
    }
    VerteilerListeSchreiben();
}

} // namespace vemo
