#pragma once

#include "Optionen.h"

#include "host/Modul15a.h"
#include "platform/KonsolenUi.h"
#include "platform/SettingsStore.h"

#include <memory>

// The component as the command line sets it up: console Ui, the settings of --settings or of the
// user, and the properties from the global options, written in the order the host writes them.
class Sitzung {
public:
    explicit Sitzung(const Optionen& o);
    // False when the database could not be opened (the reason has been shown).
    bool bereit() const;
    // The exit status of the run: 1 when it failed or ended with the abort flag set.
    int ergebnis() const;

    vemo0100Modul15a& komponente() { return *m_komponente; }

private:
    std::unique_ptr<vemo::KonsolenUi> m_ui;
    std::unique_ptr<vemo::SettingsStore> m_settings;
    std::unique_ptr<vemo0100Modul15a> m_komponente;
};
