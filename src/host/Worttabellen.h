#pragma once

namespace vemo {

// Loads the word tables \Ruvo.MNU (up to 500 entries) and \Ruvo.MUL (up to 30) from beside the
// database into the module state, and remembers the database directory as setting "Directory".
// A path or file access error (75) is passed over; any other is shown with three blanks.
void worttabellenLaden();

} // namespace vemo
