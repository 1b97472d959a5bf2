#pragma once

#include "core/Arbeitsdateien.h" // dateiKopieren

#include <QString>

namespace vemo {

// The next number of a numbered copy in BackupVerzeichnis: "LastFile" advanced past the numbers
// whose copy exists. 99999999 is never used: numbering wraps to 00000000. Errors are shown by the
// standard trap and give an empty number.
QString NächsteDateiNummer();

// A provisional number: one step, no look at the directory.
QString NächsteSepNummer();

// Raises 76 when BackupVerzeichnis is not an existing folder.
void backupVerzeichnisPrüfen();

// Copies the raw file of the selector, byte for byte, to the next numbered file, made new: a number
// whose file another process created meanwhile is passed over. Raises the error when the copy fails.
void nummerierteKopieAnlegen(const QString& selektor);

} // namespace vemo
