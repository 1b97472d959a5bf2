#pragma once

#include <QDialog>

namespace vemo {

class frmTeilFunktion;

// The window of the dialog for an unknown function name: the name, the column to choose, OK.
class TeilFunktionAnsicht : public QDialog {
public:
    TeilFunktionAnsicht(frmTeilFunktion& dialog, QWidget* eltern);
};

} // namespace vemo
