#pragma once

#include <QString>
#include <functional>

namespace vemo {

// Renders the record file RS232.TXT in the printed form of the Multitester family, so that the
// data pool and the numbered copies treat every instrument alike: a numbered report beside the
// database (number + ".sep") and its copy (number + ".txt"), the number taken from nächsteNummer.
// The head names "OMNIVAR", the model and the serial number; each block of values follows in the
// print block of its function; a logger file gets the logger's head lines and its values instead.
// Failures are shown by the standard trap, and the record file stays for the parser. Returns the
// number of the rendering, empty when there is none.
QString KontalexBericht(const std::function<QString()>& nächsteNummer);

} // namespace vemo
