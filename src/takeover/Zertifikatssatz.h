#pragma once

#include <QVariant>

namespace vemo {

// The certificate record of an inspection (0100U_CertNic, keyed by pid): made with each new
// inspection, so that the certificate's installation values have their row. Store errors go to
// the caller.
void ZertifikatssatzAnlegen(const QVariant& prüfungID);

// A new inspection of the plant that is a certificate, with its certificate record and the
// equipment table of the current language; its key. Store errors go to the caller.
qint32 ZertifikatsprüfungAnlegen(const QVariant& anlageID);

// Whether the inspection's values go into a certificate: its typ is set (an empty text counts) and
// is neither of the two inspection records of the norm.
bool istZertifikat(const QVariant& prüfungID);

} // namespace vemo
