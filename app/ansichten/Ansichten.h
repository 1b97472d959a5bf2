#pragma once

#include "platform/QtUi.h"

namespace vemo {

// The views of the component's dialogs, by the class name of their controller.
const Ansichtstabelle& ansichten();

} // namespace vemo
