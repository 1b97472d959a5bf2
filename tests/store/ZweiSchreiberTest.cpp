#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "platform/AufzeichnungsUi.h"
#include "platform/SettingsStore.h"
#include "store/Datenbank.h"
#include "store/Recordset.h"
#include "store/Transaktion.h"
#include "support/Fehlernummer.h"
#include "support/Hilfsprozess.h"
#include "support/Testumgebung.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QTextStream>
#include <QThread>
#include <cstdio>
#include <set>
#include <sqlite3.h>

using namespace vemo;

namespace {

// Allocates keys for a table: "bereit" on a line of its own, then one key a line.
// Arguments: the database, the table, how many keys.
const test::Hilfsprozess schlüsselZiehen("neue-ids", [](const QStringList& a) {
    AufzeichnungsUi ui;
    SpeicherSettingsStore settings;
    modul().ui = &ui;
    modul().settings = &settings;
    modul().db = Datenbank::OpenDatabase(a.value(0));
    QTextStream aus(stdout);
    aus << "bereit\n" << Qt::flush;
    for (int i = 0; i < a.value(2).toInt(); ++i)
        aus << NeueID("", a.value(1)) << '\n';
    aus.flush();
    for (const auto& m : std::as_const(ui.meldungen))
        std::fprintf(stderr, "%s\n", qPrintable(m.text));
    NeueID("", "");
    modul().db.Close();
    return ui.meldungen.isEmpty() ? 0 : 1;
});

// Edits the first customer and keeps the lock: "gesperrt" on a line of its own, then it waits to be
// killed, as a workplace that dies in the middle of a change. Argument: the database.
const test::Hilfsprozess kundeSperren("kunde-sperren", [](const QStringList& a) {
    const Datenbank db = Datenbank::OpenDatabase(a.value(0));
    Recordset kunde = db.OpenRecordset("SELECT * FROM Kunde ORDER BY KundeID");
    kunde.Edit();
    std::printf("gesperrt\n");
    std::fflush(stdout);
    QThread::sleep(120);
    return 1;
});

// Another writer on the same file that does not wait: it tells whether the write lock is free.
class Fremder {
public:
    explicit Fremder(const QString& pfad) {
        sqlite3_open(pfad.toUtf8().constData(), &m_db);
        sqlite3_busy_timeout(m_db, 0);
    }
    ~Fremder() { sqlite3_close(m_db); }
    Fremder(const Fremder&) = delete;
    Fremder& operator=(const Fremder&) = delete;

    bool kannSchreiben() const {
        if (sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
            return false;
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        return true;
    }
    int ausführen(const char* sql) const { return sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr); }
    QString wert(const char* sql) const {
        sqlite3_stmt* s = nullptr;
        sqlite3_prepare_v2(m_db, sql, -1, &s, nullptr);
        const QString w = sqlite3_step(s) == SQLITE_ROW
                              ? QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(s, 0)))
                              : QString();
        sqlite3_finalize(s);
        return w;
    }

private:
    sqlite3* m_db = nullptr;
};

class ZweiSchreiberTest : public test::Motorumgebung {
protected:
    // Two processes allocating keys for the table at once; the keys of both. This process holds the
    // write lock until both have started and wait for it, so that they begin together.
    std::vector<qint32> zweiProzesse(const QString& tabelle, int jeProzess) {
        Recordset sperre = db().OpenRecordset("Kunde");
        sperre.AddNew();
        QProcess p[2];
        for (QProcess& prozess : p)
            test::Hilfsprozess::starten(prozess, "neue-ids", {m_dbPfad, tabelle, QString::number(jeProzess)});
        for (QProcess& prozess : p) {
            const QDeadlineTimer frist(20000);
            while (!prozess.canReadLine() && prozess.state() != QProcess::NotRunning && !frist.hasExpired())
                prozess.waitForReadyRead(50);
            EXPECT_EQ(prozess.readLine().trimmed(), "bereit");
        }
        QThread::msleep(300); // both have looked at the counter and wait for the lock
        sperre.CancelUpdate();
        std::vector<qint32> schlüssel;
        for (QProcess& prozess : p) {
            EXPECT_TRUE(prozess.waitForFinished(120000));
            EXPECT_EQ(prozess.exitCode(), 0) << prozess.readAllStandardError().constData();
            for (const QByteArray& zeile : prozess.readAllStandardOutput().split('\n'))
                if (!zeile.isEmpty())
                    schlüssel.push_back(zeile.toInt());
        }
        return schlüssel;
    }

