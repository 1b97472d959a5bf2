#pragma once

#include "core/Satzdatei.h"

#include <QString>

namespace vemo {

class Berichtsdatei;
struct Druckblock;

// The lines of one block of the report: an empty line, a row of stars, the head with where and
// when it was measured, the print block's own line, and a line for each value record up to the next
// block or the end: its label, then the value through the value test with the unit behind it, in
// two columns of 13 and 11 characters. A value without a label of the print block is named by its
// mode (the word table's entries 406 measured, 405 limit, 404 setting) and its name. Returns with
// the next marker in satz.
void BlockZeilen(Berichtsdatei& datei, Satzleser& leser, Satz& satz, const Druckblock& block,
                 const QString& ort, const QString& zeit, const QString& datum);

} // namespace vemo
