#pragma once

#include <QString>
#include <QVariant>

namespace vemo {

// The greatest earth resistance measured in an inspection, for its Erdungswiderstand: the greatest
// plain value, unless an overflow value (">" and a number) is greater, which then stands with its
// sign. Empty when the inspection has none. Errors of the store go to the caller.
QString GetErdWertMax(const QVariant& prüfungID);

} // namespace vemo
