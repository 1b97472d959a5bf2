#pragma once

#include "store/Recordset.h"

#include <QString>

namespace vemo {

// The reason of an inspection as the user reads it: the label of the first of Grund1 to Grund3
// that is set, else the free text of Grund4 (or its label, when the free text is that label).
QString GrundText(const Recordset& prüfung);

} // namespace vemo
