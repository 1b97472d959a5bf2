#include "store/Schluessel.h"

#include "host/ModulState.h"
#include "platform/Zahlformat.h"
#include "store/Variant.h"

#include <QDate>
#include <cmath>

namespace vemo {
namespace {

// The allocator's cache, alive as long as the component.
struct Schlüsselcache {
    QVariant replica; // Empty at first
    qint64 offsetFaktor = 0;
    Recordset zähler;
    QString tabelle;
};

Schlüsselcache& cache() {
    static Schlüsselcache c;
    return c;
}

QString tabelleAusQuelle(const QString& quelle) {
    const int p = int(quelle.indexOf("FROM", 0, Qt::CaseInsensitive));
    if (p < 0)
        return quelle;
    const QString rest = quelle.mid(p + 5);
    const int blank = int(rest.indexOf(' '));
    return blank >= 0 ? rest.left(blank) : rest;
}

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
Recordset zählerÖffnen(qint64 offsetFaktor, const QString& name) {
    // The table name goes into the statement as it stands: an apostrophe in it fails the count.
    return db().OpenRecordset("SELECT * FROM IDIncrement WHERE OffsetFaktor = " +
                              QString::number(offsetFaktor) + " And TabelleName = '" + name + "'");
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

// The table has no counter yet. AddNew holds the write lock; a second look under it finds a
// counter that another writer added since the cursor was opened, and the count goes on there
// instead of starting a second counter for the same table.
qint32 zählerAnlegen(Recordset& z, qint64 offsetFaktor, const QString& name) {
    const qint64 erster = offsetFaktor * 100000000 + 10000;
    if (erster > INT32_MAX || erster < INT32_MIN)
        throw fehler::mit(fehler::Überlauf);
    z.AddNew();
    if (Recordset jetzt = zählerÖffnen(offsetFaktor, name); !jetzt.Eof()) {
        z.CancelUpdate();
        z = jetzt;
        return weiterzählen(z);
    }
    z.setField("OffsetFaktor", offsetFaktor);
    z.setField("TabelleName", name);
    z.setField("LastID", erster);
    z.Update();
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

qint32 NeueID(const QString& tabelle, const QString& quelle) {
    Schlüsselcache& c = cache();
    QString name = tabelle;
    if (!quelle.isEmpty()) {
        name = tabelleAusQuelle(quelle);
    } else if (tabelle.isEmpty()) {
        c = Schlüsselcache{};
        return 0;
    }
    qint32 ergebnis = 0;
    mitFalle([&] {
        const ZählungAbbrechen abbrechen{c.zähler};
        const QVariant replica = modul().vmxReplicaID;
        if (replicaGewechselt(c.replica, replica)) {
            Recordset r = db().OpenRecordset("SELECT Description FROM MSysReplicas WHERE ReplicaID =  " +
                                             text(replica));
            c.offsetFaktor = ganzzahl(r.Field("Description"));
            c.replica = replica;
            c.tabelle.clear();
        }
        if (c.tabelle != name) {
            c.zähler = zählerÖffnen(c.offsetFaktor, name);
            c.tabelle = name;
        }
        ergebnis = c.zähler.Eof() ? zählerAnlegen(c.zähler, c.offsetFaktor, name) : weiterzählen(c.zähler);
    });
    return ergebnis;
}

QString NeuerCode(const QString& art, const QVariant& elternSchlüssel) {
    static const QMap<QString, QString> anweisungen{
        {"Anlage", "SELECT Code FROM 0100_ANLAGE WHERE KundeID = "},
        {"Verteiler", "SELECT Code FROM 0100_Verteiler WHERE PrüfungID = "},
        {"Stromkreis", "SELECT Code FROM 0100_Stromkreis WHERE VerteilerID = "},
    };
    if (!anweisungen.contains(art))
        throw Fehler(91, "Objektvariable oder With-Blockvariable nicht festgelegt");
    Recordset rs =
        db().OpenRecordset(anweisungen[art] + text(elternSchlüssel) + " GROUP BY Code ORDER BY Code");
    int i = 1;
    for (; !rs.Eof(); rs.MoveNext()) {
        const double v = zahlformat::val(rs.Text("Code"));
        if (v != 0 && v <= i) {
            if (v < i)
                break;
            ++i; // the code equals i: it is taken
        }
        if (i == 999)
            return {};
    }
    if (i == 999)
        return {};
    return QString("00" + QString::number(i)).right(3);
}

QString NächsteProtokollNr() {
    QString nummer;
    mitFalle([&] {
        Recordset rs =
            db().OpenRecordset("SELECT Max(Val('' & ProtokollNr)) as [proMax] FROM 0100_Prüfung ;");
        const QVariant max = rs.Eof() ? QVariant() : rs.Field("proMax");
        if (!istLeer(max) && zahl(max) != 0)
            nummer = zahlformat::text(zahl(max) + 1).replace(',', '.').trimmed();
        else
            nummer = "1";
        if (nummer.size() < 8)
            nummer = QString("0000000" + nummer).right(8);
    });
    return nummer;
}

void NeueZeileVorbelegen(const QString& art, Recordset& rs, const QVariant& eltern) {
    const auto leer = [&rs](std::initializer_list<const char*> felder) {
        for (const char* f : felder)
            rs.setField(f, QString());
    };
    const auto istNull = [](const QVariant& v) { return !istLeer(v) && zahlformat::val(text(v)) == 0; };
    const QDate heute = QDate::currentDate();
    if (art == "Kunde") {
        rs.setField("Name", "xxxxx");
        leer({"Kundennummer", "Kontakt", "Tel", "Fax", "email", "Firma", "Abteilung", "Strasse", "Plz",
              "Stadt", "Anmerkung"});
    } else if (art == "Anlage") {
        rs.setField("Name", "xxxxx");
        rs.setField("KundeID", eltern);
        rs.setField("Code", NeuerCode("Anlage", eltern));
        leer({"Nr", "Strasse", "Plz", "Stadt", "Kontakt", "Tel", "Fax", "email", "Anlagenplaner",
              "Bemerkung"});
        rs.setField("NächstePrüfung", heute);
        rs.setField("Intervall", 48);
        leer({"Bild"});
    } else if (art == "Prüfung") {
        rs.setField("Datum", heute);
        rs.setField("typ", "DACH2010");
        rs.setField("AnlagenID", eltern);
        for (int i = 1; i <= 4; ++i) {
            rs.setField(QString("Prüfgerät%1ID").arg(i), 0);
            rs.setField(QString("PrüfgerätName%1").arg(i), QString());
        }
        rs.setField("Grund1", 1);
        for (int i = 2; i <= 4; ++i)
            rs.setField(QString("Grund%1").arg(i), 0);
        leer({"GrundText"});
        for (int i = 1; i <= 6; ++i)
            rs.setField(QString("Erprobung%1").arg(i), 0);
        for (int i = 1; i <= 17; ++i)
            rs.setField(QString("Besichtigung%1").arg(i), 0);
        leer({"BesichtigungText16", "BesichtigungText17", "AuftragNr"});
        rs.setField("ProtokollNr", NächsteProtokollNr());
        leer({"Bemerkung", "ZusatzmessungDatei"});
        for (int i = 1; i <= 4; ++i)
            rs.setField(QString("echeck%1").arg(i), 0);
        leer({"echecktext"});
        rs.setField("PrüferID", 0);
        leer({"PrüferName"});
        rs.setField("Status", 0);
        rs.setField("erledigt", 0);
    } else if (art == "Verteiler") {
        rs.setField("Name", "xxxxx");
        if (!istNull(eltern))
            rs.setField("PrüfungID", eltern);
        rs.setField("Code", NeuerCode("Verteiler", rs.Field("PrüfungID")));
        leer({"Nr"});
    } else if (art == "Stromkreis") {
        rs.setField("Name", "xxxxx");
        if (!istNull(eltern))
            rs.setField("VerteilerID", eltern);
        rs.setField("StromkreistypID", 0);
        rs.setField("Code", NeuerCode("Stromkreis", rs.Field("VerteilerID")));
        leer({"Nr"});
        rs.setField("KabelTypID", 0);
        rs.setField("SicherungsTypID", 0);
        rs.setField("RCDTypID", 0);
    }
}

void BetriebsmittelAnlegen(const QVariant& prüfungID) {
    Recordset ziel = db().OpenRecordset("0100_Betriebsmittel");
    // The language name goes into the statement as it stands: an apostrophe in it fails the look-up.
    Recordset vorlage = db().OpenRecordset("SELECT * FROM 0100_Betriebsmittelstandard WHERE SPRACHE = '" +
                                           modul().sprachen.Sprache() + "'");
    for (; !vorlage.Eof(); vorlage.MoveNext()) {
        ziel.AddNew();
        ziel.setField("BetriebsmittelID", NeueID("", ziel.Name()));
        ziel.setField("PrüfungID", prüfungID);
        ziel.setField("Zeile", vorlage.Field("Zeile"));
        ziel.setField("Spalte", vorlage.Field("Spalte"));
        ziel.setField("inhalt", vorlage.Field("inhalt"));
        ziel.Update();
    }
}

} // namespace vemo
