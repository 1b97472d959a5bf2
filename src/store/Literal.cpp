#include "store/Literal.h"

namespace vemo {

QString literal(const QString& text) {
    return '\'' + QString(text).replace('\'', "''") + '\'';
}

} // namespace vemo
