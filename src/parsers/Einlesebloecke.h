#pragma once

#include "store/Recordset.h"

#include <QString>
#include <optional>

namespace vemo {

// The read-in rows of the blocks of one dump: a row of 0100_EinleseDaten per block, a row of
// 0100_EinleseMessDaten per value. Each row is written as soon as it is complete, so that a dump
// that breaks off keeps what was read up to there.
class Einleseblöcke {
public:
    Einleseblöcke();

    // A new block of the read-in; its MessungID.
    qint32 neuerBlock(qint32 geräteID, const QString& verteilerNr, const QString& stromkreisNr);
    void neuerWert(qint32 messungID, const QString& funktion, const QString& wert, const QString& einheit);
    // The MessungID of the read-in table's last row when that row has the circuit number.
    std::optional<qint32> letzterBlockMit(const QString& stromkreisNr);

private:
    Recordset m_daten;
    Recordset m_messDaten;
};

// Board and circuit numbers are four characters: the last four of "0000" and the number.
QString vierstellig(const QString& nummer);

} // namespace vemo
