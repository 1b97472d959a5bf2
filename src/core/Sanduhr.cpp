#include "core/Sanduhr.h"

#include "core/ModulState.h"
#include "platform/Ui.h"

namespace vemo {

Sanduhr::Sanduhr() {
    if (modul().ui)
        modul().ui->sanduhr(true);
}

Sanduhr::~Sanduhr() {
    if (modul().ui)
        modul().ui->sanduhr(false);
}

} // namespace vemo
