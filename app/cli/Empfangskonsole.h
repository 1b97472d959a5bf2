#pragma once

#include "platform/KonsolenUi.h"

#include <QPointer>

class QSocketNotifier;

namespace vemo {
class Form2;
class Kontalex;
class frmSorelin;
} // namespace vemo

// The console of a reception from the instrument: Ctrl-C is the dialog's abort button and ends the
// transfer as that button does, never by killing the program mid-write; pressed before the dialog
// is up, it ends the wait the moment the dialog comes. Enter is the Enter of the dialog's text box.
// What the dialog tells the user appears on stderr. The command-protocol dialog runs the same way,
// each new state a line.
class Empfangskonsole : public vemo::KonsolenUi {
public:
    explicit Empfangskonsole(bool immerJa);
    ~Empfangskonsole() override;

    void zeigeNichtModal(vemo::DialogController& dialog) override;
    int zeigeModal(vemo::DialogController& dialog) override;

private:
    void hinweisZeigen();
    void zustandZeigen();
    void sendTextZeigen();

    QPointer<vemo::Form2> m_form;
    QPointer<vemo::frmSorelin> m_sorelin;
    QPointer<vemo::Kontalex> m_kontalex;
    QSocketNotifier* m_abbruch = nullptr;
    QSocketNotifier* m_eingabe = nullptr;
    QString m_gezeigt;
    bool m_ctrlC = false; // pressed since the console was set up
};
