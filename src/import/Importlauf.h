#pragma once

#include <QString>
#include <functional>

namespace vemo {

class Quellzeile;

// What the import shows while it runs: the number of source rows, and how far it has come.
struct Importstand {
    long anzahl = 0;
    int prozent = 0;
};

// The import of an older database: each row of its table kunden becomes an inspection, under the
// customer and plant found again or added, with its equipment and measurements. Nothing is undone:
// rows brought in before a failure stay, and a second run adds every inspection again.
class Importlauf {
public:
    // Shown as soon as the source is open, and after each row whose percentage is new.
    std::function<void(const Importstand&)> beiFortschritt;

    // The result code: 0 when all arrived; the number of the store's error that ended the run, which
    // the user has been shown; Messtextfehler when rows came in without their faulty measurements.
    int ausführen(const QString& quellpfad);

    static constexpr int Messtextfehler = -1;

private:
    struct Ziele;
    bool zeileImportieren(const Quellzeile& zeile, Ziele& ziele);
};

} // namespace vemo
