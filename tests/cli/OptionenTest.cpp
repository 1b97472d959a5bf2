#include "Optionen.h"

#include "platform/Version.h"
#include "support/Kommandozeile.h"
#include "support/Testumgebung.h"

namespace vemo::test {
namespace {

std::optional<Optionen> lesen(const QStringList& argumente) {
    QString fehler;
    auto o = optionenLesen(argumente, fehler);
    EXPECT_EQ(o.has_value(), fehler.isEmpty()) << fehler.toStdString();
    return o;
}

// Every run of the program passes the common options; what they do not show: a value joined by
// "=", a value that begins with a minus, --yes behind the command, a command's switch and its
// arguments.
TEST(OptionenTest, GlobaleOptionenVorUndBefehlsoptionenHinterDemBefehl) {
    const auto o = lesen({"--db", "a.db", "--locale", "de_DE", "--replica", "7", "--type=100", "assign",
                          "--rows", "1-3", "--key", "-5", "--yes"});
    ASSERT_TRUE(o);
    EXPECT_EQ(o->anfrage, Anfrage::Befehl);
    EXPECT_EQ(QStringList({o->db, o->locale, o->replica, o->typ}),
              QStringList({"a.db", "de_DE", "7", "100"}));
    EXPECT_TRUE(o->ja);
    EXPECT_EQ(o->befehl, "assign");
    EXPECT_EQ(o->option("--rows"), "1-3");
    EXPECT_EQ(o->option("--key"), "-5");
    EXPECT_FALSE(o->schalter("--json"));

    const auto init = lesen({"init-db", "neu.db", "--demo"});
    ASSERT_TRUE(init);
    EXPECT_EQ(init->argumente, QStringList{"neu.db"});
    EXPECT_TRUE(init->schalter("--demo"));
    EXPECT_FALSE(init->ja);
    EXPECT_FALSE(init->option("--rows"));
}

// What the contract does not hold is refused, never ignored: an option of another command, a
// global option behind the command, an option without its value, and what a command does not take.
TEST(OptionenTest, WasNichtPasstWirdAbgewiesen) {
    const QList<QStringList> aufrufe{
        {},
        {"--frob", "grid"},
        {"--db"},
        {"--db", "a.db", "frob"},
        {"--db", "a.db", "grid", "--rows", "1"},
        {"--db", "a.db", "grid", "extra"},
        {"--db", "a.db", "assign", "--rows"},
        {"--db", "a.db", "grid", "--db", "b.db"},
        {"--db", "a.db", "--customer", "Sommer", "grid"},
        {"--db", "a.db", "assign-device", "--rows", "1"},
    };
    for (const QStringList& aufruf : aufrufe) {
        QString fehler;
        EXPECT_FALSE(optionenLesen(aufruf, fehler)) << aufruf.join(' ').toStdString();
        EXPECT_FALSE(fehler.isEmpty()) << aufruf.join(' ').toStdString();
    }
}

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
