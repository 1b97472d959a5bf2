#include "grid/Sprachregel.h"

#include "core/ModulState.h"

namespace vemo {

bool englischUK() {
    return modul().sprachen.Sprache() == "English (United Kingdom)";
}

} // namespace vemo
