// The store failing under a read-in and a take-over: another writer holding the lock, the disk
// running full. The component shows the store's message, leaves a sound database with what it
// wrote before, and the run can be repeated once the fault is gone.
#include "grid/EinleseDatenController.h"
#include "host/Modul15a.h"
#include "store/Datenbank.h"
#include "store/Recordset.h"
#include "support/Testumgebung.h"
#include "takeover/Uebernahme.h"

#include <QDir>
#include <QElapsedTimer>
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

    // Read-in rows of one instrument for customer 1 and plant 1 of the demo data, on boards of five
    // circuits, with two values each.
    void zuordnungsfertigeZeilen(int anzahl) const {
        sql("INSERT INTO \"0100_EinleseGeräteDaten\" VALUES (1, '0100-Corvex', '  C12345678', 1, '')");
        for (int i = 0; i < anzahl; ++i) {
            ausführen("INSERT INTO 0100_EinleseDaten (MessungID, GeräteID, KundeID, AnlageID, VerteilerNr, "
                      "StromkreisNr) VALUES (?, 1, 1, 1, ?, ?)",
                      {i + 1, QString::number(1 + i / 5), QString::number(1 + i % 5)});
            ausführen("INSERT INTO 0100_EinleseMessDaten VALUES (?1, 'Riso MOhm', ?2, 'MOhm'), "
                      "(?1, 'Zs', '0,35', 'Ohm')",
                      {i + 1, QString::number(200 + i)});
        }
    }
    // Each circuit of the run with its insulation value, "board/circuit=value", in key order.
    QStringList übernommen() const {
        QStringList ergebnis;
        Recordset rs = db().OpenRecordset(
            "SELECT V.Code AS B, S.Code AS C, M.RISO AS R FROM ((0100_Verteiler AS V INNER JOIN "
            "0100_Stromkreis AS S ON S.VerteilerID = V.VerteilerID) INNER JOIN 0100_Messung AS M ON "
            "M.StromkreisID = S.StromkreisID) WHERE M.RISO IS NOT NULL ORDER BY S.StromkreisID, M.MessID");
        for (; !rs.Eof(); rs.MoveNext())
            ergebnis << rs.Text("B") + "/" + rs.Text("C") + "=" + rs.Text("R");
        return ergebnis;
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

// The families whose readers end at their first failure; the Kontalex reader and the plain 37xx
// reader go on after each failing statement, so that a lock would cost a wait per statement.
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
                                           "quentavoir.ser", "sorelin-pm12.ser"));

// Another workplace takes the lock in the middle of a take-over: the rows taken until then are in
// the inspection, the others stay read in, and the repeated run ends where an undisturbed one does.
TEST_F(SpeicherStoerungTest, UebernahmeUnterFremderSperreLaesstSichWiederholen) {
    neueDatenbank(true);
    db().setWartezeit(Wartezeit);
    zuordnungsfertigeZeilen(12);
    übernehmen();
    const QStringList ungestört = übernommen();
    ASSERT_EQ(ungestört.size(), 12) << m_ui.texte().join(" | ").toStdString();
    const QString prüfungen = wert("SELECT Count(*) FROM 0100_Prüfung WHERE AnlagenID = 1");

    neueDatenbank(true);
    db().setWartezeit(Wartezeit);
    zuordnungsfertigeZeilen(12);
    Fremdschreiber anderer(m_dbPfad);
    bool gesperrt = false;
    übernehmen([&](int zeile) {
        if (zeile == 6 && !gesperrt)
            gesperrt = anderer.sperren();
    });
    ASSERT_TRUE(gesperrt);
    alleMeldungenSind("3260");
    const long geblieben = anzahl("0100_EinleseDaten");
    EXPECT_GT(geblieben, 0);
    EXPECT_LT(geblieben, 12);
    anderer.freigeben();
    EXPECT_EQ(integrität(), "ok");
    // Every row gone from the read-in table stands in the inspection.
    EXPECT_GE(übernommen().size(), 12 - geblieben);

    übernehmen();
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
    // Each value once; the rows of the second run, which have no inspection, share a new one.
    QStringList wiederholt = übernommen();
    wiederholt.sort();
    QStringList erwartet = ungestört;
    erwartet.sort();
    EXPECT_EQ(wiederholt, erwartet);
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_Prüfung WHERE AnlagenID = 1").toInt(), prüfungen.toInt() + 1);
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

// The disk fills up in the middle of a take-over: another program takes the last free space. A
// full disk that the value mapping meets ends the mapping of that row without a word, and the row
// leaves the read-in table all the same (the take-over's chain of silent traps); the run itself
// shows the store's message where it cannot add a record. What must hold is a sound database whose
// remaining rows keep their values, and a second run that takes them once there is room.
TEST_F(SpeicherStoerungTest, VolleFestplatteBeiDerUebernahmeLaesstEineHeileDatenbank) {
    neueDatenbank(true);
    // The records a row makes take more room than its read-in rows give back.
    zuordnungsfertigeZeilen(1000);
    sql("CREATE TABLE Ballast (Inhalt BLOB)");
    bool voll = false;
    übernehmen([&](int zeile) {
        if (zeile != 100 || voll)
            return;
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
    EXPECT_EQ(integrität(), "ok");
    const long geblieben = anzahl("0100_EinleseDaten");
    EXPECT_GT(geblieben, 0);
    EXPECT_EQ(anzahl("0100_EinleseMessDaten"), 2 * geblieben) << "the rows that stay keep their values";
    EXPECT_GE(übernommen().size(), 99) << "the rows taken before the disk was full";

    sql("DROP TABLE Ballast; PRAGMA max_page_count = 1073741823;");
    übernehmen();
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
}

} // namespace
