#include "store/Schluessel.h"

#include "platform/Fehler.h"
#include "store/Datenbank.h"
#include "store/Variant.h"

namespace vemo {
namespace {

// The replica differs from the cached one. Null on either side compares as equal, as a comparison
// with Null does not hold; Empty reads as an empty text.
bool replicaGewechselt(const QVariant& gecacht, const QVariant& aktuell) {
    if (istNull(gecacht) || istNull(aktuell))
        return false;
    if (istEmpty(gecacht) && istEmpty(aktuell))
        return false;
    return text(gecacht) != text(aktuell);
}

} // namespace

QString tabelleAusQuelle(const QString& quelle) {
    const int p = int(quelle.indexOf("FROM", 0, Qt::CaseInsensitive));
    if (p < 0)
        return quelle;
    const QString rest = quelle.mid(p + 5);
    const int blank = int(rest.indexOf(' '));
    return blank >= 0 ? rest.left(blank) : rest;
}

void Schlüsselvergabe::replicaLesen(Datenbank& db, const QVariant& replica) {
    Recordset r =
        db.OpenRecordset("SELECT Description FROM MSysReplicas WHERE ReplicaID =  " + text(replica));
    m_offsetFaktor = ganzzahl(r.Field("Description"));
    m_replica = replica;
    m_tabelle.clear();
}

qint32 Schlüsselvergabe::nächsterSchlüssel(Datenbank& db, const QVariant& replica, const QString& name) {
    if (replicaGewechselt(m_replica, replica))
        replicaLesen(db, replica);
    if (m_tabelle != name) {
        m_zähler = db.OpenRecordset("SELECT * FROM IDIncrement WHERE OffsetFaktor = " +
                                    QString::number(m_offsetFaktor) + " And TabelleName = '" + name + "'");
        m_tabelle = name;
    }
    Recordset& z = m_zähler;
    qint32 ergebnis = 0;
    if (!z.Eof()) {
        z.Edit();
        const qint64 neu = ganzzahl(z.Field("LastID")) + 1;
        if (neu > INT32_MAX)
            throw fehler::mit(fehler::Überlauf);
        z.setField("LastID", neu);
        ergebnis = qint32(neu);
    } else {
        const qint64 erster = m_offsetFaktor * 100000000 + 10000;
        if (erster > INT32_MAX || erster < INT32_MIN)
            throw fehler::mit(fehler::Überlauf);
        z.AddNew();
        z.setField("OffsetFaktor", m_offsetFaktor);
        z.setField("TabelleName", name);
        z.setField("LastID", erster);
        ergebnis = qint32(erster);
    }
    z.Update();
    z.setBookmark(z.LastModified());
    return ergebnis;
}

} // namespace vemo
