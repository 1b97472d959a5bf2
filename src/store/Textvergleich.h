#pragma once

#include <QString>
#include <sqlite3.h>

namespace vemo {

// Text compared as the host's engine compares it with "=": without regard to case, for every letter
// it folds (umlauts and accented letters as well as ASCII). SQLite's own NOCASE folds ASCII only.
int textVergleich(const QString& a, const QString& b);
inline bool textGleich(const QString& a, const QString& b) {
    return textVergleich(a, b) == 0;
}

// The name of the collation that compares as textVergleich does, for the statements the
// translation writes. The schema's columns keep SQLite's NOCASE, so that a tool that does not know
// this collation still reads and queries the file.
inline constexpr const char* TextSortierfolge = "VEMO_NOCASE";

// Makes the collation known to a connection; each connection needs it before its first statement.
void textSortierfolgeAnmelden(sqlite3* db);

} // namespace vemo
