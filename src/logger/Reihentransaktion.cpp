#include "logger/Reihentransaktion.h"

#include "core/ModulState.h"
#include "platform/Fehler.h"

namespace vemo {

Reihentransaktion::Reihentransaktion() : m_halter(db().OpenRecordset("datlog37")) {
    m_halter.AddNew();
}

Reihentransaktion::~Reihentransaktion() {
    if (!m_festgeschrieben) {
        try {
            db().Execute("ROLLBACK");
        } catch (const Fehler&) {
            // SQLite may have rolled back by itself after the fault.
        }
    }
    m_halter.CancelUpdate();
}

void Reihentransaktion::festschreiben() {
    db().Execute("COMMIT");
    m_festgeschrieben = true;
}

} // namespace vemo
