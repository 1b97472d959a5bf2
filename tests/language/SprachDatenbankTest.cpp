#include "Sprachumgebung.h"

#include "platform/Version.h"

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>

namespace vemo::test {
namespace {

using SprachDatenbankTest = Sprachumgebung;

// The text of a string literal between its quotes.
QString entmaskiert(const QString& literal) {
    static const QHash<QChar, QChar> steuerzeichen{{'n', '\n'}, {'r', '\r'}, {'t', '\t'}};
    QString text;
    for (qsizetype i = 0; i < literal.size(); ++i) {
        const bool maskiert = literal[i] == '\\' && i + 1 < literal.size();
        if (maskiert)
            ++i;
        text += maskiert ? steuerzeichen.value(literal[i], literal[i]) : literal[i];
    }
    return text;
}

// The texts the sources hand to xText as they stand: one string literal, or adjacent ones, that
// make the whole argument. Texts put together at run time are not seen.
QStringList textliteraleDerQuellen() {
    static const QRegularExpression aufruf(R"re(\bxText\s*\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+)[,)])re");
    static const QRegularExpression literal(R"re("((?:[^"\\]|\\.)*)")re");
    QStringList texte;
    for (const char* ordner : {"src", "app"}) {
        QDirIterator it(quelle(ordner), {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            QFile datei(it.next());
            EXPECT_TRUE(datei.open(QIODevice::ReadOnly)) << datei.fileName().toStdString();
            const QString quelltext = QString::fromUtf8(datei.readAll());
            for (const auto& a : aufruf.globalMatch(quelltext)) {
                QString text;
                for (const auto& l : literal.globalMatch(a.captured(1)))
                    text += entmaskiert(l.captured(1));
                texte << text;
            }
        }
    }
    texte.removeDuplicates();
    return texte;
}

TEST_F(SprachDatenbankTest, OhneSprachdateiBleibtEsDeutsch) {
    ASSERT_TRUE(QFile::remove(pfad(sprachdatenbank::DateiName)));
    spracheEinstellen(Englisch);
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("3024 ")) << m_ui.meldungen[0].text.toStdString();
    EXPECT_EQ(modul().sprachen.Sprache(), Englisch);
    EXPECT_EQ(xText("Kunde:"), "Kunde:");
}

// Every text the code asks for ships with its translation: the look-up neither shows "xxx" nor has
// to learn the text.
TEST_F(SprachDatenbankTest, JederTextDerQuellenIstÜbersetzt) {
    const QStringList texte = textliteraleDerQuellen();
    ASSERT_GT(texte.size(), 50);
    EXPECT_TRUE(texte.contains("Datenübertragung läuft...")) << "the scan misses the calls";
    EXPECT_TRUE(
        texte.contains("Datum oder Uhrzeit des Beginns ist ungültig. Bitte Tag, Monat, Jahr, Stunde, Minute "
                       "und Sekunde prüfen."))
        << "adjacent literals are one text";

    QStringList fehlend;
    for (const QString& text : texte) {
        const QString vorher = spracheWert("SELECT Count(*) FROM Sprache");
        const QString englisch = m_sprachen.xText(text, Englisch);
        if (englisch == "xxx" || englisch.isEmpty() || spracheWert("SELECT Count(*) FROM Sprache") != vorher)
            fehlend << text;
    }
    EXPECT_EQ(fehlend, QStringList());
}

} // namespace
} // namespace vemo::test
