#pragma once

#include <QString>
#include <QVariant>

namespace vemo {

// A new key for the table from the allocator of the module: the table comes from Quelle (the Name
// of the record set that has just begun a row) when given, else from Tabelle. Both empty resets
// the allocator. Errors are shown by the standard trap and give 0.
qint32 NeueID(const QString& tabelle, const QString& quelle);

// The lowest free three-digit code among the siblings of a plant ("Anlage"), board ("Verteiler")
// or circuit ("Stromkreis"); empty when 998 are taken. An unknown kind raises an error.
QString NeuerCode(const QString& art, const QVariant& elternSchlüssel);

// The next report number over all inspections, at least eight digits; empty after an error.
QString NächsteProtokollNr();

// While it lives, the report numbers count on from the highest one read once, instead of reading
// the highest over all inspections for each new one, which made a run quadratic in the
// inspections. The highest is read again when another connection has committed since: a new
// inspection asks for its number under the write lock, so no other writer slips in between.
class Protokollzählung {
public:
    Protokollzählung();
    ~Protokollzählung();
    Protokollzählung(const Protokollzählung&) = delete;
    Protokollzählung& operator=(const Protokollzählung&) = delete;
};

// A report number written otherwise than by NächsteProtokollNr, which the count must pass.
void ProtokollNrGeschrieben(const QVariant& nummer);

} // namespace vemo
