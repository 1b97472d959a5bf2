#include "core/Sprachen.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "platform/Fehler.h"
#include "platform/Ui.h"
#include "store/Literal.h"

namespace vemo {

namespace {

// The columns a new text fills: the German of both regions.
const QString deutscheSpalten[] = {"Deutsch (&Deutschland)", "Deutsch (&Österreich)"};

// What a text without translation shows, so that the translator sees what is missing.
const QString ohneÜbersetzung = "xxx";

struct Zerlegt {
    QString kern;   // the text the table holds
    QString endung; // ":" or "...", put back behind the translation
};

// Captions end in ":" or "..."; the table holds them without that ending. "..." alone is a text.
Zerlegt endungAbtrennen(const QString& text) {
    if (text.endsWith(':'))
        return {text.chopped(1), ":"};
    if (text.endsWith("...") && text != "...")
        return {text.chopped(3), "..."};
    return {text, {}};
}

// The look-up in the language database's dialect. Texts to translate come from files and dumps too
// (word tables, function names), so the text is a literal: a quote in it is a quote.
QString suchAnweisung(const QString& spalte, const QString& kern) {
    return "SELECT Sprache.[" + spalte + "] FROM Sprache " + "WHERE (((Sprache.TextID) = " + literal(kern) +
           "));";
}

MsgStil information() {
    MsgStil stil;
    stil.symbol = MsgSymbol::Information;
    return stil;
}

QString ohneDatenbankText(const QString& name) {
    return "Zuerst eine Datenbank zuweisen, sonst kann nicht geprüft werden,\r\n"
           "ob die Sprache " +
           name +
           " vorhanden ist\r\n"
           "Hierzu die Eigenschaften .VerzeichnisDatenbank und .NameDatenbank setz\r\n"
           "Dann die Methode .DatenbankZuweisen starten";
}

} // namespace

QString Sprachen::verbindungsText() const {
    return "MS Access;pwd=" + m_passwort;
}

QString Sprachen::dateipfad() const {
    if (Datenbank::istServer(m_name))
        return m_name;
    QString verzeichnis = m_verzeichnis;
    while (verzeichnis.size() > 1 && (verzeichnis.endsWith('\\') || verzeichnis.endsWith('/')))
        verzeichnis.chop(1);
    return ohneGroßKlein(verzeichnis, m_name);
}

void Sprachen::DatenbankZuweisen() {
    const Datenbank db = Datenbank::OpenDatabase(dateipfad(), verbindungsText());
    m_suchen = db.QueryDefs("Suchen");
    m_db = db;
}

void Sprachen::spracheWählen(const QString& name) {
    m_sprache = name;
    if (!m_db.istOffen()) {
        ui().MsgBox(ohneDatenbankText(name), modul().anwendungstitel, information());
        return;
    }
    try {
        m_suchen.Parameters("paraDeutsch") = QString();
        const Recordset spalten = m_suchen.OpenRecordset();
        for (int i = 0; i < spalten.FieldCount(); ++i)
            if (spalten.FieldName(i).compare(name, Qt::CaseInsensitive) == 0)
                return;
        ui().MsgBox("Sprache: " + name + "\r\nnicht vorhanden. Deutsch wird eingestellt !",
                    modul().anwendungstitel, information());
        m_sprache = Standard;
    } catch (const Fehler& f) {
        fehlerZeigen(f);
    }
}

QString Sprachen::xText(const QString& text, const QString& sprache) {
    if (text.isEmpty())
        return {};
    if (!m_db.istOffen())
        return text;
    const Zerlegt z = endungAbtrennen(text);
    try {
        return nachschlagen(z.kern, z.endung, sprache.isEmpty() ? m_sprache : sprache);
    } catch (const Fehler& f) {
        if (f.nummer() == fehler::KeinAktuellerDatensatz)
            return neuerText(z.kern, text);
        return {};
    }
}

QString Sprachen::nachschlagen(const QString& kern, const QString& endung, const QString& spalte) {
    m_letzteSuche = m_db.OpenRecordset(suchAnweisung(spalte, kern));
    const QString übersetzung = m_letzteSuche.Text(spalte); // no row: 3021
    if (übersetzung.trimmed().isEmpty())
        return ohneÜbersetzung;
    return übersetzung + endung;
}

// The table learns the text: its key cut to the size of TextID, the German columns in full. A text
// longer than the key is thus added again at each asking, since the full text never finds the cut key.
QString Sprachen::neuerText(const QString& kern, const QString& text) const {
    try {
        const Datenbank db = Datenbank::OpenDatabase(dateipfad(), verbindungsText());
        Recordset sprache = db.OpenRecordset("SELECT Sprache.TextID, Sprache.* FROM Sprache");
        const int größe = sprache.FieldSize("Sprache.TextID");
        sprache.AddNew();
        sprache.setField("TextID", kern.left(größe));
        for (const QString& spalte : deutscheSpalten)
            sprache.setField(spalte, kern);
        sprache.setField("VersionID", m_version);
        sprache.Update();
    } catch (const Fehler&) {
        // A table that cannot learn the text still leaves the user the German text.
    }
    return text;
}

QString Sprachen::perAbfrage(const QString& text, const QString& spalte) {
    if (!m_db.istOffen())
        return text;
    try {
        m_suchen.Parameters("paraDeutsch") = text;
        m_letzteSuche = m_suchen.OpenRecordset();
        if (m_letzteSuche.Eof())
            return text;
        const QString übersetzung = m_letzteSuche.Text(spalte);
        // A printed report rather shows the German text than a gap.
        return übersetzung.trimmed().isEmpty() ? text : übersetzung;
    } catch (const Fehler&) {
        return text;
    }
}

QString Sprachen::xTextReport(const QString& text, const QString& sprache) {
    return perAbfrage(text, sprache.isEmpty() ? m_sprache : sprache);
}

QString Sprachen::xTextNurStandard(const QString& text) {
    return perAbfrage(text, Standard);
}

} // namespace vemo
