#pragma once

#include <QList>
#include <QString>
#include <QVariant>

namespace vemo {

// A record that a take-over row has just made is given, in the row's own transaction, to the
// read-in rows still waiting for it. A run started again after an interruption then finds the
// record by its key instead of making a second one.

// Rows of the customer with the plant number whose plant key leads nowhere.
void anlageWeitergeben(const QVariant& anlageID, const QVariant& kundeID, const QString& anlageNr,
                       const QVariant& messungID);
// Rows the run takes into the inspection by its current key, not by one of their own.
void prüfungWeitergeben(const QVariant& prüfungID, const QList<QVariant>& messungIDs);
// Rows of the inspection with the board number whose board key leads nowhere.
void verteilerWeitergeben(const QVariant& verteilerID, const QVariant& prüfungID, const QString& verteilerNr,
                          const QVariant& messungID);
// Rows of the board with the circuit number whose circuit key leads nowhere.
void stromkreisWeitergeben(const QVariant& stromkreisID, const QVariant& verteilerID,
                           const QString& stromkreisNr, const QVariant& messungID);

} // namespace vemo
