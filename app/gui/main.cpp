#include "Aufruf.h"
#include "Hauptfenster.h"

#include "ansichten/Ansichten.h"
#include "host/Modul15a.h"
#include "platform/SettingsStore.h"
#include "platform/Version.h"

#include <QApplication>
#include <cstdio>

namespace {

QStringList argumenteVon(int argc, char** argv) {
    QStringList argumente;
    for (int i = 1; i < argc; ++i)
        argumente << QString::fromLocal8Bit(argv[i]);
    return argumente;
}

// The usage and the version are printed without a window system, so they are answered before the
// application connects to one.
std::optional<int> ohneFensterBeantwortet(const QStringList& argumente) {
    QString fehler;
    const auto aufruf = aufrufLesen(argumente, fehler);
    if (!aufruf || aufruf->anfrage == Aufruf::Anfrage::Fenster)
        return std::nullopt;
    if (aufruf->anfrage == Aufruf::Anfrage::Gebrauch)
        std::fputs(FensterGebrauch, stdout);
    else
        std::printf("vemotrix %s\n", vemo::komponentenVersion.toLocal8Bit().constData());
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (const auto status = ohneFensterBeantwortet(argumenteVon(argc, argv)))
        return *status;
    QApplication app(argc, argv);
    QApplication::setApplicationName("vemotrix");
    QApplication::setApplicationVersion(vemo::komponentenVersion);
    // The application has taken its own options (-platform, -style) out of the arguments.
    QString fehler;
    const auto aufruf = aufrufLesen(app.arguments().mid(1), fehler);
    if (!aufruf) {
        std::fprintf(stderr, "vemotrix: %s\n%s", fehler.toLocal8Bit().constData(), FensterGebrauch);
        return 2;
    }
    vemo::QtUi ui(vemo::ansichten());
    const auto einstellungen = vemo::QtSettingsStore::proBenutzer("vemotrix");
    vemo0100Modul15a komponente(ui, *einstellungen);
    Hauptfenster fenster(komponente, *einstellungen, aufruf->datenbank);
    ui.setHauptfenster(&fenster);
    fenster.show();
    return app.exec();
}
