#pragma once

#include <QDialog>
#include <QPointer>
#include <functional>

namespace vemo {

class DialogController;

// The window of a running transfer: closing it, or Escape, is the abort button as long as the
// transfer runs; the controller closes the window when the transfer has ended.
class Abbruchfenster : public QDialog {
public:
    Abbruchfenster(DialogController& dialog, std::function<void()> abbrechen, QWidget* eltern);

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void reject() override;

private:
    bool abbrechenWennOffen();

    QPointer<DialogController> m_übertragung;
    std::function<void()> m_abbrechen;
};

} // namespace vemo
