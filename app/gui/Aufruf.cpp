#include "Aufruf.h"

#include <QFileInfo>

const char* const FensterGebrauch = "usage: vemotrix [DB]\n"
                                    "       vemotrix --help | --version\n";

std::optional<Aufruf> aufrufLesen(const QStringList& argumente, QString& fehler) {
    if (argumente.contains("--help") || argumente.contains("-h"))
        return Aufruf{Aufruf::Anfrage::Gebrauch, {}};
    if (argumente.contains("--version"))
        return Aufruf{Aufruf::Anfrage::Version, {}};
    Aufruf aufruf;
    for (const QString& a : argumente) {
        if (a.startsWith('-') && a != "-") {
            fehler = "unknown option " + a;
            return std::nullopt;
        }
        if (!aufruf.datenbank.isEmpty()) {
            fehler = "one database only: " + a;
            return std::nullopt;
        }
        // The remembered database and the folder of the working files must not depend on the
        // folder the program was started from.
        aufruf.datenbank = QFileInfo(a).absoluteFilePath();
    }
    return aufruf;
}
