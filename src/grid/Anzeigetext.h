#pragma once

#include <QString>
#include <QVariant>

namespace vemo {

// Blanks cut at both ends, and only blanks: the way the grid trims the texts it joins.
QString ohneRandblanks(const QString& text);

// Code, Nr and Name of a plant, board or circuit joined by blanks, as the grid and its lists show
// a record; a Null field reads as empty.
QString codeNrName(const QVariant& code, const QVariant& nr, const QVariant& name);

} // namespace vemo
