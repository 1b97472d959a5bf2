#pragma once

#include <QString>

namespace vemo {

// The old database keeps postcode and town in one line (Adresse3). The postcode is the first run of
// characters from "(" to ">" (digits and the signs between them), whatever stands before it;
// the town is what follows it.
QString sPLZ(const QString& adresse3);
QString sStadt(const QString& adresse3);

} // namespace vemo
