#pragma once

#include "platform/Ui.h"

namespace vemo {

// The Ui of the command line: each message box is one line "TITLE: TEXT" on stderr, line breaks
// inside the text shown as " | "; a question is answered with its default button, or with Yes
// when the user said --yes. There are no windows: a modal dialog runs its controller in a local
// event loop until it closes.
class KonsolenUi : public Ui {
public:
    explicit KonsolenUi(bool immerJa = false) : m_immerJa(immerJa) {}

    int MsgBox(const QString& text, const QString& titel, const MsgStil& stil = {}) override;
    std::optional<QString> dateiÖffnen(const DateiDialog& dialog) override;
    void sanduhr(bool) override {}
    void DoEvents() override;
    int zeigeModal(DialogController& dialog) override;
    void zeigeNichtModal(DialogController& dialog) override;
    int textBreite(const QString& text) override;

    static QString zeile(const QString& text, const QString& titel);

private:
    bool m_immerJa;
};

// Runs the event loop until the dialog closes.
int warteAufSchließen(DialogController& dialog);

} // namespace vemo
