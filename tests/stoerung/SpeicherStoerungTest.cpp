// The store failing under a read-in and a take-over: another writer holding the lock, the disk
// running full, the process killed. The component shows the store's message, leaves a sound
// database with what it wrote before, and a take-over repeated once the fault is gone ends where
// one undisturbed run does: nothing lost, nothing twice.
#include "grid/EinleseDatenController.h"
#include "host/Modul15a.h"
#include "store/Datenbank.h"
#include "store/Recordset.h"
#include "store/Variant.h"
#include "support/Testumgebung.h"
#include "takeover/Uebernahme.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>
#include <chrono>
#include <sqlite3.h>

using namespace vemo;
using namespace std::chrono_literals;

namespace {

constexpr auto Wartezeit = 300ms;

// Another workplace on the same database file, which takes the write lock and keeps it.
class Fremdschreiber {
public:
    explicit Fremdschreiber(const QString& pfad) { sqlite3_open(pfad.toUtf8().constData(), &m_db); }
    ~Fremdschreiber() { sqlite3_close(m_db); }
    Fremdschreiber(const Fremdschreiber&) = delete;
    Fremdschreiber& operator=(const Fremdschreiber&) = delete;

    bool sperren() const {
        return sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) == SQLITE_OK;
    }
    void freigeben() const { sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr); }
    // The read-in rows a take-over has still to do, as another connection sees them.
    int zeilen() const {
        sqlite3_stmt* s = nullptr;
        sqlite3_prepare_v2(m_db, "SELECT Count(*) FROM \"0100_EinleseDaten\"", -1, &s, nullptr);
        const int n = sqlite3_step(s) == SQLITE_ROW ? sqlite3_column_int(s, 0) : -1;
        sqlite3_finalize(s);
        return n;
    }

private:
    sqlite3* m_db = nullptr;
};

class SpeicherStoerungTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        QDir(m_dir.path()).mkpath("sicherung");
        modul().BackupVerzeichnis = pfad("sicherung");
        db().setWartezeit(Wartezeit);
        EinleseDatenController::datenübernahmeEinsetzen(Übernehmen);
    }

    void probeLesen(const QString& probe) {
        m_ui.meldungen.clear();
        modul().Abbruchmerker = 0;
        m_komponente.EinlesenAusDateiName(test::quelle("samples/" + probe));
    }
    void einlesedatenLeeren() const {
        sql("DELETE FROM \"0100_EinleseMessDaten\"; DELETE FROM \"0100_EinleseDaten\"; "
            "DELETE FROM \"0100_EinleseGeräteDaten\";");
    }
    long einlesewerte() const { return anzahl("0100_EinleseMessDaten"); }
    QString integrität() const { return wert("PRAGMA integrity_check"); }

    // Read-in rows for customer 1 of the demo data, on boards of five circuits, with two values
    // each: the first two thirds for its plant 1, the rest for a plant number it does not have yet.
    // None names an inspection, so the run makes one for each plant. The first half comes from a
    // registered instrument, the second from one the register does not know.
    void zuordnungsfertigeZeilen(int anzahl) const {
        sql("INSERT INTO \"0100_EinleseGeräteDaten\" VALUES (1, '0100-Corvex', '  C12345678', 1, ''), "
            "(2, '0100-Corvex', '  C99999999', 0, '')");
        for (int i = 0; i < anzahl; ++i) {
            const bool neueAnlage = i >= 2 * anzahl / 3;
            ausführen("INSERT INTO 0100_EinleseDaten (MessungID, GeräteID, KundeID, AnlageID, AnlageNr, "
                      "VerteilerNr, StromkreisNr) VALUES (?, ?, 1, ?, ?, ?, ?)",
                      {i + 1, i < anzahl / 2 ? 1 : 2, neueAnlage ? 0 : 1, neueAnlage ? "7" : "",
                       QString::number(1 + i / 5), QString::number(1 + i % 5)});
            ausführen("INSERT INTO 0100_EinleseMessDaten VALUES (?1, 'Riso MOhm', ?2, 'MOhm'), "
                      "(?1, 'Zs', '0,35', 'Ohm')",
                      {i + 1, QString::number(200 + i)});
        }
    }
    // Everything the take-over made for customer 1, without the keys, which a rolled-back row may
    // have used up: each measurement row by inspection, board and circuit, and each inspection's
    // instruments and earth resistance.
    QStringList ergebnis() const {
        QStringList zeilen = Testumgebung::zeilen(
            "SELECT A.Code AS AC, P.ProtokollNr AS PN, V.Code AS VC, S.Code AS SC, M.* FROM (((0100_Anlage "
            "AS A INNER JOIN 0100_Prüfung AS P ON P.AnlagenID = A.AnlageID) INNER JOIN 0100_Verteiler AS V "
            "ON "
            "V.PrüfungID = P.PrüfungID) INNER JOIN 0100_Stromkreis AS S ON S.VerteilerID = V.VerteilerID) "
            "INNER JOIN 0100_Messung AS M ON M.StromkreisID = S.StromkreisID WHERE A.KundeID = 1",
            {}, true);
        Recordset p =
            db().OpenRecordset("SELECT A.Code, P.* FROM 0100_Anlage AS A INNER JOIN 0100_Prüfung AS P "
                               "ON P.AnlagenID = A.AnlageID WHERE A.KundeID = 1");
        for (; !p.Eof(); p.MoveNext())
            zeilen << p.Text("Code") + ": " + p.Text("ProtokollNr") + " " + p.Text("Erdungswiderstand") +
                          " " + p.Text("PrüfgerätName1") + "; " + p.Text("PrüfgerätName2") + "; " +
                          p.Text("PrüfgerätName3");
        zeilen.sort();
        return zeilen;
    }
    // What one undisturbed take-over of the rows makes, on a database of its own.
    QStringList ungestört(int zeilen) {
        neueDatenbank(true);
        zuordnungsfertigeZeilen(zeilen);
        übernehmen();
        EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
        EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
        return ergebnis();
    }
    // A second take-over after the broken one: no message, nothing left read in, the same records.
    void wiederholtWieUngestört(const QStringList& erwartet) {
        EXPECT_EQ(integrität(), "ok");
        übernehmen();
        EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
        EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
        EXPECT_EQ(ergebnis(), erwartet);
    }
    // The rows still read in keep all their values.
    void geblieben() const {
        const long zeilen = anzahl("0100_EinleseDaten");
        EXPECT_GT(zeilen, 0);
        EXPECT_EQ(anzahl("0100_EinleseMessDaten"), 2 * zeilen) << "the rows that stay keep their values";
    }

    // The take-over's button, with a hook at each step of its progress.
    void übernehmen(const std::function<void(int)>& beiZeile = {}) {
        m_ui.meldungen.clear();
        EinleseDatenController form;
        if (beiZeile)
            QObject::connect(&form, &DialogController::aktualisiert, &form,
                             [&form, beiZeile] { beiZeile(form.fortschritt().Value); });
        form.übernehmenKlick();
    }
    void alleMeldungenSind(const QString& nummer) const {
        ASSERT_FALSE(m_ui.meldungen.isEmpty());
        for (const auto& m : m_ui.meldungen)
            EXPECT_TRUE(m.text.startsWith(nummer + " ")) << m.text.toStdString();
    }

    vemo0100Modul15a m_komponente{m_ui, m_settings};
};

