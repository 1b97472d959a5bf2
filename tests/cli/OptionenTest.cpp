#include "Optionen.h"

#include "platform/Version.h"
#include "support/Kommandozeile.h"
#include "support/Testumgebung.h"

namespace vemo::test {
namespace {

// The usage asked for goes to standard output with status 0; a usage error to stderr with status 2.
TEST(ProgrammTest, HilfeVersionUndFalscherAufruf) {
    for (const QStringList& aufruf : {QStringList{"--help"}, QStringList{"--db", "a.db", "-h"},
                                      QStringList{"--db", "a.db", "receive", "--help"}}) {
        const Lauf l = vemo0100(aufruf);
        EXPECT_EQ(l.status, 0);
        EXPECT_EQ(l.aus, Gebrauch);
        EXPECT_EQ(l.fehler, "");
    }
    const Lauf version = vemo0100({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.aus, "vemo0100 " + komponentenVersion + "\n");

    for (const QStringList& aufruf : {QStringList{"frobnicate"}, QStringList{"--frob"}, QStringList{}}) {
        const Lauf l = vemo0100(aufruf);
        EXPECT_EQ(l.status, 2) << aufruf.join(' ').toStdString();
        EXPECT_EQ(l.aus, "");
        EXPECT_TRUE(l.fehler.startsWith("vemo0100: ")) << l.fehler.toStdString();
        EXPECT_TRUE(l.fehler.endsWith(Gebrauch)) << l.fehler.toStdString();
    }
    EXPECT_TRUE(vemo0100({"frobnicate"}).fehler.contains("frobnicate"));
}

} // namespace
} // namespace vemo::test
