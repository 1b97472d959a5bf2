#pragma once

#include "grid/ComboListe.h"

#include <QString>
#include <functional>

namespace vemo {

class EinleseDatenController;

// The take-over of assigned rows into the inspection records, run by the button Übernehmen. It
// is built elsewhere and plugged in here; the form shows its progress and calls its refresh.
using Datenübernahme = std::function<void(EinleseDatenController&)>;

struct Fortschritt {
    int Min = 0;
    int Max = 100;
    int Value = 0;
    bool sichtbar = false;
};

// Which controls the user can use.
struct Schaltflächen {
    bool übernehmen = false; // Übernehmen
    bool löschen = false;    // ComLöschen and mnuLöschen
    bool zuordnung = false;  // mnuZuordnung
    bool schließen = true;   // Schließen
    bool editResults = false;
    bool editResultsSichtbar = false;
};

// The captions of the form's controls, translated at load.
struct Beschriftungen {
    QString titel;
    QString übernehmen;
    QString löschen;
    QString schließen;
    QString editResults;
    QString hilfetext;
    QString menü;
    QString zuordnung;
    QString menüLöschen;
};

// The combo box laid over the cell being edited.
struct ComboEdit {
    bool sichtbar = false;
    bool listeOffen = false; // the list dropped down
    QList<ComboEintrag> einträge;
    int listIndex = -1;
    QString text;
};

} // namespace vemo
