#pragma once

#include <QString>

namespace vemo {

class SettingsStore;

// The workplace's folder for its working files, the numbered copies' counter and the word tables:
// the one the user chose, else the folder of a database file, else (a server, which has no folder
// the workplaces share) the folder of the workplace's settings. It is made when missing and given
// the component's word tables when it has none, so that a new workplace starts with its texts.
// Raises 76 when the folder cannot be made.
QString arbeitsordner(const QString& datenbankName, const QString& gewählt, const SettingsStore& settings);

} // namespace vemo
