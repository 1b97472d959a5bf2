#pragma once

#include <QString>

namespace vemo {

// A setting of the table init: the wert of the row with that name (of which only the first 50
// characters count), the default when there is no such row, an empty text when its wert is Null.
// Store errors are raised to the caller.
QString InitLesen(const QString& name, const QString& standard);

// Writes a setting of the table init: the row with that name gets the value as text, or is added
// with the name cut to 50 characters. Store errors are raised to the caller.
void InitSchreiben(const QString& name, const QString& wert);

} // namespace vemo
