#pragma once

#include "logger/Zuordnen.h"

namespace vemo {

// Before a logger series is stored: a customer and a plant must be selected in the host
// (ListeKundeID, ListeAnlageID), else the user is told which is missing and nothing is written.
// Then the series becomes a new inspection of that plant (its key also in ListePrüfungID, so the
// host can follow) with its certificate record and equipment, and the head row in datlog37. In any
// mode of the data pool but the logger's nothing happens and the answer is true. Store errors are
// raised; a fault behind the new inspection leaves it in its table.
bool fnVorZuordnenAuswahlPrüfen(const Reihenkopf& kopf);

// One row of messreihe37 a point of the chart's first row, under the head row just written.
void messreiheSpeichern(const Diagramm& diagramm);

} // namespace vemo
