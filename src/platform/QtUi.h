#pragma once

#include "platform/Ui.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>

class QDialog;

namespace vemo {

// Creates the view of a dialog controller; the view is a QDialog owned by its parent.
using Ansichtsfabrik = std::function<QDialog*(DialogController&, QWidget* eltern)>;
// The views of the dialogs, by the class name of their controller. The programs know them.
using Ansichtstabelle = std::map<QString, Ansichtsfabrik>;

// The Ui of the windowed programs: message boxes, the open-file dialog, the busy cursor, and one
// view per dialog controller, looked up by the controller's class name.
class QtUi : public Ui {
public:
    explicit QtUi(Ansichtstabelle ansichten, QWidget* hauptfenster = nullptr)
        : m_ansichten(std::move(ansichten)), m_hauptfenster(hauptfenster) {}
    void setHauptfenster(QWidget* w) { m_hauptfenster = w; }

    int MsgBox(const QString& text, const QString& titel, const MsgStil& stil = {}) override;
    std::optional<QString> dateiÖffnen(const DateiDialog& dialog) override;
    void sanduhr(bool an) override;
    void DoEvents() override;
    int zeigeModal(DialogController& dialog) override;
    void zeigeNichtModal(DialogController& dialog) override;
    int textBreite(const QString& text) override;

private:
    QDialog* ansichtErstellen(DialogController& dialog);
    Ansichtstabelle m_ansichten;
    QPointer<QWidget> m_hauptfenster;
};

} // namespace vemo
