#pragma once

#include <QString>

namespace vemo {

// An instrument field as value or limit text. "s4" gives the value, scaled by 1000 from "kA",
// "kOhm" and "GOhm" with its sign kept; "s4 & s5" the value followed by its unit; any other
// selector nothing. A trailing "!" is dropped.
QString NormWert(const QString& wert, const QString& einheit, const QString& operator_);

} // namespace vemo
