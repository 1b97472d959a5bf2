#pragma once

#include <QtGlobal>

namespace vemo::sim {

// The pace of an instrument's sending: the line speed it keeps, and for a printout the pause
// before each of the closing empty lines, so that each arrives in a read of its own.
struct Takt {
    int baud = 2400;           // 0: as fast as the line takes it
    int leerzeilenPause = 250; // ms
};

// How an instrument that answers queries misbehaves on purpose, for the tests.
struct Störungen {
    int fehlendeZeichen = 0;   // characters each memory reply lacks at the end of its records
    int kurzeAntworten = -1;   // how many memory replies lack them; -1: every one
    qsizetype stilleNach = -1; // characters of a memory reply after which the instrument falls silent
    int stilleMs = 0;          // how long it stays silent; 0: the rest of the reply never comes
    int ausgestecktAb = -1;    // ms after its start at which its cable is pulled; -1: never
    int ausgestecktMs = 0;     // how long the cable stays out; 0: for good
};

struct Verhalten {
    Takt takt;
    Störungen störungen;
};

} // namespace vemo::sim
