#include "store/Schluessel.h"

#include "platform/Fehler.h"
#include "store/Datenbank.h"
#include "store/Literal.h"
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

// The counter of a table in the replica's range.
Recordset zählerÖffnen(Datenbank& db, qint64 offsetFaktor, const QString& name) {
    return db.OpenRecordset("SELECT * FROM IDIncrement WHERE OffsetFaktor = " +
                            QString::number(offsetFaktor) + " And TabelleName = " + literal(name));
}

qint32 weiterzählen(Recordset& z) {
    z.Edit();
    const qint64 neu = ganzzahl(z.Field("LastID")) + 1;
    if (neu > INT32_MAX)
        throw fehler::mit(fehler::Überlauf);
    z.setField("LastID", neu);
    z.Update();
    z.setBookmark(z.LastModified());
    return qint32(neu);
}

// The table has no counter yet. AddNew holds the write lock where the engine locks the database;
// a second look under it finds a counter that another writer added since the cursor was opened,
// and the count goes on there instead of starting a second counter for the same table. Where the
// engine locks rows only, two writers may both add one: the counter's unique index refuses the
// second, which then counts on in the first.
qint32 zählerAnlegen(Datenbank& db, Recordset& z, qint64 offsetFaktor, const QString& name) {
    const qint64 erster = offsetFaktor * 100000000 + 10000;
    if (erster > INT32_MAX || erster < INT32_MIN)
        throw fehler::mit(fehler::Überlauf);
    z.AddNew();
    if (Recordset jetzt = zählerÖffnen(db, offsetFaktor, name); !jetzt.Eof()) {
        z.CancelUpdate();
        z = jetzt;
        return weiterzählen(z);
    }
    z.setField("OffsetFaktor", offsetFaktor);
    z.setField("TabelleName", name);
    z.setField("LastID", erster);
    try {
        z.Update();
    } catch (const Fehler& f) {
        if (f.nummer() != fehler::DoppelterSchlüssel)
            throw;
        z = zählerÖffnen(db, offsetFaktor, name);
        return weiterzählen(z);
    }
    z.setBookmark(z.LastModified());
    return qint32(erster);
}

// A count that fails ends the pending change, so that the counter cursor, which lives on, does
// not keep the write lock while the trap shows its message.
struct ZählungAbbrechen {
    Recordset& zähler;
    ~ZählungAbbrechen() {
        if (zähler.istOffen())
            zähler.CancelUpdate();
    }
};

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
    const ZählungAbbrechen abbrechen{m_zähler};
    if (replicaGewechselt(m_replica, replica))
        replicaLesen(db, replica);
    if (m_tabelle != name) {
        m_zähler = zählerÖffnen(db, m_offsetFaktor, name);
        m_tabelle = name;
    }
    return m_zähler.Eof() ? zählerAnlegen(db, m_zähler, m_offsetFaktor, name) : weiterzählen(m_zähler);
}

} // namespace vemo
