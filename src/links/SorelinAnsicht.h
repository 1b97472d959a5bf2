#pragma once

#include "links/Abbruchfenster.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class QProgressBar;
class QPushButton;

namespace vemo {

class DialogController;
class frmSorelin;

// The window of the block transfer: a hint picture, the blinking prompt, the progress bar with its
// percentage, and the abort button.
class SorelinAnsicht : public Abbruchfenster {
    Q_OBJECT
public:
    SorelinAnsicht(frmSorelin& form, QWidget* eltern);

    static QDialog* erstellen(DialogController& controller, QWidget* eltern);

private:
    void anzeigen();

    QPointer<frmSorelin> m_form;
    QLabel* m_sendText;
    QProgressBar* m_balken;
    QLabel* m_prozent;
    QPushButton* m_abbrechen;
};

} // namespace vemo
