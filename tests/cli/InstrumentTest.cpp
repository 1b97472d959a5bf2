#include "support/Kommandozeile.h"
#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include "store/Datenbank.h"
#include "store/Recordset.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>

namespace vemo::test {
namespace {

// vemo0100 instrument with a 37xx instrument in the simulator on a pseudo-terminal, and without one.
class InstrumentTest : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        ASSERT_EQ(vemo({"init-db", db()}).status, 0);
    }
    QString db() const { return pfad("cli/vemotrix.db"); }

    // The program with the database, the port and type 104, and the arguments given.
    Lauf vemo(const QStringList& argumente, const QStringList& global = {}) const {
        QStringList alle = argumente;
        if (argumente.value(0) != "init-db")
            alle = QStringList{"--db", db(), "--settings", pfad("cli/settings.ini"), "--type", "104"} +
                   global + argumente;
        return vemo0100(alle);
    }
    Lauf amPort(const QStringList& argumente, const QStringList& global = {}) const {
        return vemo(QStringList{"instrument"} + argumente, QStringList{"--port", pfad("port")} + global);
    }
    // Whether the simulator has logged the line, within a second.
    static bool protokolliert(Simulator& sim, const QString& zeile) {
        const QDeadlineTimer frist(1000);
        while (!sim.protokoll().contains(zeile) && !frist.hasExpired()) {
            sim.prozess().waitForReadyRead(50);
            QCoreApplication::processEvents();
        }
        return sim.protokoll().contains(zeile);
    }
    static QString zeile(const Lauf& l, const QString& anfang) {
        for (const QString& z : l.aus.split('\n'))
            if (z.startsWith(anfang))
                return z.mid(anfang.size());
        return "<keine Zeile " + anfang + ">";
    }
};

// The instrument as it comes (factory clock, its serial number), its clock synced from the
// computer's, and the identification sent as eight characters and read back.
TEST_F(InstrumentTest, TheClockIsSyncedAndTheIdentificationSentAsEightCharacters) {
    Simulator sim({"--type", "104", "--records", "1", "--link", pfad("port")});
    ASSERT_FALSE(sim.gerät().isEmpty());

    const Lauf vorher = amPort({});
    EXPECT_EQ(vorher.status, 0) << vorher.fehler.toStdString();
    EXPECT_EQ(vorher.aus.split('\n').value(0), "instrument: ZEMAK 3710B V3.02");
    EXPECT_EQ(zeile(vorher, "serial: "), "00471103");
    EXPECT_TRUE(zeile(vorher, "clock: ").startsWith("01.01.2020 00:00")) << vorher.aus.toStdString();

    const Lauf gestellt = amPort({"--sync-clock"});
    EXPECT_EQ(gestellt.status, 0) << gestellt.fehler.toStdString();
    const QDateTime uhr = QDateTime::fromString(zeile(gestellt, "clock: "), "dd.MM.yyyy HH:mm:ss");
    ASSERT_TRUE(uhr.isValid()) << gestellt.aus.toStdString();
    EXPECT_LE(std::abs(uhr.secsTo(QDateTime::currentDateTime())), 5);

    const Lauf kurz = amPort({"--set-id", "AB"});
    EXPECT_EQ(kurz.status, 0) << kurz.fehler.toStdString();
    EXPECT_EQ(zeile(kurz, "serial: "), "      AB");
    const Lauf lang = amPort({"--set-id", "123456789"});
    EXPECT_EQ(zeile(lang, "serial: "), "23456789");
    EXPECT_TRUE(protokolliert(sim, "vemo0100-sim: identification set to ZEMAK 3710B,V3.02,      AB"))
        << sim.protokoll().join('\n').toStdString();
}

// The question's default is no; --yes answers it, and the next transfer finds nothing.
TEST_F(InstrumentTest, ClearingTheMemoryAsksFirst) {
    Simulator sim({"--type", "104", "--records", "3", "--link", pfad("port")});
    const Lauf nein = amPort({"--clear-memory"});
    EXPECT_EQ(nein.status, 0);
    EXPECT_TRUE(nein.fehler.contains(
        "vemotrix professional - Prüfgerätespeicher löschen: Sicher Prüfgerätespeicher?"))
        << nein.fehler.toStdString();
    // The memory still there: received with the query dialog's lines on the console, its share in
    // tens, and read in.
    const Lauf empfang = vemo({"receive"}, {"--port", pfad("port")});
    EXPECT_EQ(empfang.status, 0);
    EXPECT_TRUE(
        empfang.fehler.contains("ZEMAK 3710B V3.02 gefunden\n3 Messungen werden übertragen. Bitte warten!\n"))
        << empfang.fehler.toStdString();
    EXPECT_TRUE(empfang.fehler.endsWith("\n100%\n")) << empfang.fehler.toStdString();
    const Datenbank cli = Datenbank::OpenDatabase(db());
    EXPECT_EQ(cli.OpenRecordset("SELECT Count(*) FROM 0100_EinleseDaten").Field(0).toInt(), 3);

    const Lauf ja = amPort({"--clear-memory"}, {"--yes"});
    EXPECT_EQ(ja.status, 0) << ja.fehler.toStdString();
    EXPECT_TRUE(protokolliert(sim, "vemo0100-sim: memory cleared"));
    const Lauf leer = vemo({"receive"}, {"--port", pfad("port")});
    EXPECT_EQ(leer.status, 1);
    EXPECT_TRUE(leer.fehler.contains("keine Daten vorhanden !")) << leer.fehler.toStdString();
}

TEST_F(InstrumentTest, NoInstrumentAnsweringIsNoConnection) {
    // A Quentavoir answers under its maker's name, not as the ZEMAK the type asks for.
    Simulator sim({"--type", "106", "--records", "1", "--link", pfad("port")});
    const Lauf l = amPort({"--set-id", "AB"});
    EXPECT_EQ(l.status, 1);
    EXPECT_EQ(l.aus, "instrument: (keine Verbindung)\n");
    sim.prozess().waitForReadyRead(200);
    EXPECT_FALSE(sim.protokoll().join('\n').contains("identification set"));

    const Lauf ohnePort = vemo({"instrument"}, {"--port", pfad("nirgends")});
    EXPECT_EQ(ohnePort.status, 1);
    EXPECT_TRUE(ohnePort.fehler.startsWith("vemotrix professional: Ungültige Anschlussnummer"))
        << ohnePort.fehler.toStdString();
    EXPECT_EQ(vemo({"instrument"}).status, 2) << "no port to ask";
    EXPECT_EQ(amPort({"--customer-digits", "4"}).status, 2);
    EXPECT_EQ(amPort({"--board-digits", "x"}).status, 2);
    EXPECT_EQ(amPort({"--code-splitting", "yes"}).status, 2);
}

} // namespace
} // namespace vemo::test
