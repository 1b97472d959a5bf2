#pragma once

#include "platform/Ui.h"

#include <QList>
#include <QStringList>
#include <functional>

namespace vemo {

// The Ui of the tests: it records what the user would have seen and answers as the test says.
class AufzeichnungsUi : public Ui {
public:
    struct Meldung {
        QString text;
        QString titel;
        MsgStil stil;
    };

    int MsgBox(const QString& text, const QString& titel, const MsgStil& stil = {}) override;
    std::optional<QString> dateiÖffnen(const DateiDialog& dialog) override;
    void sanduhr(bool an) override;
    void DoEvents() override;
    int zeigeModal(DialogController& dialog) override;
    void zeigeNichtModal(DialogController& dialog) override;
    int textBreite(const QString& text) override { return int(text.size()) * 90; }

    QList<Meldung> meldungen;
    QStringList dialoge; // class names of the dialogs shown
    QList<DateiDialog> dateiDialoge;
    QList<int> antworten; // answers to give, in order; then the default button
    std::optional<QString> gewählteDatei;
    int sanduhrTiefe = 0;
    // Drives a dialog shown modally or modeless; a modal one that stays open then runs in a local
    // event loop until it closes.
    std::function<void(DialogController&)> beiDialog;

    QStringList texte() const;
};

} // namespace vemo
