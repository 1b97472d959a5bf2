#pragma once

namespace vemo {

// Reads the older Multitester table dump of the working file Ruvo.ser into the read-in tables:
// behind the head and a ruler, a block begins with a line whose first character is a digit, the
// circuit number; its lines carry "key: value unit" with one or more values. Every block lies on
// board "0001". Errors are raised to the caller; rows written up to there stay.
void Multitester0100Tabelle();

} // namespace vemo
