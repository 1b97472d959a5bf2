#pragma once

#include <QString>
#include <QVariant>

namespace vemo {

// The certificate whose columns the mapping of 0100_TeilfunktionUK fills.
inline const QString ZertifikatNiceic = "Niceic";

// Takes the values of one read-in block (0100_EinleseMessDaten of MessungID) into a certificate
// inspection: each function the certificate's mapping names goes to the worst value of its
// circuit, board or inspection, by the mapping's procedure; a function it does not name is
// dropped. A key of 0 passes over the values of that level. Any error ends the mapping without a
// word: the values taken so far stay, and the caller goes on.
void MesswertÜbernehmenZertifikat(const QVariant& messungID, const QVariant& stromkreisID,
                                  const QVariant& verteilerID, const QVariant& prüfungID);

} // namespace vemo
