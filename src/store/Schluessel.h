#pragma once

#include "store/Recordset.h"

#include <QString>
#include <QVariant>

namespace vemo {

class Datenbank;

// Key allocation across replicas: each replica owns the keys from OffsetFaktor x 100000000 + 10000
// on, and each table counts in a row of IDIncrement. The allocator keeps the counter row of the
// table it counted last open, so that a run of keys for one table reads no more than it must.
class Schlüsselvergabe {
public:
    // The next key of the table for the replica. Errors of the store are raised.
    qint32 nächsterSchlüssel(Datenbank& db, const QVariant& replica, const QString& tabelle);

private:
    void replicaLesen(Datenbank& db, const QVariant& replica);

    QVariant m_replica; // Empty at first
    qint64 m_offsetFaktor = 0;
    Recordset m_zähler;
    QString m_tabelle;
};

// The table a record set was opened on: the word after FROM, or the source itself.
QString tabelleAusQuelle(const QString& quelle);

} // namespace vemo
