#pragma once

#include <QString>

namespace vemo {

// Reading a saved dump: the path from the open-file dialog, or given.
void EinlesenAusDatei();
void EinlesenAusDateiName(const QString& dateiname);

// Sets the selector from a file: a block dump by its start mark, else by the words of its first
// line (the second when the first is empty or "0"). A file that cannot be read is reported and
// leaves the selector as it was.
void GeräteErkennen(const QString& pfad);

} // namespace vemo
