#include "language/Tools.h"

#include <QDesktopServices>
#include <QDir>
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

TEST(ToolsTest, RegistryOhneSchlüssel) {
    Tools tools;
    EXPECT_EQ(tools.SchlüsselPfad(0x80000002), "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(tools.SchlüsselPfad(0x80000000), "HKEY_CLASSES_ROOT");
    EXPECT_EQ(tools.SchlüsselPfad(0x80000003), "HKEY_USERS");
    EXPECT_EQ(tools.SchlüsselPfad(0x80000004), "");
    EXPECT_EQ(tools.SchlüsselPfad(0), "");

    // This platform keeps no registry: nothing opens, nothing is read, nothing is remembered.
    quint32 handle = 7;
    EXPECT_FALSE(tools.SchlüsselÖffnen(0x80000001, "Software\\vemotrix", handle));
    EXPECT_EQ(handle, 7u);
    EXPECT_EQ(tools.SchlüsselPfad(7), "");
    QString text = "alt";
    EXPECT_FALSE(tools.WertLesen(0x80000001, "Pfad", text));
    EXPECT_EQ(text, "");
}

} // namespace
} // namespace vemo

#include "ToolsTest.moc"
