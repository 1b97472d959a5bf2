#include "language/Tools.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QTemporaryDir>
#include <QUrl>
#include <gtest/gtest.h>

namespace vemo {
namespace {

// Stands in for the desktop: records the files it is asked to open instead of starting anything.
class Desktop : public QObject {
    Q_OBJECT
public:
    Desktop() { QDesktopServices::setUrlHandler("file", this, "merken"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler("file"); }
    QList<QUrl> urls;

public slots:
    void merken(const QUrl& url) { urls << url; }
};

TEST(ToolsTest, DateiGehtAnDenDesktop) {
    Desktop desktop;
    QTemporaryDir dir;
    EXPECT_TRUE(Tools::AnwendungMitDateiStarten(0, "00000042.ser", "", dir.path()));
    EXPECT_TRUE(Tools::AnwendungMitDateiStarten(0, dir.filePath("Hilfe.pdf"), "/s", ""));
    ASSERT_EQ(desktop.urls.size(), 2);
    EXPECT_EQ(desktop.urls[0], QUrl::fromLocalFile(QDir(dir.path()).filePath("00000042.ser")));
    EXPECT_EQ(desktop.urls[1], QUrl::fromLocalFile(dir.filePath("Hilfe.pdf")));
}

// The registry as the platform keeps it, written by hand into a folder of the test's own: a path
// with backslashes and a list with commas stand there as they would be typed.
class RegistryTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_altesConfig = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", m_dir.path().toLocal8Bit());
        const QString ort = Tools::registryOrt("HKEY_CURRENT_USER");
        ASSERT_TRUE(QDir().mkpath(QFileInfo(ort).path()));
        QFile datei(ort);
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write("; the workshop's paths\n"
                    "[Software\\vemotrix\\Pfade]\n"
                    "Sicherung=C:\\Daten\\Sicherung\n"
                    "Orte = Keller, Dach \"Süd\", Garage\r\n"
                    "Default=Pfade der Werkstatt\n"
                    "Mit Null=vorn" +
                    QByteArray(1, '\0') +
                    "hinten\n"
                    "Liste=@ByteArray(COM1 COM2)\n");
    }
    void TearDown() override { qputenv("XDG_CONFIG_HOME", m_altesConfig); }

    QTemporaryDir m_dir;
    QByteArray m_altesConfig;
    Tools m_tools;
};

TEST_F(RegistryTest, SchlüsselUndTexteWerdenGelesenFehlendeÖffnenNichts) {
    quint32 vemotrix = 0;
    ASSERT_TRUE(m_tools.SchlüsselÖffnen(Tools::HkeyCurrentUser, "Software\\vemotrix", vemotrix));
    EXPECT_EQ(m_tools.SchlüsselPfad(vemotrix), "HKEY_CURRENT_USER\\Software\\vemotrix");
    quint32 pfade = 0;
    ASSERT_TRUE(m_tools.SchlüsselÖffnen(vemotrix, "PFADE", pfade)); // the registry ignores case
    EXPECT_NE(pfade, vemotrix);
    EXPECT_EQ(m_tools.SchlüsselPfad(pfade), "HKEY_CURRENT_USER\\Software\\vemotrix\\PFADE");

    QString text;
    EXPECT_TRUE(m_tools.WertLesen(pfade, "sicherung", text));
    EXPECT_EQ(text, "C:\\Daten\\Sicherung");
    EXPECT_TRUE(m_tools.WertLesen(pfade, "Orte", text));
    EXPECT_EQ(text, "Keller, Dach \"Süd\", Garage");
    EXPECT_TRUE(m_tools.WertLesen(pfade, "", text)); // the key's own value
    EXPECT_EQ(text, "Pfade der Werkstatt");
    EXPECT_TRUE(m_tools.WertLesen(pfade, "Mit Null", text));
    EXPECT_EQ(text, "vorn");

    // No text, no value, no key: False and nothing handed out.
    EXPECT_FALSE(m_tools.WertLesen(pfade, "Liste", text));
    EXPECT_EQ(text, "");
    text = "alt";
    EXPECT_FALSE(m_tools.WertLesen(pfade, "Fehlt", text));
    EXPECT_EQ(text, "");
    EXPECT_FALSE(m_tools.WertLesen(vemotrix, "Sicherung", text)); // a value of the subkey only
    EXPECT_FALSE(m_tools.WertLesen(77, "Sicherung", text));

    // Missing keys open nothing.
    quint32 handle = 7;
    EXPECT_FALSE(m_tools.SchlüsselÖffnen(Tools::HkeyLocalMachine, "Software\\vemotrix", handle));
    EXPECT_FALSE(m_tools.SchlüsselÖffnen(Tools::HkeyCurrentUser, "Software\\vemotrix\\Fehlt", handle));
    EXPECT_FALSE(m_tools.SchlüsselÖffnen(42, "Software", handle)); // a parent never opened
    EXPECT_EQ(handle, 7u);
    EXPECT_EQ(m_tools.SchlüsselPfad(pfade + 1), ""); // nothing was remembered
}

} // namespace
} // namespace vemo

#include "ToolsTest.moc"
