#pragma once

#include <QString>

namespace vemo {

// The component's version as the build gives it: the command line tells it, and the language
// database notes it beside every text the component adds, so that a translator sees which
// version brought a text.
inline const QString komponentenVersion = QStringLiteral(VEMO0100_VERSION);

} // namespace vemo
