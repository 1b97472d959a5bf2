#pragma once

#include "Optionen.h"

// Runs the command; the exit status: 0, or 1 when the run failed or ended with the abort flag set,
// 2 for a command line that cannot be understood.
int befehlAusführen(const Optionen& o);
