#pragma once

#include "platform/KonsolenUi.h"
#include "platform/Konsolenwache.h"

#include <QPointer>

namespace vemo {
class Form2;
class Kontalex;
class frmSorelin;
class frmZEMAK;
} // namespace vemo

// The console of a reception from the instrument: Ctrl-C is the dialog's abort button and ends the
// transfer as that button does, never by killing the program mid-write; pressed before the dialog
// is up, it ends the wait the moment the dialog comes. Enter is the Enter of the dump dialog's text
// box. What the dialog tells the user appears on stderr, each text once when it changes; the
// percentage of a memory query in steps of ten.
class Empfangskonsole : public vemo::KonsolenUi {
public:
    explicit Empfangskonsole(bool immerJa);

    void zeigeNichtModal(vemo::DialogController& dialog) override;
    int zeigeModal(vemo::DialogController& dialog) override;

private:
    void abbrechen();
    void hinweisZeigen();
    void zustandZeigen();
    void sendTextZeigen();
    void abfrageZeigen();
    // Writes the text when it differs from the one shown last in its place.
    static void neueZeile(const QString& text, QString& zuletzt);

    QPointer<vemo::Form2> m_form;
    QPointer<vemo::frmSorelin> m_sorelin;
    QPointer<vemo::Kontalex> m_kontalex;
    QPointer<vemo::frmZEMAK> m_abfrage;
    QString m_zustand;
    QString m_prozentZehner;
    vemo::Konsolenwache m_wache;
    QString m_gezeigt;
    bool m_ctrlC = false; // pressed since the console was set up
};
