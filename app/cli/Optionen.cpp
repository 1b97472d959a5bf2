#include "Optionen.h"

const char* const Gebrauch =
    "usage: vemo0100 init-db DB [--demo]\n"
    "       vemo0100 --db DB [--language NAME] [--backup DIR] [--settings FILE] [--locale NAME]\n"
    "                [--replica ID] [--port N|PATH] [--type CODE] [--yes] COMMAND\n"
    "  read-file FILE          read a saved dump\n"
    "  receive                 transfer from the instrument on --port of type --type\n"
    "  grid [--json]           refresh and print the read-in rows with the state of each cell\n"
    "  assign --rows A[-B] --column 1..5 --key K\n"
    "  delete-rows --rows A[-B]\n"
    "  take-over               take assigned rows over into the inspection records\n";

std::optional<QString> Optionen::option(const QString& name) const {
    const int i = int(argumente.indexOf(name));
    if (i < 0 || i + 1 >= argumente.size())
        return std::nullopt;
    return argumente[i + 1];
}

bool Optionen::schalter(const QString& name) const {
    return argumente.contains(name);
}

std::optional<Optionen> optionenLesen(const QStringList& argumente, QString& fehler) {
    Optionen o;
    const struct {
        const char* name;
        QString Optionen::*ziel;
    } globale[] = {{"--db", &Optionen::db},         {"--language", &Optionen::sprache},
                   {"--backup", &Optionen::backup}, {"--settings", &Optionen::settings},
                   {"--locale", &Optionen::locale}, {"--replica", &Optionen::replica},
                   {"--port", &Optionen::port},     {"--type", &Optionen::typ}};
    int i = 0;
    while (i < argumente.size() && o.befehl.isEmpty()) {
        const QString& a = argumente[i];
        if (a == "--yes") {
            o.ja = true;
            ++i;
            continue;
        }
        bool erkannt = false;
        for (const auto& g : globale) {
            if (a == g.name) {
                if (i + 1 >= argumente.size()) {
                    fehler = a + " needs a value";
                    return std::nullopt;
                }
                o.*(g.ziel) = argumente[i + 1];
                i += 2;
                erkannt = true;
                break;
            }
        }
        if (erkannt)
            continue;
        if (a.startsWith("--")) {
            fehler = "unknown option " + a;
            return std::nullopt;
        }
        o.befehl = a;
        ++i;
    }
    o.argumente = argumente.mid(i);
    // --yes may also stand behind the command.
    if (o.argumente.removeAll("--yes") > 0)
        o.ja = true;
    if (o.befehl.isEmpty()) {
        fehler = "no command given";
        return std::nullopt;
    }
    return o;
}
