#pragma once

#include <QVariant>

namespace vemo {

// A date field of the older database, as its engine converted it: a date value, or a text in any
// spelling it accepted (ISO date and date-time, day.month. with two- or four-digit year). Empty
// gives Null; a text that is no date raises 13, as the old engine did, instead of becoming today.
QVariant altesDatum(const QVariant& wert);

} // namespace vemo
