#include "platform/Dialog.h"

namespace vemo {

void DialogController::schließen(int ergebnis) {
    if (!m_offen)
        return;
    m_offen = false;
    m_ergebnis = ergebnis;
    emit geschlossen(ergebnis);
}

} // namespace vemo
