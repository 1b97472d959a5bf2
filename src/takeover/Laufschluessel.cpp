#include "takeover/Laufschluessel.h"

namespace vemo {

Laufschlüssel& laufschlüssel() {
    static Laufschlüssel schlüssel;
    return schlüssel;
}

} // namespace vemo
