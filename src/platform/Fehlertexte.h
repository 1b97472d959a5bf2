#pragma once

#include <QString>

namespace vemo::fehlertexte {

// The language the descriptions of the store's, files' and ports' errors are shown in. Every
// error is raised with its German description; under English the description is given in English
// when it is one of the known texts, its details (a path, the store's own words) kept.
enum class Sprache { Deutsch, Englisch };

void wählen(Sprache sprache);
Sprache gewählt();

// Lives in the module state: a component loaded anew speaks German until its language is written.
struct Auswahl {
    Auswahl() { wählen(Sprache::Deutsch); }
    ~Auswahl() { wählen(Sprache::Deutsch); }
    Auswahl(const Auswahl&) = delete;
    Auswahl& operator=(const Auswahl&) = delete;
};

// The description of error nummer in the chosen language.
QString inGewählterSprache(int nummer, const QString& deutsch);

} // namespace vemo::fehlertexte
