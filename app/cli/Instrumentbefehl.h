#pragma once

#include "Optionen.h"

#include <QString>
#include <QTextStream>
#include <optional>

// What "instrument" is asked to do with a 37xx instrument and with the code splitting settings.
struct Instrumentauftrag {
    std::optional<QString> kennung;
    bool uhrStellen = false;
    bool speicherLöschen = false;
    std::optional<bool> codeSplitting;
    std::optional<int> kundenstellen;
    std::optional<int> verteilerstellen;

    bool ändertAufteilung() const { return codeSplitting || kundenstellen || verteilerstellen; }
    bool sprichtMitGerät() const { return kennung || uhrStellen || speicherLöschen; }
    // Without any option it shows the instrument; the code splitting alone needs none.
    bool brauchtGerät() const { return sprichtMitGerät() || !ändertAufteilung(); }
};

// The command's options; nothing, and the reason in fehler, when a value is not one it takes.
std::optional<Instrumentauftrag> instrumentauftragLesen(const Optionen& o, QString& fehler);

// Runs the settings dialog headless: polls the instrument on the component's port as the dialog
// does, gives it the commands asked for, polls once more and prints what the dialog then shows,
// "instrument: NAME VERSION", "serial: SERIAL" and "clock: DD.MM.YYYY HH:MM:SS". It ends as the
// dialog closes, writing the code splitting to init. 1 when no instrument answered.
int instrumentBefehl(const Instrumentauftrag& auftrag, QTextStream& aus);
