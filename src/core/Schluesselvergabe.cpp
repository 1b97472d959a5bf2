#include "core/Schluesselvergabe.h"

#include "core/ModulState.h"
#include "platform/Zahlformat.h"
#include "store/Recordset.h"
#include "store/Variant.h"

#include <QMap>

namespace vemo {

qint32 NeueID(const QString& tabelle, const QString& quelle) {
    Schlüsselvergabe& vergabe = modul().schlüsselvergabe;
    if (quelle.isEmpty() && tabelle.isEmpty()) {
        vergabe = Schlüsselvergabe{};
        return 0;
    }
    const QString name = quelle.isEmpty() ? tabelle : tabelleAusQuelle(quelle);
    qint32 ergebnis = 0;
    mitSchrittfalle([&] { ergebnis = vergabe.nächsterSchlüssel(db(), modul().vmxReplicaID, name); });
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
    // A new board among hundreds reads the code of each: as a plain list, not as record set rows.
    const QStringList codes =
        db().ersteSpalte(anweisungen[art] + text(elternSchlüssel) + " GROUP BY Code ORDER BY Code");
    int i = 1;
    for (const QString& code : codes) {
        const double v = zahlformat::val(code);
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

namespace {

double höchsteProtokollNrLesen() {
    Recordset rs = db().OpenRecordset("SELECT Max(Val('' & ProtokollNr)) as [proMax] FROM 0100_Prüfung ;");
    const QVariant max = rs.Eof() ? QVariant() : rs.Field("proMax");
    return istLeer(max) ? 0 : zahl(max);
}

// Another connection that committed since changes the data version this connection reads.
QString datenversion() {
    return db().ersteSpalte("PRAGMA data_version").value(0);
}

double höchsteProtokollNr() {
    std::optional<Protokollstand>& stand = modul().protokollstand;
    if (!stand)
        return höchsteProtokollNrLesen();
    const QString version = datenversion();
    if (version != stand->datenversion) {
        stand->höchste = höchsteProtokollNrLesen();
        stand->datenversion = version;
    }
    return stand->höchste;
}

} // namespace

QString NächsteProtokollNr() {
    QString nummer;
    mitSchrittfalle([&] {
        const double max = höchsteProtokollNr();
        nummer = max != 0 ? zahlformat::text(max + 1).replace(',', '.').trimmed() : QString("1");
        ProtokollNrGeschrieben(nummer);
        if (nummer.size() < 8)
            nummer = QString("0000000" + nummer).right(8);
    });
    return nummer;
}

void ProtokollNrGeschrieben(const QVariant& nummer) {
    if (std::optional<Protokollstand>& stand = modul().protokollstand)
        stand->höchste = std::max(stand->höchste, zahlformat::val(text(nummer)));
}

Protokollzählung::Protokollzählung() {
    modul().protokollstand.emplace();
}

Protokollzählung::~Protokollzählung() {
    modul().protokollstand.reset();
}

} // namespace vemo
