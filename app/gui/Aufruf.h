#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// What the window program's command line asks for: the window, with the database it names, or
// the usage or the version printed, as the command line program answers them.
struct Aufruf {
    enum class Anfrage { Fenster, Gebrauch, Version };
    Anfrage anfrage = Anfrage::Fenster;
    QString datenbank; // absolute; empty when none is named
};

extern const char* const FensterGebrauch;

// Reads the arguments that follow the program's name; --help and --version win wherever they
// stand. Nothing, with a message, for an unknown option or a second database.
std::optional<Aufruf> aufrufLesen(const QStringList& argumente, QString& fehler);
