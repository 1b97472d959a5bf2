#include "import/Stammdaten.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "core/Vorbelegung.h"
#include "import/Adresse.h"
#include "import/Altdatum.h"
#include "store/Datenbank.h"
#include "store/Literal.h"
#include "store/Textvergleich.h"
#include "store/Variant.h"

namespace vemo {

namespace {

bool ohneKundeUndAnlage(const Quellzeile& z) {
    return z.text("Kunden").isEmpty() && z.text("Anlage").isEmpty();
}

// The next inspection counts only when the old mask held a date with its time.
QVariant nächstePrüfung(const Quellzeile& z) {
    const QVariant wert = z.feld("Form1_MaskedEdit11");
    if (wert.typeId() != QMetaType::QDateTime && !z.text("Form1_MaskedEdit11").contains(':'))
        return nullWert();
    return altesDatum(wert);
}

} // namespace

Stammdaten::Stammdaten()
    : m_kunden(db().OpenRecordset("Kunde")), m_anlagen(db().OpenRecordset("0100_Anlage")) {}

QVariant Stammdaten::kunde(const Quellzeile& z) {
    // The names of the source are literals of the statements. The statement for rows without
    // customer and plant asks for a blank name, as it always has.
    const QString abfrage = ohneKundeUndAnlage(z)
                                ? QString("SELECT * FROM Kunde where Name = ' '")
                                : "SELECT * FROM Kunde where Name = " + literal(z.text("Kunden"));
    const QVariant gefunden = gleicherKunde(abfrage, z);
    return gefunden.isValid() ? gefunden : neuerKunde(z);
}

QVariant Stammdaten::gleicherKunde(const QString& abfrage, const Quellzeile& z) const {
    Recordset rs = db().OpenRecordset(abfrage);
    if (rs.Eof())
        return {};
    const QString adresse3 = z.text("Adresse3");
    for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext())
        if (textGleich(rs.Text("Strasse"), z.text("Adresse")) && textGleich(rs.Text("Plz"), sPLZ(adresse3)) &&
            textGleich(rs.Text("Stadt"), sStadt(adresse3)))
            return rs.Field("KundeID");
    return {};
}

QVariant Stammdaten::neuerKunde(const Quellzeile& z) {
    m_kunden.AddNew();
    const qint32 neu = NeueID("", m_kunden.Name());
    m_kunden.setField("KundeID", neu);
    NeueZeileVorbelegen("Kunde", m_kunden, QVariant());
    m_kunden.setField("Name", z.text("Kunden"));
    m_kunden.setField("Firma", z.text("Kunden"));
    m_kunden.setField("Kundennummer", z.text("Nr"));
    m_kunden.setField("Strasse", z.text("Adresse"));
    m_kunden.setField("Plz", sPLZ(z.text("Adresse3")));
    m_kunden.setField("Stadt", sStadt(z.text("Adresse3")));
    m_kunden.Update();
    return neu;
}

QVariant Stammdaten::anlage(const Quellzeile& z, const QVariant& kundeID) {
    // As for the customer: the texts are literals, and the statement for rows without customer and
    // plant keeps its old spelling, which looks at every customer's plants.
    const QString abfrage = ohneKundeUndAnlage(z)
                                ? QString("SELECT * FROM 0100_Anlage where Name = ''AND Code =''")
                                : "SELECT * FROM 0100_Anlage where Name = " + literal(z.text("Anlage")) +
                                      " AND Code =" + literal(z.text("Anlage")) +
                                      " AND KundeID = " + text(kundeID) +
                                      " AND Anlagenplaner = " + literal(z.text("Anlagenplaner"));
    const Recordset rs = db().OpenRecordset(abfrage);
    return rs.Eof() ? neueAnlage(z, kundeID) : rs.Field("AnlageID");
}

QVariant Stammdaten::neueAnlage(const Quellzeile& z, const QVariant& kundeID) {
    const QVariant nächste = nächstePrüfung(z);
    m_anlagen.AddNew();
    const qint32 neu = NeueID("", m_anlagen.Name());
    m_anlagen.setField("AnlageID", neu);
    NeueZeileVorbelegen("Anlage", m_anlagen, kundeID);
    m_anlagen.setField("KundeID", kundeID);
    m_anlagen.setField("Code", z.text("Anlage"));
    m_anlagen.setField("Name", z.text("Anlage"));
    m_anlagen.setField("NächstePrüfung", nächste);
    m_anlagen.setField("Anlagenplaner", z.text("Anlagenplaner"));
    m_anlagen.Update();
    return neu;
}

} // namespace vemo
