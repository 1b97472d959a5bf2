// An office of four workplaces on one database (a server's, or a file's on one machine), each with
// its own settings, work folder and backups and its own instrument. They read their dumps in at the
// same time, round after round, then all take over at once, and one of them is killed in the middle
// of it. Every measured row arrives once, and the records equal those one workplace alone makes of
// the same dumps in a file.
#include "core/Schluesselvergabe.h"
#include "store/Variant.h"
#include "support/Kommandozeile.h"
#include "support/Testumgebung.h"

#include <QDir>
#include <QProcess>
#include <QThread>
#include <array>

using namespace vemo;

namespace {

constexpr int Runden = 3;

// A workplace's instrument and the demo data's customer and plant its rows are assigned to.
struct Arbeitsplatz {
    const char* probe;
    const char* gerät;
    int kunde;
    int anlage;
};
constexpr std::array<Arbeitsplatz, 4> Büro{{
    {"corvex-verteilung.ser", "0100-Corvex", 1, 1},
    {"zemak-3740.ser", "ZEMAK 3740B", 1, 2},
    {"kontalex.ser", "KONTALEX", 2, 3},
    {"voltira.ser", "VOLTIRA 9KV", 3, 4},
}};

class BueroTest : public test::Motorumgebung {
protected:
    // A database set up as an office sets one up, and the test's own connection to it.
    void einrichten(const QString& name) {
        const test::Lauf lauf = test::vemo0100({"init-db", name, "--demo"});
        ASSERT_EQ(lauf.status, 0) << lauf.fehler.toStdString();
        NeueID("", "");
        modul().db = Datenbank::OpenDatabase(name);
        m_dbPfad = name;
    }

    // The command line as workplace i runs it.
    QStringList platz(size_t i, const QStringList& befehl) const {
        const QString ordner = pfad("platz" + QString::number(i));
        QDir(ordner).mkpath("arbeit");
        QDir(ordner).mkpath("sicherung");
        return QStringList{"--db",      m_dbPfad,           "--settings", ordner + "/settings.ini",
                           "--workdir", ordner + "/arbeit", "--backup",   ordner + "/sicherung"} +
               befehl;
    }
    QStringList einlesen(size_t i) const {
        return platz(i, {"read-file", test::quelle(QString("samples/") + Büro[i].probe)});
    }

    // Each workplace assigns the rows of its own instrument.
    void zuordnen() const {
        for (const Arbeitsplatz& a : Büro)
            ausführen("UPDATE 0100_EinleseDaten SET KundeID = ?, AnlageID = ? WHERE GeräteID IN (SELECT "
                      "GeräteID FROM 0100_EinleseGeräteDaten WHERE PrüfgerätName = ?)",
                      {a.kunde, a.anlage, a.gerät});
    }

    // Every measured value and its limits, by plant, board and circuit, without keys: rows that
    // several runs shared out among their inspections compare as the rows one run made.
    QStringList messwerte() const {
        QStringList ergebnis = zeilen(
            "SELECT A.Code AS AC, V.Code AS VC, S.Code AS SC, M.*, G.* FROM ((((0100_Anlage AS A INNER JOIN "
            "0100_Prüfung AS P ON P.AnlagenID = A.AnlageID) INNER JOIN 0100_Verteiler AS V ON V.PrüfungID = "
            "P.PrüfungID) INNER JOIN 0100_Stromkreis AS S ON S.VerteilerID = V.VerteilerID) INNER JOIN "
            "0100_Messung AS M ON M.StromkreisID = S.StromkreisID) LEFT JOIN 0100_Grenzwert AS G ON "
            "G.MessID = M.MessID",
            {}, true);
        ergebnis.sort();
        return ergebnis << leere();
    }
    // Inspections without a board, boards without a circuit, circuits without a value: what a run
    // leaves of a row that another took over meanwhile.
    QString leere() const {
        return wert("SELECT Count(*) FROM 0100_Prüfung AS P WHERE NOT EXISTS (SELECT * FROM 0100_Verteiler "
                    "AS V "
                    "WHERE V.PrüfungID = P.PrüfungID)") +
               " inspections, " +
               wert("SELECT Count(*) FROM 0100_Verteiler AS V WHERE NOT EXISTS (SELECT * FROM "
                    "0100_Stromkreis AS "
                    "S WHERE S.VerteilerID = V.VerteilerID)") +
               " boards, " +
               wert("SELECT Count(*) FROM 0100_Stromkreis AS S WHERE NOT EXISTS (SELECT * FROM 0100_Messung "
                    "AS M "
                    "WHERE M.StromkreisID = S.StromkreisID)") +
               " circuits empty";
    }

