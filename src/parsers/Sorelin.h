#pragma once

namespace vemo {

// Reads the memory image of a Sorelin instrument, the working file Rs232.sep, into the read-in
// tables. The image has no meaning by itself: the driver table of its instrument type tells what
// each block holds (SorelinTreiber). The instrument gets a row of 0100_EinleseGeräteDaten, each
// circuit a row of 0100_EinleseDaten on board 0001, numbered 0001 upward, each value a row of
// 0100_EinleseMessDaten. An image the component cannot read (no start mark, a block kind it does
// not know, no driver table, firmware newer than the driver) is reported and sets Abbruchmerker;
// errors of the store and of a broken image are raised to the caller's trap, the rows written up to
// there staying.
void Sorelin();

} // namespace vemo
