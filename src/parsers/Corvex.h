#pragma once

namespace vemo {

// Set by Corvex when the device line names the older Multitester table format, so that the read-in
// goes on with Multitester0100Tabelle. EinlesenVonDatei clears it at the start of each read-in.
bool& MultitesterGefunden();

// Reads the report dump of the working file Ruvo.ser into the read-in tables: the instrument from
// the head, then a row of 0100_EinleseDaten per group of values under a header "S: 001    P: 002",
// a row of 0100_EinleseMessDaten per value. A dump that is a logger record, or has no block at all,
// sets DatenloggerMode and goes to the data pool. A head that cannot be read, and a dump that ends
// too early, give "Messdaten Kopf fehlt" and set Abbruchmerker; rows written up to there stay.
void Corvex();

} // namespace vemo
