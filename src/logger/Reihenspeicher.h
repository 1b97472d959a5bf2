#pragma once

#include "logger/Zuordnen.h"

namespace vemo {

// Before a logger series is stored: a customer and a plant must be selected in the host
// (ListeKundeID, ListeAnlageID), else the user is told which is missing and the answer is false.
// In any mode of the data pool but the logger's the answer is true. Writes nothing.
bool fnVorZuordnenAuswahlPrüfen();

// Stores the series as a new inspection of the selected plant (its key also in ListePrüfungID, so
// the host can follow) with its certificate record and equipment, the head row in datlog37 with
// the four captions as text, and one row of messreihe37 a point of the chart's first row, its value
// as a number. All of it or, when a fault comes (a point that is no number, an error of the store),
// nothing: the fault is raised and no inspection is left behind.
void reiheSpeichern(const Reihenkopf& kopf, const Diagramm& diagramm);

} // namespace vemo
