#pragma once

#include "store/Datenbank.h"
#include "store/Recordset.h"

#include <QString>

namespace vemo {

// Translation of the component's texts. The German text is the key: every dialog asks with its
// German literal, and the table Sprache of the language database answers with the column of the
// chosen language. A text the table does not know yet is added by the asking, so that a translator
// finds every new text of the program there.
class Sprachen {
public:
    // The column a look-up reads when no language has been chosen, and the one a language that the
    // database lacks falls back to.
    static inline const QString Standard = "Deutsch";

    void setPasswort(const QString& passwort) { m_passwort = passwort; }
    QString Version() const { return m_version; }
    void setVersion(const QString& version) { m_version = version; }
    QString VerzeichnisDatenbank() const { return m_verzeichnis; }
    void setVerzeichnisDatenbank(const QString& verzeichnis) { m_verzeichnis = verzeichnis; }
    QString NameDatenbank() const { return m_name; }
    void setNameDatenbank(const QString& name) { m_name = name; }

    // Opens the language database named by VerzeichnisDatenbank and NameDatenbank; raises the
    // store's error when it cannot be opened or lacks the query Suchen.
    void DatenbankZuweisen();
    bool hatDatenbank() const { return m_db.istOffen(); }

    // The language as it stands. setSprache only stores the name: code that merely picks a column
    // uses it. The host's write of the property is spracheWählen, which checks the name.
    QString Sprache() const { return m_sprache; }
    void setSprache(const QString& name) { m_sprache = name; }
    // Stores the name and checks it against the columns of the language database. A name the
    // database lacks is told to the user and replaced by "Deutsch"; without a database the user is
    // told how to assign one first.
    void spracheWählen(const QString& name);

    // The text in the language (empty: the property Sprache). A known text without translation
    // gives "xxx"; an unknown one is added to the table and comes back in German. Without a
    // database the component speaks German: the text comes back as it is.
    QString xText(const QString& text, const QString& sprache = {});
    // The look-up for printed reports: never adds a row; an unknown text comes back as it is.
    QString xTextReport(const QString& text, const QString& sprache = {});
    // The same look-up in the standard column.
    QString xTextNurStandard(const QString& text);

private:
    QString nachschlagen(const QString& kern, const QString& endung, const QString& spalte);
    QString neuerText(const QString& kern, const QString& text) const;
    QString perAbfrage(const QString& text, const QString& spalte);
    QString dateipfad() const;
    QString verbindungsText() const;

    QString m_passwort;
    QString m_version;
    QString m_verzeichnis;
    QString m_name;
    QString m_sprache = Standard;

    Datenbank m_db;
    QueryDef m_suchen;
    Recordset m_letzteSuche; // the record set of the last look-up
};

} // namespace vemo
