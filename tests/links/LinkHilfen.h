#pragma once

// The port pairs and the simulator moved to the shared test support; the window program's tests
// still reach them under this name.
#include "support/Leitung.h"
