#pragma once

#include "takeover/Handler.h"

#include <QString>
#include <QStringList>

namespace vemo {

// The routine that takes the function name over, by exact name; none for a name that goes the
// general way to its column.
handler::Handler handlerFür(const QString& funktion);

// Every function name that has a routine of its own.
QStringList namenMitHandler();

} // namespace vemo
