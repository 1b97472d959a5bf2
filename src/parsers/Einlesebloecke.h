#pragma once

#include "store/Recordset.h"

#include <QString>

namespace vemo {

// What a block row of 0100_EinleseDaten says of its measurement: where it was taken and when.
struct Blockkopf {
    QString kundeNr;
    QString anlageNr;
    QString verteilerNr;
    QString stromkreisNr;
    QString datum;
    QString uhrzeit;
};

// The read-in rows of the blocks of one dump: a row of 0100_EinleseDaten per block, a row of
// 0100_EinleseMessDaten per value. Each row is written as soon as it is complete, so that a dump
// that breaks off keeps what was read up to there.
class Einleseblöcke {
public:
    Einleseblöcke();

    // A new block of the read-in; its MessungID.
    qint32 neuerBlock(qint32 geräteID, const Blockkopf& kopf);
    qint32 neuerBlock(qint32 geräteID, const QString& verteilerNr, const QString& stromkreisNr);
    // A value of a block; a column given no value (an invalid QVariant) keeps its default.
    void neuerWert(qint32 messungID, const QVariant& funktion, const QVariant& wert, const QVariant& einheit);

private:
    Recordset m_daten;
    Recordset m_messDaten;
};

// Board and circuit numbers are four characters: the last four of "0000" and the number.
QString vierstellig(const QString& nummer);

} // namespace vemo
