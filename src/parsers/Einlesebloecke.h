#pragma once

#include "store/Recordset.h"

#include <QString>

namespace vemo {

// Where and when a block was measured, as far as the dump tells.
struct Blockkopf {
    QString anlageNr;
    QString verteilerNr;
    QString stromkreisNr;
    QString uhrzeit;
    QString datum;
};

// The read-in rows of the blocks of one dump: a row of 0100_EinleseDaten per block, a row of
// 0100_EinleseMessDaten per value. Each row is written as soon as it is complete, so that a dump
// that breaks off keeps what was read up to there.
class Einleseblöcke {
public:
    Einleseblöcke();

    // A new block of the read-in; its MessungID.
    qint32 neuerBlock(qint32 geräteID, const QString& verteilerNr, const QString& stromkreisNr);
    qint32 neuerBlock(qint32 geräteID, const Blockkopf& kopf);
    void neuerWert(qint32 messungID, const QString& funktion, const QString& wert, const QString& einheit);

private:
    Recordset m_daten;
    Recordset m_messDaten;
};

// Board and circuit numbers are four characters: the last four of "0000" and the number.
QString vierstellig(const QString& nummer);

} // namespace vemo
