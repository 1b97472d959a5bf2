#pragma once

namespace vemo {

// The shared table of key texts (the .MUL table of the module state, counted from 1). Its entries
// are the line patterns the report parser and the data pool look for: 4 the board word, 5 the place
// word, 6 the logger mark, 7 the line of an RCD analysis, 8 to 17 the four-letter keys of the rows,
// then the two touch voltage limits.
void SchlüsselTexteSetzen();

// The line prefixes of a coded Multitester dump, entries 1 to 14 of the same table. They overlap
// the key texts: the prefixes hold the table while a dump is rewritten, and the key texts are put
// back behind it.
void ZeilenPräfixeSetzen();

} // namespace vemo
