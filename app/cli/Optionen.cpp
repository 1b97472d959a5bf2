#include "Optionen.h"

#include <QCommandLineParser>
#include <utility>
#include <vector>

const char* const Gebrauch =
    "usage: vemo0100 init-db DB [--demo]\n"
    "       vemo0100 copy-db FROM TO  a whole database from one engine to the other, keys unchanged\n"
    "       vemo0100 --help | --version\n"
    "       vemo0100 --db DB [--language NAME] [--backup DIR] [--settings FILE] [--locale NAME]\n"
    "                [--workdir DIR] [--replica ID] [--port N|PATH] [--type CODE]\n"
    "                [--customer ID] [--plant ID] [--inspection ID] [--yes] COMMAND\n"
    "  read-file FILE [--start \"DD.MM.YYYY HH:MM:SS\"] [--json]\n"
    "                          read a saved dump; --start stores a logger series, --json prints it\n"
    "  receive [--start \"DD.MM.YYYY HH:MM:SS\"] [--json]\n"
    "                          transfer from the instrument on --port of type --type (Ctrl-C aborts);\n"
    "                          --start and --json as for read-file\n"
    "  grid [--json]           refresh and print the read-in rows with the state of each cell\n"
    "  assign --rows A[-B] --column 1..5 --key K     the grid's choice for a selection of rows\n"
    "  delete-rows --rows A[-B]\n"
    "  take-over               take assigned rows over into the inspection records\n"
    "  instrument [--set-id TEXT] [--sync-clock] [--clear-memory] [--code-splitting on|off]\n"
    "             [--customer-digits 1..3] [--board-digits 1..3]   settings of a 37xx instrument\n"
    "  assign-device --customer K [--plant A] [--inspection P]\n"
    "                          bulk assignment of the newest device's read-in rows\n"
    "  import SOURCE           bring an older database's inspections in\n"
    "  ports                   the serial ports of this computer, one a line (ports and detect\n"
    "                          need no --db)\n"
    "  detect [--port N|PATH]...\n"
    "                          which instrument answers on which port (every port of the computer\n"
    "                          when none is named): the 37xx family and the Kontalex family are\n"
    "                          asked; the printed dump (100) and the block transfer (102) send only\n"
    "                          on their key and cannot be found\n"
    "DB is a database file or a server's URI (postgresql://user@host:port/dbname). The working\n"
    "files lie in --workdir, else beside a database file, else in the folder of the settings.\n";