    // The keys are distinct and run without a gap from the first.
    static void lückenlos(const std::vector<qint32>& schlüssel, qint32 erster, size_t anzahl) {
        ASSERT_EQ(schlüssel.size(), anzahl);
        const std::set<qint32> verschieden(schlüssel.begin(), schlüssel.end());
        EXPECT_EQ(verschieden.size(), anzahl);
        EXPECT_EQ(*verschieden.begin(), erster);
        EXPECT_EQ(*verschieden.rbegin(), erster + qint32(anzahl) - 1);
    }
};

// A cursor kept open on the counter row, as the key allocator keeps it, counts from what the table
// holds when it edits, not from what it read before the other connection wrote.
TEST_P(ZweiSchreiberTest, TwoConnectionsCountingInTurnNeverIssueAKeyTwice) {
    db().Execute("INSERT INTO IDIncrement (OffsetFaktor, TabelleName, LastID) VALUES (?, ?, ?)",
                 {0, "Wechsel", 10000});
    const Datenbank zweite = Datenbank::OpenDatabase(m_dbPfad);
    const QString zähler = "SELECT * FROM IDIncrement WHERE TabelleName = ?";
    Recordset cursor[2] = {db().OpenRecordset(zähler, {"Wechsel"}),
                           zweite.OpenRecordset(zähler, {"Wechsel"})};
    std::vector<qint32> schlüssel;
    for (int i = 0; i < 10000; ++i) {
        for (Recordset& z : cursor) {
            z.Edit();
            schlüssel.push_back(z.Field("LastID").toInt() + 1);
            z.setField("LastID", schlüssel.back());
            z.Update();
        }
    }
    lückenlos(schlüssel, 10001, 20000);
    EXPECT_EQ(wert("SELECT LastID FROM IDIncrement WHERE TabelleName = 'Wechsel'"), "30000");
}

// Two processes allocating for one table get distinct keys. Neither finds a counter for the table:
// the second to get the lock finds the one the first has added, and counts on there.
TEST_P(ZweiSchreiberTest, TwoProcessesStartingWithoutACounterShareTheOneCreated) {
    lückenlos(zweiProzesse("0100_Stromkreis", 10000), 10000, 20000);
    EXPECT_EQ(wert("SELECT Count(*) FROM IDIncrement WHERE TabelleName = '0100_Stromkreis'"), "1");
}

// Edit locks the row it edits until Update or CancelUpdate; another workplace waits for it up to
// its wait time and is then told the data are locked, as on either engine. The server locks the
// row, SQLite the file. A workplace that dies with a row locked leaves no lock behind.
TEST_P(ZweiSchreiberTest, EditLocksItsRowAndAWorkplaceThatDiesLeavesNoLock) {
    sql("INSERT INTO Kunde (KundeID, Name) VALUES (1, 'Eins'), (2, 'Zwei');");
    const Datenbank andere = Datenbank::OpenDatabase(m_dbPfad);
    andere.setWartezeit(std::chrono::milliseconds(300));
    Recordset hier = db().OpenRecordset("SELECT * FROM Kunde ORDER BY KundeID");
    Recordset dort = andere.OpenRecordset("SELECT * FROM Kunde ORDER BY KundeID");
    hier.Edit();
    try {
        dort.Edit();
        ADD_FAILURE() << "Edit of a locked row";
    } catch (const Fehler& f) {
        EXPECT_EQ(f.meldung(), "3260 Die Daten sind gesperrt. (database is locked)");
        EXPECT_TRUE(istSpeicherausfall(f));
    }
    dort.MoveNext();
    EXPECT_EQ(test::fehlernummer([&] { dort.Edit(); }), GetParam() == test::Motor::Server ? 0 : 3260);
    dort.CancelUpdate();
    hier.setField("Name", "Neu");
    hier.Update();
    dort.MoveFirst();
    dort.Edit();
    EXPECT_EQ(dort.Text("Name"), "Neu");
    dort.CancelUpdate();

    QProcess sterbend;
    test::Hilfsprozess::starten(sterbend, "kunde-sperren", {m_dbPfad});
    ASSERT_TRUE(sterbend.waitForReadyRead(20000));
    EXPECT_EQ(sterbend.readLine().trimmed(), "gesperrt");
    EXPECT_EQ(test::fehlernummer([&] { dort.Edit(); }), 3260);
    sterbend.kill();
    sterbend.waitForFinished();
    andere.setWartezeit(std::chrono::milliseconds(10000));
    EXPECT_EQ(test::fehlernummer([&] { dort.Edit(); }), 0);
    dort.CancelUpdate();
}

