#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// The command line: global options, then a command and its own arguments.
struct Optionen {
    QString db;
    QString sprache;
    QString backup;
    QString settings;
    QString locale;
    QString replica;
    QString port;
    QString typ;
    bool ja = false;
    QString befehl;
    QStringList argumente; // what follows the command

    // The value of a command option ("--rows 1-3"), or nothing.
    std::optional<QString> option(const QString& name) const;
    bool schalter(const QString& name) const;
};

// Reads the arguments; a message on failure.
std::optional<Optionen> optionenLesen(const QStringList& argumente, QString& fehler);

extern const char* const Gebrauch;