namespace {

const QCommandLineOption hilfe(QStringList{"h", "help"});
const QCommandLineOption version("version");
const QCommandLineOption ja("yes");

// An option that takes a value; the parser wants a name for the value to know it takes one.
QCommandLineOption mitWert(const QString& name) {
    return QCommandLineOption(name, QString(), "VALUE");
}

const std::vector<std::pair<QString, QString Optionen::*>> globaleOptionen{
    {"db", &Optionen::db},           {"language", &Optionen::sprache},  {"backup", &Optionen::backup},
    {"workdir", &Optionen::workdir}, {"settings", &Optionen::settings}, {"locale", &Optionen::locale},
    {"replica", &Optionen::replica}, {"port", &Optionen::port},         {"type", &Optionen::typ},
    {"customer", &Optionen::kunde},  {"plant", &Optionen::anlage},      {"inspection", &Optionen::prüfung},
};

// What a command takes: at most so many arguments, the options with a value, the switches.
struct Befehlsform {
    QString name;
    qsizetype argumente;
    QStringList werte;
    QStringList schalter;
};

const std::vector<Befehlsform> befehlsformen{
    {"init-db", 1, {}, {"demo"}},
    {"copy-db", 2, {}, {}},
    {"read-file", 1, {"start"}, {"json"}},
    {"receive", 0, {"start"}, {"json"}},
    {"grid", 0, {}, {"json"}},
    {"assign", 0, {"rows", "column", "key"}, {}},
    {"delete-rows", 0, {"rows"}, {}},
    {"take-over", 0, {}, {}},
    {"instrument",
     0,
     {"set-id", "code-splitting", "customer-digits", "board-digits"},
     {"sync-clock", "clear-memory"}},
    {"assign-device", 0, {"customer", "plant", "inspection"}, {}},
    {"import", 1, {}, {}},
    {"ports", 0, {}, {}},
    {"detect", 0, {"port"}, {}},
};

const Befehlsform* befehlsform(const QString& name) {
    for (const Befehlsform& f : befehlsformen)
        if (f.name == name)
            return &f;
    return nullptr;
}

bool istSchlüssel(const QString& text) {
    bool ok = false;
    text.toInt(&ok);
    return ok;
}

// The global options up to the command; what follows the command is left to it.
bool globaleLesen(const QStringList& argumente, Optionen& o, QStringList& rest, QString& fehler) {
    QCommandLineParser p;
    p.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    p.addOptions({hilfe, version, ja});
    for (const auto& [name, ziel] : globaleOptionen)
        p.addOption(mitWert(name));
    if (!p.parse(QStringList{"vemo0100"} + argumente)) {
        fehler = p.errorText();
        return false;
    }
    if (p.isSet(hilfe))
        o.anfrage = Anfrage::Gebrauch;
    else if (p.isSet(version))
        o.anfrage = Anfrage::Version;
    for (const auto& [name, ziel] : globaleOptionen)
        o.*ziel = p.value(name);
    for (const QString& schlüssel : {o.kunde, o.anlage, o.prüfung})
        if (!schlüssel.isEmpty() && !istSchlüssel(schlüssel)) {
            fehler = "--customer, --plant and --inspection need a key, not " + schlüssel;
            return false;
        }
    o.ja = p.isSet(ja);
    rest = p.positionalArguments();
    return true;
}

// The command's own arguments and options; rest begins with the command's name.
bool befehlLesen(const Befehlsform& form, const QStringList& rest, Optionen& o, QString& fehler) {
    QCommandLineParser p;
    p.addOptions({hilfe, ja});
    for (const QString& name : form.werte)
        p.addOption(mitWert(name));
    for (const QString& name : form.schalter)
        p.addOption(QCommandLineOption(name));
    if (!p.parse(rest)) {
        fehler = form.name + ": " + p.errorText();
        return false;
    }
    if (p.isSet(hilfe))
        o.anfrage = Anfrage::Gebrauch;
    o.ja = o.ja || p.isSet(ja);
    o.argumente = p.positionalArguments();
    if (o.argumente.size() > form.argumente) {
        fehler = form.name + ": unexpected argument " + o.argumente[form.argumente];
        return false;
    }
    for (const QString& name : form.werte)
        if (p.isSet(name))
            o.befehlsoptionen.insert("--" + name, p.values(name));
    for (const QString& name : form.schalter)
        if (p.isSet(name))
            o.befehlsoptionen.insert("--" + name, {});
    return true;
}

} // namespace

std::optional<QString> Optionen::option(const QString& name) const {
    const auto it = befehlsoptionen.find(name);
    if (it == befehlsoptionen.end())
        return std::nullopt;
    return it->isEmpty() ? QString() : it->last(); // a switch has no value
}

QStringList Optionen::optionen(const QString& name) const {
    return befehlsoptionen.value(name);
}

bool Optionen::schalter(const QString& name) const {
    return befehlsoptionen.contains(name);
}

std::optional<Optionen> optionenLesen(const QStringList& argumente, QString& fehler) {
    Optionen o;
    QStringList rest;
    if (!globaleLesen(argumente, o, rest, fehler))
        return std::nullopt;
    if (o.anfrage != Anfrage::Befehl)
        return o;
    if (rest.isEmpty()) {
        fehler = "no command given";
        return std::nullopt;
    }
    o.befehl = rest.first();
    const Befehlsform* form = befehlsform(o.befehl);
    if (!form) {
        fehler = "unknown command " + o.befehl;
        return std::nullopt;
    }
    if (!befehlLesen(*form, rest, o, fehler))
        return std::nullopt;
    return o;
}