// Edit and AddNew hold the write lock until the row is written or given up; every way of giving it
// up releases the lock, and what is written is there for the other writer at once.
// SQLite's lock is the file's: what follows is about how it is taken and given back.
using SqliteSperreTest = test::Testumgebung;

TEST_F(SqliteSperreTest, EditReadsTheRowAgainAndHoldsTheLockUntilTheRowIsDone) {
    sql("INSERT INTO Kunde (KundeID, Name) VALUES (1, 'Alt'), (2, 'Zwei'), (3, 'Drei');");
    const Fremder fremder(m_dbPfad);
    Recordset rs = db().OpenRecordset("Kunde");
    ASSERT_EQ(fremder.ausführen("UPDATE Kunde SET Name = 'Neu' WHERE KundeID = 1"), SQLITE_OK);
    EXPECT_EQ(rs.Text("Name"), "Alt");
    rs.Edit();
    EXPECT_EQ(rs.Text("Name"), "Neu");
    EXPECT_FALSE(fremder.kannSchreiben());
    rs.setField("Name", "Dritter");
    rs.Update();
    EXPECT_TRUE(fremder.kannSchreiben());
    EXPECT_EQ(fremder.wert("SELECT Name FROM Kunde WHERE KundeID = 1"), "Dritter");

    const std::function<void(Recordset&)> aufgeben[] = {
        [](Recordset& r) { r.CancelUpdate(); }, [](Recordset& r) { r.MoveNext(); },
        [](Recordset& r) { r.MoveFirst(); },    [](Recordset& r) { r.Requery(); },
        [](Recordset& r) { r.Close(); },        [](Recordset& r) { r = Recordset(); },
    };
    for (const auto& f : aufgeben) {
        for (const bool neu : {false, true}) {
            Recordset r = db().OpenRecordset("SELECT * FROM Kunde ORDER BY KundeID");
            neu ? r.AddNew() : r.Edit();
            EXPECT_FALSE(fremder.kannSchreiben());
            f(r);
            EXPECT_TRUE(fremder.kannSchreiben());
        }
    }
    EXPECT_EQ(fremder.wert("SELECT Count(*) FROM Kunde"), "3");

    rs.AddNew();
    rs.setField("KundeID", 2);
    EXPECT_EQ(test::fehlernummer([&] { rs.Update(); }), 3022);
    EXPECT_TRUE(fremder.kannSchreiben());

    rs.MoveNext();
    ASSERT_EQ(fremder.ausführen("DELETE FROM Kunde WHERE KundeID = 2"), SQLITE_OK);
    EXPECT_EQ(test::fehlernummer([&] { rs.Edit(); }), 3167);
    EXPECT_TRUE(fremder.kannSchreiben());
    EXPECT_EQ(test::fehlernummer([&] { rs.Update(); }), 3020);
}

// A row written while another cursor of the connection holds the lock is committed with that hold,
// and stands although that cursor gives up its own change.
TEST_F(SqliteSperreTest, RowsWrittenUnderAnotherCursorsHoldStand) {
    sql("INSERT INTO Kunde (KundeID, Name) VALUES (1, 'Alt');");
    const Fremder fremder(m_dbPfad);
    Recordset kunde = db().OpenRecordset("Kunde");
    kunde.Edit();
    Recordset anlage = db().OpenRecordset("0100_Anlage");
    anlage.AddNew();
    anlage.setField("AnlageID", NeueID("", anlage.Name()));
    anlage.setField("KundeID", 1);
    anlage.Update();
    EXPECT_FALSE(fremder.kannSchreiben());
    kunde.setField("Name", "verworfen");
    kunde.CancelUpdate();
    EXPECT_TRUE(fremder.kannSchreiben());
    EXPECT_EQ(fremder.wert("SELECT AnlageID FROM \"0100_Anlage\""), "10000");
    EXPECT_EQ(fremder.wert("SELECT LastID FROM IDIncrement WHERE TabelleName = '0100_Anlage'"), "10000");
    EXPECT_EQ(fremder.wert("SELECT Name FROM Kunde"), "Alt");
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Motoren, ZweiSchreiberTest, test::beideMotoren, test::motorName);

} // namespace
