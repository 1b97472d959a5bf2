#pragma once

class QDialog;
class QPushButton;

namespace vemo {

// Enter presses the dialog's default button; Escape presses its cancel button, so that it does
// exactly what that button does (an abort, a "close" that saves) rather than only hiding the
// window. Either may be null.
void dialogtastenSetzen(QDialog& dialog, QPushButton* standard, QPushButton* abbrechen);

} // namespace vemo
