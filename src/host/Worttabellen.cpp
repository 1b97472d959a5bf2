#include "host/Worttabellen.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "platform/SettingsStore.h"
#include "platform/Textdatei.h"
#include "platform/Ui.h"

namespace vemo {
namespace {

// Entries from index 1 on; the entry past the bound is an error, as the fixed table has no room.
QStringList tabelleLesen(const QString& name, int größe) {
    QStringList t(1);
    Textdatei f(arbeitsdatei(name));
    while (!f.eof()) {
        if (t.size() > größe)
            throw fehler::mit(fehler::IndexAußerhalb, name);
        t << f.zeileLesen();
    }
    return t;
}

} // namespace

void worttabellenLaden() {
    ui().sanduhr(true);
    try {
        modul().mnuTexte = tabelleLesen(datei::Mnu, 500);
        modul().mulTexte = tabelleLesen(datei::Mul, 30);
        ui().sanduhr(false);
        settings().SaveSetting("Application", "Directory", modul().Datenbankverzeichnis);
    } catch (const Fehler& f) {
        ui().sanduhr(false);
        if (f.nummer() != fehler::PfadZugriff)
            ui().MsgBox(QString::number(f.nummer()) + "   " + f.beschreibung(), modul().anwendungstitel);
    }
}

} // namespace vemo
