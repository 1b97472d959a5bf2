#pragma once

#include "links/Abbruchfenster.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class QPushButton;

namespace vemo {

class DialogController;
class Kontalex;

// The window of the command-protocol transfer: the baud rate or what is being asked, the state,
// the seconds left to get the instrument ready, the block under way, the drawn progress bar, and
// the abort button.
class KontalexAnsicht : public Abbruchfenster {
    Q_OBJECT
public:
    KontalexAnsicht(Kontalex& dialog, QWidget* eltern);

    static QDialog* erstellen(DialogController& controller, QWidget* eltern);

private:
    void anzeigen();

    QPointer<Kontalex> m_dialog;
    QLabel* m_kennung;
    QLabel* m_zustand;
    QLabel* m_sekunden;
    QLabel* m_block;
    QWidget* m_balken;
    QPushButton* m_abbrechen;
};

} // namespace vemo
