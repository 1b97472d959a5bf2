#pragma once

#include <QDateTime>

namespace vemo {

// The moment of a 37xx instrument's clock value: the seconds its clock has counted since
// 1 January 2000 00:00:00, as local date and time.
QDateTime ZeitAusSekunden(qint64 sekunden);

} // namespace vemo
