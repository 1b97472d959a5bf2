#pragma once

#include "core/Sprachen.h"
#include "language/SprachDatenbank.h"
#include "support/Testumgebung.h"

namespace vemo::test {

// A host database with the language database beside it, as init-db writes them, and a Sprachen
// assigned to it with English chosen.
class Sprachumgebung : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        spracheDatenbankAnlegen(m_dir.path());
        m_sprachen.setVerzeichnisDatenbank(m_dir.path());
        m_sprachen.setNameDatenbank(sprachdatenbank::DateiName);
        m_sprachen.setPasswort(sprachdatenbank::Passwort);
        m_sprachen.DatenbankZuweisen();
        m_sprachen.spracheWählen(Englisch);
    }

    Datenbank sprachDb() const { return Datenbank::OpenDatabase(pfad(sprachdatenbank::DateiName)); }
    // The first column of the first row of a query on the language database, as text.
    QString spracheWert(const QString& abfrage, const QVector<QVariant>& werte = {}) const {
        Recordset rs = sprachDb().OpenRecordset(abfrage, werte);
        return rs.Eof() ? QString() : rs.Text(rs.FieldName(0));
    }
    long zeilenMitSchlüssel(const QString& textId) const {
        Recordset rs = sprachDb().OpenRecordset("SELECT TextID FROM Sprache");
        long n = 0;
        for (; !rs.Eof(); rs.MoveNext())
            n += rs.Text("TextID") == textId ? 1 : 0;
        return n;
    }

    static inline const QString Englisch = "English (United Kingdom)";
    static inline const QString Deutschland = "Deutsch (&Deutschland)";
    Sprachen m_sprachen;
};

} // namespace vemo::test
