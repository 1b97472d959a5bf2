#include "core/ModulState.h"

#include "platform/Ui.h"
#include "store/Transaktion.h"

#include <memory>

namespace vemo {

namespace {
std::unique_ptr<ModulState>& zustand() {
    static std::unique_ptr<ModulState> z = std::make_unique<ModulState>();
    return z;
}
} // namespace

ModulState& modul() {
    return *zustand();
}

void modulNeuLaden() {
    Ui* u = modul().ui;
    SettingsStore* s = modul().settings;
    // The old state goes first, so that the new one's number locale is the one in force.
    zustand().reset();
    zustand() = std::make_unique<ModulState>();
    modul().ui = u;
    modul().settings = s;
}

Ui& ui() {
    if (!modul().ui)
        throw Fehler(91, "Keine Oberfläche zugewiesen");
    return *modul().ui;
}

SettingsStore& settings() {
    if (!modul().settings)
        throw Fehler(91, "Kein Einstellungsspeicher zugewiesen");
    return *modul().settings;
}

Datenbank& db() {
    return modul().db;
}

QString xText(const QString& text) {
    return modul().sprachen.xText(text);
}

void fehlerZeigen(const Fehler& f) {
    ++modul().gezeigteFehler;
    if (modul().ui)
        modul().ui->MsgBox(f.meldung(), modul().anwendungstitel);
}

bool mitFalle(const std::function<void()>& routine) {
    try {
        routine();
        return true;
    } catch (const Fehler& f) {
        fehlerZeigen(f);
    } catch (const std::exception& e) {
        fehlerZeigen(Fehler(51, QString("Interner Fehler: ") + e.what()));
    } catch (...) {
        fehlerZeigen(Fehler(51, "Interner Fehler"));
    }
    return false;
}

bool mitSchrittfalle(const std::function<void()>& routine) {
    try {
        routine();
        return true;
    } catch (const Fehler& f) {
        if (istSpeicherausfall(f))
            throw;
        fehlerZeigen(f);
    } catch (const std::exception& e) {
        fehlerZeigen(Fehler(51, QString("Interner Fehler: ") + e.what()));
    }
    return false;
}

} // namespace vemo
