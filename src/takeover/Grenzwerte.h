#pragma once

#include "store/Recordset.h"

namespace vemo {

// The limit row of the current measurement row: found by its MessID, or built at the first need
// from the standard row, the insulation limit of the test voltage, the loop limits of the
// circuit's fuse and the trip times of the RCD factor. On return rsGrenzwert stands on it. A
// limit that cannot be had stays at its standard value or empty; nothing is shown.
void GrenzwertHolen(Recordset& rsGrenzwert, const Recordset& rsMessung);

} // namespace vemo
