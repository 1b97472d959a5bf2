#pragma once

namespace vemo {

// How the dump reception ended, for the transfer driver.
enum class EmpfangsErgebnis {
    Weiter,         // the file is there (complete, or cut short with Abbruchmerker set): go on
    StillVerlassen, // aborted before the first byte: leave the driver without a word
};

// Receives the memory dump that a Multitester or Corvex instrument prints down the serial line
// when its send key is pressed, into the working file Ruvo.ser beside the database, while the wait
// dialog Form2 is shown. The instrument's bytes go to the file as they came, line by line; the
// reception ends on three empty lines in reads of their own, on Enter in the dialog's text box, or
// on its abort button. Errors of the port and the file are raised as Fehler for the driver's trap.
EmpfangsErgebnis dumpEmpfangen();

} // namespace vemo
