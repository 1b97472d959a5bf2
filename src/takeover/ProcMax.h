#pragma once

#include <QString>
#include <QVariant>

namespace vemo {

// A read-in value of a certificate inspection with the place its mapping gives it: a column of
// the circuit's measurement row (0100_Messung), of the board (0100_Verteiler) or of the
// inspection's certificate record (0100U_CertNic).
struct Zertifikatswert {
    QString tabelle;
    QString spaltenname;
    QVariant wert;
};

// The records the value belongs to; 0 where the read-in row has no such level.
struct Zertifikatsschlüssel {
    qint64 stromkreisID = 0;
    qint64 verteilerID = 0;
    qint64 prüfungID = 0;
};

// A certificate keeps only the worst value seen. Each writes the value over the column where the
// column is still empty or the value is worse: greater with isMax, else smaller, compared as
// IstGrösser and IstKleiner compare. Only the circuit's measurement row is added when missing;
// a board or certificate record that is not there gets nothing. Store errors go to the caller.
void ProcMaxMin(bool isMax, const Zertifikatswert& w, const Zertifikatsschlüssel& k);
// The same for the certificate record alone, and for the board alone.
void ProcMaxMinRoot(bool isMax, const Zertifikatswert& w, qint64 prüfungID);
void ProcMaxMinBoard(bool isMax, const Zertifikatswert& w, qint64 verteilerID);

// The handlers of an RCD trip time: the instrument sends the time, the mapping keeps it ("Store"),
// then the factor row tells which test it was. A handler writes the kept time if the factor
// row's value is its own factor and the time is the greatest so far.
struct RcdHandler {
    QString prozedur; // as the mapping names it
    QString faktor;   // the value of the factor row it answers to
    bool verteiler;   // the board's column rather than the circuit's
};

// The handler of that name, or none.
const RcdHandler* rcdHandlerFür(const QString& prozedur);
void ProcMaxRcd(const RcdHandler& h, const QVariant& gespeichert, const Zertifikatswert& w,
                const Zertifikatsschlüssel& k);

} // namespace vemo
