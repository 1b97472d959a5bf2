#pragma once

namespace vemo {

// The step after a Kontalex transfer or file: the list of boards Verteil.txt, a provisional number
// and the block head for each block of RS232.TXT (the numbers use nothing up: "LastFile" is put
// back), then the rendering of the report, whose numbered ".sep" becomes the working dump Ruvo.ser.
// The end of the record file ends the list; other errors are shown and end the step.
void VerteilerListeSchreiben();

} // namespace vemo
