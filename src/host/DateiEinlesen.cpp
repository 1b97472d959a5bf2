#include "host/DateiEinlesen.h"

#include "core/Arbeitsdateien.h"
#include "core/Arbeitsdateisperre.h"
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "host/Dateinummern.h"
#include "host/KontalexTransfer.h"
#include "host/Transfer.h"
#include "links/SorelinErkennung.h"
#include "parsers/EinlesenVonDatei.h"
#include "platform/Textdatei.h"
#include "platform/Ui.h"
#include "store/Variant.h"

#include <QDir>
#include <QHash>
#include <utility>

namespace vemo {
namespace {

// The words of a first line and the selector they stand for; the first hit decides, so the longer
// model names come before the plain family word.
const std::pair<QString, QString> Erkennung[] = {
    {"OMNIVAR", selektor::Deutsch},       {"KONT EX", selektor::Deutsch},
    {"RUVO Gm", selektor::Deutsch},       {"ZEMAK 3710B", selektor::Zemak3710B},
    {"ZEMAK 3720", selektor::Zemak3720},  {"ZEMAK 3740", selektor::Zemak3740},
    {"Quentavoir", selektor::Quentavoir}, {"ZEMAK", selektor::Zemak},
};

QString selektorAusZeile(const QString& zeile) {
    for (const auto& [wort, s] : Erkennung)
        if (zeile.contains(wort, Qt::CaseInsensitive))
            return s;
    return selektor::Kontalex; // the one format without a recognisable first line
}

// How a chosen file becomes the working file of its family: copied over the family's raw file,
// unless the family takes it up with a step of its own.
void dateiÜbernehmen(const QString& pfad) {
    static const QHash<QString, void (*)(const QString&)> eigeneSchritte{
        {selektor::Kontalex, kontalexDateiÜbernehmen},
    };
    if (const auto schritt = eigeneSchritte.value(modul().Selektor()))
        schritt(pfad);
    else
        dateiKopieren(pfad, arbeitsdatei(rohdateiFür(modul().Selektor())));
}

void dateiEinlesen(const QString& pfad) {
    ModulState& m = modul();
    if (pfad.trimmed().isEmpty() || !backupVerzeichnisDa())
        return;
    const Arbeitsdateisperre sperre;
    if (!arbeitsdateienFrei(sperre))
        return;
    m.dateinameGewählt = pfad;
    GeräteErkennen(pfad);
    m.backupPfad = pfad;
    m.arbeitsquelle = pfad;
    // Each file opened uses up a number, although no copy is made.
    m.backupNummer = NächsteDateiNummer();
    dateiÜbernehmen(pfad);
    m.aktuellesPrüfgerät = 0;
    m.DatenloggerMode = false;
    EinlesenVonDatei();
    if (m.Abbruchmerker != 1 && m.DatenloggerMode)
        datenpoolVorbereiten();
}

// The numbered copies first; then a Kontalex transfer's raw bytes and its record file, which are
// read as they are; and any file, since a dump kept elsewhere may carry another name.
QString dumpFilter(const QString& messungen) {
    return QStringList{messungen + " (*.ser)|*.ser", xText("Kontalex-Rohdaten") + " (*.sep)|*.sep",
                       xText("Kontalex-Datensätze") + " (*.txt)|*.txt", xText("Alle Dateien") + " (*)|*"}
        .join('|');
}

} // namespace

void GeräteErkennen(const QString& pfad) {
    modul().arbeitsquelle = pfad;
    mitFalle([&] {
        if (CheckSorelinTyp(pfad)) {
            modul().Selektor() = selektor::Sorelin;
            return;
        }
        Textdatei f(pfad);
        QString zeile = f.zeileLesen();
        if (zeile.trimmed().isEmpty() || zeile.trimmed() == "0")
            zeile = f.zeileLesen();
        modul().Selektor() = selektorAusZeile(zeile);
    });
}

void EinlesenAusDatei() {
    ModulState& m = modul();
    ui().DoEvents();
    m.Abbruchmerker = 0;
    m.dateinameGewählt.clear();
    const QString titel = xText("Messungen");
    const auto pfad =
        ui().dateiÖffnen({titel, dumpFilter(titel), text(m.BackupVerzeichnis) + QDir::separator(), "ser"});
    if (!pfad)
        return; // cancelled: nothing changes
    dateiEinlesen(*pfad);
}

void EinlesenAusDateiName(const QString& dateiname) {
    ui().DoEvents();
    modul().Abbruchmerker = 0;
    modul().dateinameGewählt.clear();
    dateiEinlesen(dateiname);
}

} // namespace vemo
