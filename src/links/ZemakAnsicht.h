#pragma once

#include "links/Abbruchfenster.h"

#include <QDialog>
#include <QPointer>

class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace vemo {

class DialogController;
class frmZEMAK;

// The window of the 37xx reception: a picture of the instrument without its leads, the state of
// the search, the note to the user, the progress of the memory with its percentage, and the abort
// button.
class ZemakAnsicht : public Abbruchfenster {
    Q_OBJECT
public:
    ZemakAnsicht(frmZEMAK& form, QWidget* eltern);

    static QDialog* erstellen(DialogController& controller, QWidget* eltern);

private:
    void anzeigen();

    QPointer<frmZEMAK> m_form;
    QLabel* m_zustand;
    QLabel* m_hinweis;
    QProgressBar* m_balken;
    QLabel* m_prozent;
};

} // namespace vemo
