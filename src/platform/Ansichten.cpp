#include "platform/QtUi.h"

#include "grid/EinleseDatenAnsicht.h"

namespace vemo {

// One line a dialog: the controller's class name and how its view is made.
const std::map<QString, Ansichtsfabrik>& ansichten() {
    static const std::map<QString, Ansichtsfabrik> tabelle{
        {"vemo::EinleseDatenController", einleseDatenAnsicht},
    };
    return tabelle;
}

} // namespace vemo
