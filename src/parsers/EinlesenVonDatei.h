#pragma once

namespace vemo {

// The one door through which a raw dump becomes read-in rows: runs the parser of the Selektor on
// the family's working file beside the database, with the wait cursor on, and hands the instrument
// found on to PrüfgerätID. The outcome is in the read-in tables, in DatenloggerMode and in
// Abbruchmerker (1: the user has been told why nothing, or not everything, was read). Nothing is
// thrown: a fault is shown as number and description and sets Abbruchmerker.
void EinlesenVonDatei();

} // namespace vemo
