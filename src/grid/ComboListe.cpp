#include "grid/ComboListe.h"

#include "core/ModulState.h"
#include "grid/Anzeigetext.h"
#include "grid/GrundText.h"
#include "store/Variant.h"

#include <array>

namespace vemo {

namespace {

QString kundenText(const Recordset& rs) {
    return rs.Text("Name");
}

QString prüfungsText(const Recordset& rs) {
    return rs.Text("Datum") + " " + GrundText(rs) + " " + rs.Text("ProtokollNr");
}

QString codeNrNameText(const Recordset& rs) {
    return codeNrName(rs.Field("Code"), rs.Field("Nr"), rs.Field("Name"));
}

// Where the entries of a column come from: the customers, or a saved query of the records under
// the row's parent, headed by an entry for "none" with key 0.
struct Listenquelle {
    const char* schlüssel;
    const char* abfrage; // null: the table of customers
    const char* parameter;
    const char* ohneText;
    bool ohneÜbersetzt;
    QString (*text)(const Recordset&);
};

const std::array<Listenquelle, 5> quellen{{
    {"KundeID", nullptr, nullptr, nullptr, false, kundenText},
    {"AnlageID", "AnlagenVonKunde", "paraKundeID", "keine Anlage", true, codeNrNameText},
    {"PrüfungID", "PrüfungenVonAnlage", "paraAnlageID", "keine Prüfung", true, prüfungsText},
    {"VerteilerID", "VerteilerVonPrüfung", "paraPrüfungID", "0", false, codeNrNameText},
    {"StromkreisID", "StromkreiseVonVerteiler", "paraVerteilerID", "0", false, codeNrNameText},
}};

const Listenquelle& quelle(int spalte) {
    if (spalte < 1 || spalte > int(quellen.size()))
        throw fehler::mit(fehler::IndexAußerhalb, "Spalte " + QString::number(spalte));
    return quellen[size_t(spalte - 1)];
}

} // namespace

QString schlüsselfeld(int spalte) {
    return quelle(spalte).schlüssel;
}

QList<ComboEintrag> comboEinträge(int spalte, const Recordset& einlesezeile) {
    const Listenquelle& q = quelle(spalte);
    QList<ComboEintrag> einträge;
    Recordset rs;
    if (!q.abfrage) {
        rs = db().OpenRecordset("SELECT * FROM Kunde ORDER BY Name");
    } else {
        einträge.append({q.ohneÜbersetzt ? xText(q.ohneText) : QString(q.ohneText), 0});
        QueryDef abfrage = db().QueryDefs(q.abfrage);
        abfrage.Parameters(q.parameter) = einlesezeile.Field(schlüsselfeld(spalte - 1));
        rs = abfrage.OpenRecordset();
    }
    for (; !rs.Eof(); rs.MoveNext())
        einträge.append({q.text(rs), rs.Field(q.schlüssel)});
    rs.Close();
    return einträge;
}

int eintragMitSchlüssel(const QList<ComboEintrag>& einträge, const QVariant& schlüssel) {
    for (int i = 0; i < einträge.size(); ++i)
        if (gleich(einträge[i].schlüssel, schlüssel))
            return i;
    return -1;
}

} // namespace vemo