// The families whose readers end at their first failure (the Quentavoir's is the 3720's); the
// Kontalex reader and the plain 37xx reader go on after each failing statement, so that a lock would
// cost a wait per statement.
class GesperrtesEinlesen : public SpeicherStoerungTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(GesperrtesEinlesen, WartetZeigtDieMeldungDesSpeichersUndLaesstSichWiederholen) {
    probeLesen(GetParam());
    const long ungestört = einlesewerte();
    ASSERT_GT(ungestört, 0) << m_ui.texte().join(" | ").toStdString();
    einlesedatenLeeren();

    Fremdschreiber anderer(m_dbPfad);
    ASSERT_TRUE(anderer.sperren());
    QElapsedTimer uhr;
    uhr.start();
    probeLesen(GetParam());
    EXPECT_GE(uhr.elapsed(), std::chrono::milliseconds(Wartezeit).count()) << "waits for the other writer";
    alleMeldungenSind("3260");
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
    EXPECT_EQ(einlesewerte(), 0);
    anderer.freigeben();

    einlesedatenLeeren(); // what the user deletes in the grid, should anything have been begun
    probeLesen(GetParam());
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(einlesewerte(), ungestört);
}

INSTANTIATE_TEST_SUITE_P(Familien, GesperrtesEinlesen,
                         ::testing::Values("corvex-verteilung.ser", "multitester-tabelle.ser",
                                           "zemak-3710b.ser", "zemak-3720.ser", "zemak-3740.ser",
                                           "sorelin-pm12.ser"));

