#include "Befehle.h"
#include "Optionen.h"

#include "platform/Version.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName("vemo0100");
    QCoreApplication::setApplicationVersion(vemo::komponentenVersion);
    QString fehler;
    const auto optionen = optionenLesen(app.arguments().mid(1), fehler);
    if (!optionen) {
        std::fprintf(stderr, "vemo0100: %s\n%s", fehler.toLocal8Bit().constData(), Gebrauch);
        return 2;
    }
    switch (optionen->anfrage) {
    case Anfrage::Gebrauch:
        std::fputs(Gebrauch, stdout);
        return 0;
    case Anfrage::Version:
        std::printf("vemo0100 %s\n", vemo::komponentenVersion.toLocal8Bit().constData());
        return 0;
    case Anfrage::Befehl:
        break;
    }
    return befehlAusführen(*optionen);
}
