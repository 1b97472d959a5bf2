#pragma once

#include "parsers/Einlesebloecke.h"

namespace vemo {

// The 37xx instruments keep two four-digit codes per measurement. With code splitting on, the user
// divides them by digits: the first code into customer and plant, the second into board and
// circuit; the digits of customer and board are settings of the table init.
struct Codeaufteilung {
    bool an = false;
    qint32 kundenstellen = 2;
    qint32 verteilerstellen = 2;
};

// The three settings, read once per read-in. A setting that is not a truth value or a whole number
// raises 13 (so does an empty one), a number beyond 32 bits 6.
Codeaufteilung codeaufteilungLesen();

// Divides the board and circuit codes just written to the head: with K and V digits, board "1234"
// and circuit "5678" give customer "12", plant "034", board "0056" and circuit "0078". K of 4 or
// more leaves the plant as it was; V of 4 or more leaves no board digits ("???" where none are left).
void codeAufteilen(Blockkopf& kopf, const Codeaufteilung& aufteilung);

} // namespace vemo