// A take-over stopped by the store at a row it could not write: another workplace takes the lock
// and keeps it past the wait, or the disk runs full just as the value mapping writes a value (no
// value the mapping cannot place, so its silent trap must not let the row go without it). The run
// stops with the store's message, the row in hand stays read in, and the repeated run ends where an
// undisturbed one does.
TEST_F(SpeicherStoerungTest, UebernahmeUnterFremderSperreOderVollerPlatteLaesstSichWiederholen) {
    const QStringList erwartet = ungestört(60);
    {
        SCOPED_TRACE("lock");
        neueDatenbank(true);
        db().setWartezeit(Wartezeit);
        zuordnungsfertigeZeilen(60);
        Fremdschreiber anderer(m_dbPfad);
        bool gesperrt = false;
        übernehmen([&](int zeile) {
            if (zeile == 30 && !gesperrt)
                gesperrt = anderer.sperren();
        });
        ASSERT_TRUE(gesperrt);
        alleMeldungenSind("3260");
        EXPECT_EQ(m_ui.meldungen.size(), 1);
        geblieben();
        anderer.freigeben();
        wiederholtWieUngestört(erwartet);
    }
    SCOPED_TRACE("value mapping");
    neueDatenbank(true);
    zuordnungsfertigeZeilen(60);
    sql("CREATE TABLE Ballast (Inhalt BLOB)");
    übernehmen([&](int zeile) {
        if (zeile != 10)
            return;
        sql("CREATE TRIGGER Platzfresser BEFORE UPDATE OF RISO ON \"0100_Messung\" WHEN NEW.RISO IS NOT NULL "
            "BEGIN INSERT INTO Ballast VALUES (randomblob(1000000)); END; PRAGMA max_page_count = " +
            wert("PRAGMA page_count"));
    });
    alleMeldungenSind("3013");
    EXPECT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 51) << "the row in hand stays read in";
    geblieben();
    sql("DROP TRIGGER Platzfresser; PRAGMA max_page_count = 1073741823;");
    wiederholtWieUngestört(erwartet);
}

// The database may grow only a few pages: a read-in repeated until the disk is full.
TEST_F(SpeicherStoerungTest, VolleFestplatteBeimEinlesenBehaeltDasBisherGeschriebene) {
    const QString seiten = wert("PRAGMA page_count");
    sql("PRAGMA max_page_count = " + QString::number(seiten.toInt() + 2));
    long vorher = 0;
    for (int lauf = 0; lauf < 50 && m_ui.meldungen.isEmpty(); ++lauf) {
        vorher = einlesewerte();
        probeLesen("corvex-verteilung.ser");
    }
    alleMeldungenSind("3013");
    EXPECT_EQ(integrität(), "ok");
    EXPECT_GE(einlesewerte(), vorher) << "the rows of the earlier read-ins stay";
    EXPECT_GT(vorher, 0);

    sql("PRAGMA max_page_count = 1073741823");
    const long nachDemFehler = einlesewerte();
    probeLesen("corvex-verteilung.ser");
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_GT(einlesewerte(), nachDemFehler);
}

// The disk fills up in the middle of a take-over: another program takes the last free space. The
// value mapping's silent trap is for values it cannot place, not for a store that cannot write:
// the run stops with the store's message, the row in hand stays read in with its values, and once
// there is room a second run ends where an undisturbed one does.
TEST_F(SpeicherStoerungTest, VolleFestplatteBeiDerUebernahmeVerliertNichts) {
    const QStringList erwartet = ungestört(600);

    neueDatenbank(true);
    zuordnungsfertigeZeilen(600);
    sql("CREATE TABLE Ballast (Inhalt BLOB)");
    bool voll = false;
    übernehmen([&](int zeile) {
        if (zeile < 100)
            return;
        // The other program takes every page the run gives back, until a row finds none.
        sql("PRAGMA max_page_count = " + wert("PRAGMA page_count"));
        try {
            for (int i = 0; i < 100000; ++i)
                sql("INSERT INTO Ballast VALUES (randomblob(100))");
        } catch (const Fehler& f) {
            voll = f.nummer() == 3013;
        }
    });
    ASSERT_TRUE(voll);
    alleMeldungenSind("3013");
    EXPECT_EQ(m_ui.meldungen.size(), 1);
    geblieben();

    sql("DROP TABLE Ballast; PRAGMA max_page_count = 1073741823;");
    wiederholtWieUngestört(erwartet);
}

// The command line's take-over killed (a power cut, kill -9) at several points of its run: each
// row is taken over whole or not at all, and the rows waiting for the inspection the run made know
// it, so that the repeated run makes no second one.
TEST_F(SpeicherStoerungTest, GetoeteteUebernahmeEndetWiederholtWieEineUngestoerte) {
    constexpr int Zeilen = 1500;
    const QStringList erwartet = ungestört(Zeilen);
    for (const int rest : {Zeilen * 95 / 100, Zeilen / 2, Zeilen / 20}) {
        SCOPED_TRACE(rest);
        neueDatenbank(true);
        zuordnungsfertigeZeilen(Zeilen);
        QProcess p;
        p.start(QString(VEMO_BIN_DIR) + "/vemo0100",
                {"--db", m_dbPfad, "--settings", pfad("einstellungen.ini"), "take-over"});
        ASSERT_TRUE(p.waitForStarted());
        Fremdschreiber beobachter(m_dbPfad);
        while (p.state() == QProcess::Running && beobachter.zeilen() > rest)
            QThread::msleep(2);
        p.kill();
        p.waitForFinished();
        ASSERT_EQ(p.exitStatus(), QProcess::CrashExit) << "killed before its end";
        wiederholtWieUngestört(erwartet);
    }
}

} // namespace
