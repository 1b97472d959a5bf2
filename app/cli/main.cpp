#include "Befehle.h"
#include "Optionen.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName("vemo0100");
    QString fehler;
    const auto optionen = optionenLesen(app.arguments().mid(1), fehler);
    if (!optionen) {
        std::fprintf(stderr, "vemo0100: %s\n%s", fehler.toLocal8Bit().constData(), Gebrauch);
        return 2;
    }
    return befehlAusführen(*optionen);
}
