#pragma once

#include "store/Recordset.h"

#include <QVariant>

namespace vemo {

// Names the instrument of a read-in in the first free of the four instrument slots of the
// inspection on which prüfung stands: from the register when it is known there, else by the name
// and serial number the read-in gave. An instrument already in a slot is not entered twice. For
// the instruments whose dates are trusted, an inspection without a date takes the read-in's.
void PrüfgerätEintragen(const QVariant& geräteID, Recordset& prüfung, const Recordset& einlesezeile);

} // namespace vemo
