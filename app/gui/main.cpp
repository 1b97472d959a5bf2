#include "Hauptfenster.h"

#include "ansichten/Ansichten.h"
#include "host/Modul15a.h"
#include "platform/SettingsStore.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("vemotrix");
    vemo::QtUi ui(vemo::ansichten());
    const auto einstellungen = vemo::QtSettingsStore::proBenutzer("vemotrix");
    vemo0100Modul15a komponente(ui, *einstellungen);
    Hauptfenster fenster(komponente, *einstellungen);
    ui.setHauptfenster(&fenster);
    fenster.show();
    return app.exec();
}
