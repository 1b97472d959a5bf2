#include "Befehle.h"

#include "store/Fehler.h"
#include "store/Schema.h"

#include <QDir>
#include <QFileInfo>
#include <cstdio>
#include <functional>
#include <map>

namespace {

void ausgeben(const QString& text) {
    std::fputs(text.toLocal8Bit().constData(), stderr);
    std::fputs("\n", stderr);
}

int initDb(const Optionen& o) {
    const QString pfad = o.argumente.value(0);
    if (pfad.isEmpty() || pfad.startsWith("--")) {
        ausgeben("vemo0100: init-db needs the path of the database");
        return 2;
    }
    try {
        QDir().mkpath(QFileInfo(pfad).absolutePath());
        vemo::datenbankAnlegen(pfad, o.schalter("--demo"));
    } catch (const vemo::Fehler& f) {
        ausgeben("vemo0100: " + f.meldung());
        return 1;
    }
    return 0;
}

} // namespace

int befehlAusführen(const Optionen& o) {
    static const std::map<QString, std::function<int(const Optionen&)>> befehle{
        {"init-db", initDb},
    };
    const auto it = befehle.find(o.befehl);
    if (it == befehle.end()) {
        ausgeben("vemo0100: unknown command " + o.befehl + "\n" + Gebrauch);
        return 2;
    }
    return it->second(o);
}
