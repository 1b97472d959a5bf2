#include "Sprachumgebung.h"

#include "platform/Version.h"

#include <QFile>
#include <QSet>

namespace vemo::test {
namespace {

using SprachDatenbankTest = Sprachumgebung;

TEST_F(SprachDatenbankTest, JederTextIstAuffindbarUndÜbersetzt) {
    Recordset rs = sprachDb().OpenRecordset("SELECT Sprache.TextID, Sprache.* FROM Sprache");
    EXPECT_EQ(rs.FieldSize("Sprache.TextID"), 255);

    QStringList mängel;
    QSet<QString> gesehen;
    for (; !rs.Eof(); rs.MoveNext()) {
        const QString id = rs.Text("TextID");
        // A key with an ending that the look-up takes off could never be found.
        if (id.endsWith(':') || (id.endsWith("...") && id != "..."))
            mängel << "Endung: " + id;
        for (const char* spalte :
             {"Deutsch", "Deutsch (&Deutschland)", "Deutsch (&Österreich)", "English (United Kingdom)"})
            if (rs.Text(spalte).trimmed().isEmpty())
                mängel << QString("leer in ") + spalte + ": " + id;
        if (gesehen.contains(id.toLower())) // the key compares without regard to case
            mängel << "doppelt: " + id;
        gesehen.insert(id.toLower());
    }
    EXPECT_EQ(mängel, QStringList());
}

TEST_F(SprachDatenbankTest, DieTexteDesProgrammsStehenBereit) {
    // Reason labels, instrument names and a caption of the host, each as the component asks for it.
    EXPECT_EQ(m_sprachen.xText("Grund1", Deutschland), "Neuanlage");
    EXPECT_EQ(m_sprachen.xText("Grund4"), "Periodic inspection");
    EXPECT_EQ(m_sprachen.xText("Ser. Nr.:"), "Serial No.:");
    EXPECT_EQ(m_sprachen.xText("Datenübertragung läuft..."), "Data transfer in progress...");
    EXPECT_EQ(m_sprachen.xText("RS232-Taste am Corvex drücken ..."), "Press the RS232 key on the Corvex ...");
    EXPECT_EQ(m_sprachen.xText(" keine Anlage"), " no installation");
    EXPECT_EQ(m_sprachen.xText("Sicherungsverzeichnis"), "Backup folder");
    EXPECT_GT(m_sprachen.xText("EinlesedatenHilfetext", Deutschland).size(), 100);
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

TEST_F(SprachDatenbankTest, SpracheEinstellenÖffnetDieDatenbankBeimHost) {
    spracheEinstellen(Englisch);
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
    EXPECT_EQ(modul().sprachen.Sprache(), Englisch);
    EXPECT_EQ(xText("Kunde:"), "Customer:");
    // A text the table learns is marked with the version of the component that brought it.
    EXPECT_EQ(xText("Neuer Hinweis"), "Neuer Hinweis");
    EXPECT_EQ(spracheWert("SELECT VersionID FROM Sprache WHERE TextID = 'Neuer Hinweis'"),
              komponentenVersion);
    EXPECT_FALSE(komponentenVersion.isEmpty());

    spracheEinstellen("Esperanto");
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("Sprache: Esperanto"));
    EXPECT_EQ(modul().sprachen.Sprache(), "Deutsch");
}

TEST_F(SprachDatenbankTest, OhneSprachdateiBleibtEsDeutsch) {
    ASSERT_TRUE(QFile::remove(pfad(sprachdatenbank::DateiName)));
    spracheEinstellen(Englisch);
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("3024 ")) << m_ui.meldungen[0].text.toStdString();
    EXPECT_EQ(modul().sprachen.Sprache(), Englisch);
    EXPECT_EQ(xText("Kunde:"), "Kunde:");
}

} // namespace
} // namespace vemo::test
