#pragma once

#include "host/Transfer.h"

#include <QString>

namespace vemo {

// The link of the command-protocol instruments, for the driver's table: the dialog, and behind it
// the list of boards and the report, unless the run failed. An abort by the user, or the end of
// the waiting time, leaves the driver without a word.
Ausgang kontalexÜbertragen();

// A chosen file of the family as the record file RS232.TXT: a saved raw file RS232.SEP is decoded
// anew, as the transfer would have done, a record file is copied; then the list of boards and the
// report. Errors are raised to the caller's trap.
void kontalexDateiÜbernehmen(const QString& pfad);

} // namespace vemo