    static void gelungen(QProcess& p) {
        ASSERT_TRUE(p.waitForFinished(120000));
        EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(p.exitCode(), 0);
        EXPECT_EQ(QString::fromLocal8Bit(p.readAllStandardError()), "")
            << p.arguments().join(' ').toStdString();
    }
};

TEST_P(BueroTest, VierArbeitsplaetzeLesenUndUebernehmenGleichzeitigWieEinerAllein) {
    // One workplace alone on a database file: the records to compare with.
    einrichten(pfad("allein.db"));
    for (int runde = 0; runde < Runden; ++runde)
        for (size_t i = 0; i < Büro.size(); ++i) {
            const test::Lauf lauf = test::vemo0100(einlesen(i));
            ASSERT_EQ(lauf.status, 0) << lauf.fehler.toStdString();
        }
    zuordnen();
    ASSERT_EQ(test::vemo0100(platz(0, {"take-over"})).status, 0);
    ASSERT_EQ(anzahl("0100_EinleseDaten"), 0);
    const QStringList allein = messwerte();

    QString grund;
    einrichten(GetParam() == test::Motor::Server ? test::Postgresserver::gestartet(&grund)->leereDatenbank()
                                                 : pfad("buero.db"));
    for (int runde = 0; runde < Runden; ++runde) {
        std::array<QProcess, Büro.size()> lesen;
        for (size_t i = 0; i < Büro.size(); ++i)
            lesen[i].start(test::vemo0100Programm(), einlesen(i));
        for (QProcess& p : lesen)
            gelungen(p);
    }
    zuordnen();
    const long eingelesen = anzahl("0100_EinleseDaten");
    ASSERT_GT(eingelesen, 100);

    std::array<QProcess, Büro.size()> übernehmen;
    for (size_t i = 0; i < Büro.size(); ++i)
        übernehmen[i].start(test::vemo0100Programm(), platz(i, {"take-over"}));
    while (übernehmen[0].state() != QProcess::NotRunning && anzahl("0100_EinleseDaten") == eingelesen)
        QThread::msleep(2);
    übernehmen[0].kill();
    übernehmen[0].waitForFinished();
    ASSERT_EQ(übernehmen[0].exitStatus(), QProcess::CrashExit) << "killed in the middle of its take-over";
    for (size_t i = 1; i < Büro.size(); ++i)
        gelungen(übernehmen[i]);

    EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
    const QStringList gemeinsam = messwerte();
    QStringList unterschiede;
    for (const QString& z : gemeinsam)
        if (gemeinsam.count(z) != allein.count(z))
            unterschiede
                << QString("%1 times, alone %2: %3").arg(gemeinsam.count(z)).arg(allein.count(z)).arg(z);
    for (const QString& z : allein)
        if (!gemeinsam.contains(z))
            unterschiede << "missing: " + z;
    EXPECT_EQ(gemeinsam.size(), allein.size());
    unterschiede.removeDuplicates();
    EXPECT_TRUE(unterschiede.isEmpty()) << unterschiede.mid(0, 8).join('\n').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Motoren, BueroTest, test::beideMotoren, test::motorName);

} // namespace
