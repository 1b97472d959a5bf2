#pragma once

namespace vemo {

// Reads the record file RS232.TXT of the command-protocol instruments into the read-in tables. The
// device data must name a known serial group ("118", "117", "119" or "153", anywhere in the serial
// number), or nothing is read; the instrument is registered by model. Then a row of
// 0100_EinleseDaten for each block head, and a row of 0100_EinleseMessDaten for each value behind
// it, named "function, mode, quantity", up to the next record that begins with "-". A file that
// doesn't begin with the device marker is a logger's: DatenloggerMode is set, nothing is written.
// A failing statement is shown as number and description, and the walk goes on with the next; a
// file cut short ends the walk at its end, and the rows written up to there stay.
void Kontalex();

} // namespace vemo
