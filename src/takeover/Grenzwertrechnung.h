#pragma once

#include "core/NormWert.h"

#include <QString>

namespace vemo {

// Small helpers around limit values. Limits are text with their comparison sign in front.

// The loop impedance limit for a fuse that breaks at the given current (">" and amperes): "<" and
// 230 V over that current, rounded half up to two decimals; empty when the current is no number
// above 0.
QString LoopGrenzwert(const QString& abschaltstrom);

// The number of a test current factor: the last run of digits, "/" and their kin, so "1/2" from
// "x1/2" and "2" from "S x2"; empty when the text has none.
QString FaktorZahl(const QString& fiFaktor);

// The earth resistance an RCD allows at a touch voltage limit ("<" and volts) and its rated
// current in mA: "<" and ohms to one decimal; empty when either is no number or the voltage is
// not above 0, or the rated current is 0.
QString GetRCD_RE(const QString& ub, const QString& fiIdn);

} // namespace vemo
