#include "links/Abbruchfenster.h"

#include "platform/Dialog.h"

#include <QCloseEvent>

namespace vemo {

Abbruchfenster::Abbruchfenster(DialogController& dialog, std::function<void()> abbrechen, QWidget* eltern)
    : QDialog(eltern), m_übertragung(&dialog), m_abbrechen(std::move(abbrechen)) {}

bool Abbruchfenster::abbrechenWennOffen() {
    if (!m_übertragung || !m_übertragung->istOffen())
        return false;
    m_abbrechen();
    return true;
}

// A transfer that ends at once on its abort lets the window close now; one that still has to wind
// down keeps it until it closes it itself.
void Abbruchfenster::closeEvent(QCloseEvent* ereignis) {
    if (abbrechenWennOffen() && m_übertragung && m_übertragung->istOffen()) {
        ereignis->ignore();
        return;
    }
    QDialog::closeEvent(ereignis);
}

void Abbruchfenster::reject() {
    if (!abbrechenWennOffen())
        QDialog::reject();
}

} // namespace vemo
