#pragma once

#include <QString>

namespace vemo {

// A setting of the table init: the wert of the row with that name (of which only the first 50
// characters count), the default when there is no such row, an empty text when its wert is Null.
// Store errors are raised to the caller.
QString InitLesen(const QString& name, const QString& standard);

} // namespace vemo
