#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

// What a command line asks for: a command to run, or the usage or the version printed.
enum class Anfrage { Befehl, Gebrauch, Version };

// The command line: global options, then a command with its own arguments and options.
struct Optionen {
    Anfrage anfrage = Anfrage::Befehl;
    QString db;
    QString sprache;
    QString backup;
    QString workdir;
    QString settings;
    QString locale;
    QString replica;
    QString port;
    QString typ;
    // The host's list selection: customer, plant and inspection keys.
    QString kunde;
    QString anlage;
    QString prüfung;
    bool ja = false;
    QString befehl;
    QStringList argumente; // the command's own arguments
    // By name ("--rows"), each value the option was given; a switch holds none.
    QMap<QString, QStringList> befehlsoptionen;

    // The value of a command option ("--rows 1-3"), the last one when given more often; or nothing.
    std::optional<QString> option(const QString& name) const;
    // Every value of an option that may be given more than once ("--port A --port B").
    QStringList optionen(const QString& name) const;
    bool schalter(const QString& name) const;
};

// Reads the arguments that follow the program's name. Global options stand before the command and
// the command's own options behind it; --yes and --help may stand on either side. Nothing, with a
// message, for an unknown command or option, a missing value or an argument too many.
std::optional<Optionen> optionenLesen(const QStringList& argumente, QString& fehler);

extern const char* const Gebrauch;
