#pragma once

#include "grid/ComboListe.h"

#include <functional>

namespace vemo {

// Stores a choice of grid column spalte (1 customer to 5 circuit) for the read-in rows from
// ersteZeile to letzteZeile, counted from 1. The first row is the reference: a row of the range
// is changed only where it shares the reference's keys above that level and its own key differs
// from the choice; the keys below are cleared. Board and circuit also take the entry's text as
// their typed number. Each row is one edit and one update. vorÄnderung hears of each row before
// its record changes.
void zuordnen(long ersteZeile, long letzteZeile, int spalte, const ComboEintrag& wahl,
              const std::function<void(long zeile)>& vorÄnderung = {});

} // namespace vemo
