#include "Sprachumgebung.h"

namespace vemo::test {
namespace {

using SprachenTest = Sprachumgebung;

// A new text is learned once, with its version; a text too long is cut and learned anew each time
// it is asked for, since the full text never finds the cut key; quotes are part of the text.
TEST_F(SprachenTest, NeueTexteWerdenAufgenommen) {
    m_sprachen.setVersion("2.5");
    EXPECT_EQ(m_sprachen.xText("Messwerte prüfen:"), "Messwerte prüfen:");
    ASSERT_EQ(zeilenMitSchlüssel("Messwerte prüfen"), 1);
    const QString zeile = "SELECT [Deutsch (&Deutschland)] & '|' & [Deutsch (&Österreich)] & '|' & "
                          "[English (United Kingdom)] & '|' & Deutsch & '|' & VersionID FROM Sprache "
                          "WHERE TextID = 'Messwerte prüfen'";
    EXPECT_EQ(spracheWert(zeile), "Messwerte prüfen|Messwerte prüfen|||2.5");

    // Found from now on: the other languages have no translation yet, German has the text.
    EXPECT_EQ(m_sprachen.xText("Messwerte prüfen:"), "xxx");
    EXPECT_EQ(m_sprachen.xText("Messwerte prüfen"), "xxx");
    EXPECT_EQ(m_sprachen.xText("Messwerte prüfen:", Deutschland), "Messwerte prüfen:");
    EXPECT_EQ(m_sprachen.xText("Messwerte prüfen", "Deutsch (&Österreich)"), "Messwerte prüfen");
    EXPECT_EQ(zeilenMitSchlüssel("Messwerte prüfen"), 1);

    const QString lang = QString("Hinweis zur Prüfung ").repeated(15); // 300 characters
    EXPECT_EQ(m_sprachen.xText(lang), lang);
    const QString gekürzt = lang.left(255);
    EXPECT_EQ(zeilenMitSchlüssel(gekürzt), 1);
    EXPECT_EQ(spracheWert("SELECT Len([Deutsch (&Deutschland)]) FROM Sprache WHERE TextID = ?", {gekürzt}),
              "300");

    // The full text never finds the cut key: each asking adds one more row.
    EXPECT_EQ(m_sprachen.xText(lang), lang);
    EXPECT_EQ(zeilenMitSchlüssel(gekürzt), 2);

    for (const QString text : {"Kabel 5\" lang", "Sag \"Hallo\"", "Prüfer's Notiz", "1' OR 1=1--"}) {
        EXPECT_EQ(m_sprachen.xText(text + ":"), text + ":");
        EXPECT_EQ(m_sprachen.xText(text, Deutschland), text);
        EXPECT_EQ(zeilenMitSchlüssel(text), 1) << text.toStdString();
    }
}

// The report's and the standard's look-ups never add anything; an unknown language falls back to
// German; without a database the user is told and German is spoken.
TEST_F(SprachenTest, NachschlagenOhneAufnehmenUndZurückAufDeutsch) {
    EXPECT_EQ(m_sprachen.xTextReport("Kunde"), "Customer");
    EXPECT_EQ(m_sprachen.xTextReport("Kunde", Deutschland), "Kunde");
    EXPECT_EQ(m_sprachen.xTextNurStandard("Grund4"), "Wiederholungsprüfung");
    EXPECT_EQ(m_sprachen.xTextReport("Gibt es nicht"), "Gibt es nicht");
    EXPECT_EQ(m_sprachen.xTextNurStandard("Gibt es nicht"), "Gibt es nicht");
    EXPECT_EQ(zeilenMitSchlüssel("Gibt es nicht"), 0);
    // The query takes the text as a parameter: quotes do no harm here.
    EXPECT_EQ(m_sprachen.xTextReport("Kabel 5\" lang"), "Kabel 5\" lang");

    m_sprachen.spracheWählen("Klingonisch");
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_EQ(m_ui.meldungen[0].text, "Sprache: Klingonisch\r\nnicht vorhanden. Deutsch wird eingestellt !");
    EXPECT_EQ(m_sprachen.Sprache(), "Deutsch");
    EXPECT_EQ(m_sprachen.xText("Grund1"), "Neuanlage");

    m_sprachen.spracheWählen(Englisch);
    EXPECT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_EQ(m_sprachen.Sprache(), Englisch);

    // A language asked for by name that the table lacks gives nothing, and adds nothing.
    EXPECT_EQ(m_sprachen.xText("Kunde", "Klingonisch"), "");
    EXPECT_EQ(zeilenMitSchlüssel("Kunde"), 1);

    m_ui.meldungen.clear();
    Sprachen ohne;
    ohne.spracheWählen(Englisch);
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_EQ(m_ui.meldungen[0].text,
              "Zuerst eine Datenbank zuweisen, sonst kann nicht geprüft werden,\r\n"
              "ob die Sprache English (United Kingdom) vorhanden ist\r\n"
              "Hierzu die Eigenschaften .VerzeichnisDatenbank und .NameDatenbank setz\r\n"
              "Dann die Methode .DatenbankZuweisen starten");
    EXPECT_EQ(m_ui.meldungen[0].titel, modul().anwendungstitel);
    EXPECT_EQ(ohne.Sprache(), Englisch);
    EXPECT_EQ(ohne.xText("Kunde:"), "Kunde:");
    EXPECT_EQ(ohne.xTextReport("Kunde"), "Kunde");

    // A directory that ends in its separator names the same file; a missing file assigns nothing.
    ohne.setVerzeichnisDatenbank(m_dir.path() + "/");
    ohne.setNameDatenbank("language.mdb");
    ohne.DatenbankZuweisen();
    EXPECT_EQ(ohne.xText("Kunde:"), "Customer:");
    Sprachen fehlt;
    fehlt.setVerzeichnisDatenbank(pfad("nirgends"));
    fehlt.setNameDatenbank(sprachdatenbank::DateiName);
    EXPECT_THROW(fehlt.DatenbankZuweisen(), Fehler);
    EXPECT_FALSE(fehlt.hatDatenbank());
}

} // namespace
} // namespace vemo::test
