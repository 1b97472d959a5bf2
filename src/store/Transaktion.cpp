#include "store/Transaktion.h"

#include "platform/Fehler.h"
#include "store/Datenbank.h"
#include "store/Verbindung.h"

#include <sqlite3.h>
#include <utility>

namespace vemo {

Transaktion::Transaktion(const Datenbank& db) : m_v(db.verbindung()) {
    m_v->sperreNehmen();
}

Transaktion::~Transaktion() {
    if (m_v)
        m_v->sperreVerwerfen();
}

void Transaktion::commit() {
    std::exchange(m_v, nullptr)->sperreAbgeben();
}

void Transaktion::bereichSperren(const QString& bereich) {
    m_v->bereichSperren(bereich);
}

bool istSpeicherausfall(const Fehler& f) {
    switch (f.nummer()) {
    case fehler::Gesperrt:
    case fehler::DatenbankNichtGefunden:
    case fehler::Schreibgeschützt:
    case fehler::UnbekanntesDatenbankformat:
    case 3000 + SQLITE_NOMEM:
    case 3000 + SQLITE_READONLY:
    case 3000 + SQLITE_IOERR:
    case 3000 + SQLITE_CORRUPT:
    case 3000 + SQLITE_FULL:
    case 3000 + SQLITE_PROTOCOL:
    case 3000 + SQLITE_ABORT:
        return true;
    default:
        return false;
    }
}

} // namespace vemo
