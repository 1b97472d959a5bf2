#include "platform/QtUi.h"

#include "links/Form2Ansicht.h"

namespace vemo {

// One line a dialog: the controller's class name and how its view is made.
const std::map<QString, Ansichtsfabrik>& ansichten() {
    static const std::map<QString, Ansichtsfabrik> tabelle{
        {"vemo::Form2", &Form2Ansicht::erstellen},
    };
    return tabelle;
}

} // namespace vemo
