#include "takeover/ProcMax.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "parsers/Primitive.h"
#include "store/Recordset.h"
#include "store/Variant.h"

#include <array>

namespace vemo {
namespace {

const QString Messung = "0100_Messung";
const QString Verteiler = "0100_Verteiler";
const QString CertNic = "0100U_CertNic";

enum class Ebene { Stromkreis, Verteiler, Prüfung };

// Where a value of one table is read and written. The column and the table go into the statement
// as the mapping names them, so that one procedure serves every column: the alias derWert stands
// for the column, and writing it writes the column.
struct Ziel {
    QString tabelle;
    Ebene ebene;
    QString abfrage;      // %1 column, %2 table, %3 key
    bool anlegen = false; // a missing measurement row of the circuit is added
};

const Ziel ZielKreis{Messung, Ebene::Stromkreis,
                     "SELECT MessID,%1 as derWert, StromkreisID as id  FROM %2 WHERE StromkreisID = %3",
                     true};
const Ziel ZielZertifikat{CertNic, Ebene::Prüfung, "SELECT %1 as derWert, PID as id  FROM %2 WHERE PID=%3"};
const Ziel ZielVerteiler{Verteiler, Ebene::Verteiler, "SELECT %1 as derWert FROM %2 WHERE VerteilerID= %3"};
const std::array<const Ziel*, 3> ZieleMaxMin{&ZielKreis, &ZielZertifikat, &ZielVerteiler};
const Ziel ZielBoard{Verteiler, Ebene::Verteiler,
                     "SELECT %1 as derWert, PrüfungID as id  FROM %2 WHERE VerteilerID=%3"};
// The circuit's query of the RCD handlers reads the row's keys too, so that a missing measurement
// row can be added as the other circuit values add it.
const Ziel ZielRcd{Messung, Ebene::Stromkreis,
                   "SELECT MessID,%1 as derWert, StromkreisID as id FROM %2 WHERE StromkreisID = %3", true};
const Ziel ZielBoardRcd{Verteiler, Ebene::Verteiler, "SELECT %1 as derWert FROM %2 WHERE VerteilerID = %3"};

const std::array<RcdHandler, 6> RcdHandlerListe{{
    {"MaxRcd_x1", "x1", false},
    {"MaxRcd_x1/2", "x1/2", false},
    {"MaxRcd_x5", "x5", false},
    {"MaxBoardRcd_x1", "x1", true},
    {"MaxBoardRcd_x1/2", "x1/2", true},
    {"MaxBoardRcd_x5", "x5", true},
}};

qint64 schlüssel(Ebene e, const Zertifikatsschlüssel& k) {
    switch (e) {
    case Ebene::Stromkreis:
        return k.stromkreisID;
    case Ebene::Verteiler:
        return k.verteilerID;
    case Ebene::Prüfung:
        break;
    }
    return k.prüfungID;
}

// A value of a circuit needs its board as well: a row without board has no circuit either.
bool schlüsselDa(Ebene e, const Zertifikatsschlüssel& k) {
    if (e == Ebene::Stromkreis)
        return k.stromkreisID != 0 && k.verteilerID != 0;
    return schlüssel(e, k) != 0;
}

using Vergleich = bool (*)(const QString& alt, const QString& neu);

// A circuit of a certificate has its one measurement row; an old circuit may lack it yet.
void messzeileAnlegen(Recordset& rs, qint64 stromkreisID, const QVariant& wert) {
    rs.AddNew();
    rs.setField("MessID", NeueID(Messung, QString()));
    rs.setField("id", stromkreisID);
    rs.setField("derWert", wert);
    rs.Update();
}

// The new value goes over the old one where the old is Null or the comparison calls the new one
// worse. Only the first row of the query counts.
void schreiben(const Ziel& z, const QString& tabelle, const QString& spalte, qint64 schlüssel,
               const QVariant& neu, Vergleich schlechter) {
    Recordset rs = db().OpenRecordset(z.abfrage.arg(spalte, tabelle, QString::number(schlüssel)));
    if (rs.Eof()) {
        if (z.anlegen && tabelle == Messung)
            messzeileAnlegen(rs, schlüssel, neu);
        return;
    }
    const QVariant alt = rs.Field("derWert");
    if (!istLeer(alt) && !schlechter(text(alt), text(neu)))
        return;
    rs.Edit();
    rs.setField("derWert", neu);
    rs.Update();
}

void schreiben(const Ziel& z, bool isMax, const Zertifikatswert& w, qint64 schlüssel) {
    schreiben(z, w.tabelle, w.spaltenname, schlüssel, w.wert, isMax ? IstGrösser : IstKleiner);
}

} // namespace

void ProcMaxMin(bool isMax, const Zertifikatswert& w, const Zertifikatsschlüssel& k) {
    for (const Ziel* z : ZieleMaxMin)
        if (z->tabelle == w.tabelle && schlüsselDa(z->ebene, k))
            schreiben(*z, isMax, w, schlüssel(z->ebene, k));
}

void ProcMaxMinRoot(bool isMax, const Zertifikatswert& w, qint64 prüfungID) {
    if (w.tabelle == CertNic && prüfungID != 0)
        schreiben(ZielZertifikat, isMax, w, prüfungID);
}

void ProcMaxMinBoard(bool isMax, const Zertifikatswert& w, qint64 verteilerID) {
    if (w.tabelle == Verteiler && verteilerID != 0)
        schreiben(ZielBoard, isMax, w, verteilerID);
}

const RcdHandler* rcdHandlerFür(const QString& prozedur) {
    for (const RcdHandler& h : RcdHandlerListe)
        if (h.prozedur == prozedur)
            return &h;
    return nullptr;
}

void ProcMaxRcd(const RcdHandler& h, const QVariant& gespeichert, const Zertifikatswert& w,
                const Zertifikatsschlüssel& k) {
    const Ziel& ziel = h.verteiler ? ZielBoardRcd : ZielRcd;
    if (text(w.wert) != h.faktor || !schlüsselDa(ziel.ebene, k))
        return;
    schreiben(ziel, w.tabelle, w.spaltenname, schlüssel(ziel.ebene, k), gespeichert, IstGrösser);
}

} // namespace vemo
