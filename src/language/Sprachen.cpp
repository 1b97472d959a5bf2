#include "language/Sprachen.h"

namespace vemo {

QString Sprachen::xText(const QString& text, const QString&) {
    return text;
}

} // namespace vemo
