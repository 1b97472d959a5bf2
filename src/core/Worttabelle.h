#pragma once

#include <QString>

namespace vemo {

// An entry of the word table \Ruvo.MNU, counted from 1; empty where the table has none.
QString mnuText(int nummer);

} // namespace vemo
