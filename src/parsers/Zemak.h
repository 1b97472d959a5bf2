#pragma once

namespace vemo {

// Read the working file Ruvo.ser that the 37xx link saved from an instrument's memory into the
// read-in tables: the instrument from its identification line, then behind the line "QD 2," a row
// of 0100_EinleseDaten per record and the value rows its function code gives. The record read
// last is never parsed: in a whole file it is the closing line, and a file cut behind a record
// loses that record.
//
// Failures are shown as number and description and end the read; rows written so far stay, and
// the run goes on as after success. ZEMAK alone shows each failing statement of a record and goes
// on with the next, so a bad record gives its messages and the read runs to the end.
void ZEMAK();
void ZEMAK3710B();
void ZEMAK3720();
void ZEMAK3740();
void Quentavoir();

} // namespace vemo
