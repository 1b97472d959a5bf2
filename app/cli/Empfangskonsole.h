#pragma once

#include "platform/KonsolenUi.h"

#include <QPointer>

class QSocketNotifier;

namespace vemo {
class Form2;
class Kontalex;
} // namespace vemo

// The console of a reception from the instrument: Ctrl-C is the dialog's abort button and ends the
// transfer as that button does, never by killing the program mid-write; Enter is the Enter of the
// dialog's text box. What the dialog tells the user appears on stderr. The command-protocol dialog
// runs the same way: Ctrl-C is its abort button, and each new state is a line.
class Empfangskonsole : public vemo::KonsolenUi {
public:
    explicit Empfangskonsole(bool immerJa);
    ~Empfangskonsole() override;

    void zeigeNichtModal(vemo::DialogController& dialog) override;
    int zeigeModal(vemo::DialogController& dialog) override;

private:
    void hinweisZeigen();
    void zustandZeigen();

    QPointer<vemo::Form2> m_form;
    QPointer<vemo::Kontalex> m_kontalex;
    QSocketNotifier* m_abbruch = nullptr;
    QSocketNotifier* m_eingabe = nullptr;
    QString m_gezeigt;
};
