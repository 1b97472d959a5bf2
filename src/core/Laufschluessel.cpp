#include "core/Laufschluessel.h"

#include "core/ModulState.h"

namespace vemo {

Laufschlüssel& laufschlüssel() {
    return modul().laufschlüssel;
}

} // namespace vemo
