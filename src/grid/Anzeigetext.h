#pragma once

#include "platform/Blanks.h"

#include <QString>
#include <QVariant>

namespace vemo {

// Code, Nr and Name of a plant, board or circuit joined by blanks, as the grid and its lists show
// a record; a Null field reads as empty.
QString codeNrName(const QVariant& code, const QVariant& nr, const QVariant& name);

} // namespace vemo
