#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "host/Dateinummern.h"
#include "host/Modul15a.h"
#include "support/Hilfsprozess.h"
#include "support/Testumgebung.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTextStream>
#include <cstdio>

using namespace vemo;

namespace {

// Both helpers say "bereit" and wait for a line on their input, so that the test lets them go at once.
void aufLosWarten() {
    QTextStream(stdout) << "bereit\n" << Qt::flush;
    QFile ein;
    ein.open(stdin, QIODevice::ReadOnly);
    ein.readLine();
}

const QString Belegt = "Die Arbeitsdateien werden von einer anderen Übertragung benutzt.";

// Reads a dump into a database as often as told and prints how many of the runs stored it; a run
// kept from the working files by the other process stores nothing. Arguments: the database, the
// backup folder, the dump, how often. Exit 2 on any other message (written to stderr).
const test::Hilfsprozess dateiEinlesen("datei-einlesen", [](const QStringList& a) {
    AufzeichnungsUi ui;
    SpeicherSettingsStore settings;
    vemo0100Modul15a k(ui, settings);
    k.setVemotrixDBName(a.value(0));
    k.setBackupVerzeichnis(a.value(1));
    aufLosWarten();
    int gespeichert = 0;
    for (int i = 0; i < a.value(3).toInt(); ++i) {
        ui.meldungen.clear();
        k.EinlesenAusDateiName(a.value(2));
        if (ui.meldungen.isEmpty())
            ++gespeichert;
        else if (ui.texte() != QStringList{Belegt} || modul().Abbruchmerker != 1)
            return std::fprintf(stderr, "%s\n", qPrintable(ui.texte().join(" | "))), 2;
    }
    QTextStream(stdout) << gespeichert << Qt::endl;
    return 0;
});

// Makes numbered copies of a working dump of its own, counting from a "LastFile" of its own, and
// prints each number. Arguments: the folder of the working dump, its content, the backup folder,
// how many copies.
const test::Hilfsprozess kopienAnlegen("kopien-anlegen", [](const QStringList& a) {
    AufzeichnungsUi ui;
    SpeicherSettingsStore settings;
    modul().ui = &ui;
    modul().settings = &settings;
    modul().Datenbankverzeichnis = a.value(0);
    modul().BackupVerzeichnis = a.value(2);
    QFile dump(arbeitsdatei(datei::Ruvo));
    dump.open(QIODevice::WriteOnly);
    dump.write(a.value(1).toUtf8());
    dump.close();
    aufLosWarten();
    QTextStream aus(stdout);
    for (int i = 0; i < a.value(3).toInt(); ++i) {
        nummerierteKopieAnlegen(selektor::Deutsch);
        aus << modul().backupNummer << '\n';
    }
    return ui.meldungen.isEmpty() ? 0 : 2;
});

class ZweiLaeufeTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        QDir(m_dir.path()).mkpath("sicherung");
        modul().BackupVerzeichnis = pfad("sicherung");
    }

    // Starts the role twice, lets both go at once when both are ready, and waits for their end.
    static void zugleich(QProcess (&p)[2], const QString& rolle, const QStringList (&argumente)[2]) {
        for (int i = 0; i < 2; ++i)
            test::Hilfsprozess::starten(p[i], rolle, argumente[i]);
        for (QProcess& prozess : p) {
            const QDeadlineTimer frist(20000);
            while (!prozess.canReadLine() && prozess.state() != QProcess::NotRunning && !frist.hasExpired())
                prozess.waitForReadyRead(50);
            ASSERT_EQ(prozess.readLine().trimmed(), "bereit") << prozess.readAllStandardError().constData();
        }
        for (QProcess& prozess : p) {
            prozess.write("los\n");
            prozess.waitForBytesWritten(); // before the wait for the first one's end
        }
        for (QProcess& prozess : p)
            ASSERT_TRUE(prozess.waitForFinished(60000));
    }

    // The read-in rows by the serial number of their instrument, "serial|rows".
    QStringList zeilenJeGerät() const {
        return zeilen(
            "SELECT g.Seriennummer, Count(*) FROM 0100_EinleseDaten AS d INNER JOIN "
            "0100_EinleseGeräteDaten AS g ON d.GeräteID = g.GeräteID GROUP BY g.Seriennummer ORDER BY 1");
    }
    void einlesedatenLeeren() const {
        sql("DELETE FROM \"0100_EinleseMessDaten\"; DELETE FROM \"0100_EinleseDaten\"; "
            "DELETE FROM \"0100_EinleseGeräteDaten\";");
    }
};

// Two workplaces read different dumps into one database folder at once, again and again: each run
// stores its own dump or is told that the other keeps the working files, and then stores nothing;
// never the other's dump.
TEST_F(ZweiLaeufeTest, TwoReadInsOnOneFolderEachStoreTheirOwnDumpOrNothing) {
    const QString dumps[2] = {test::quelle("samples/corvex-verteilung.ser"),
                              test::quelle("samples/zemak-3710b.ser")};
    vemo0100Modul15a k(m_ui, m_settings);
    QStringList allein[2]; // serial and rows of a dump read alone
    for (int i = 0; i < 2; ++i) {
        k.EinlesenAusDateiName(dumps[i]);
        ASSERT_EQ(zeilenJeGerät().size(), 1) << m_ui.texte().join(" | ").toStdString();
        allein[i] = zeilenJeGerät()[0].split('|');
        einlesedatenLeeren();
    }
    QProcess p[2];
    zugleich(p, "datei-einlesen",
             {{m_dbPfad, pfad("sicherung"), dumps[0], "40"}, {m_dbPfad, pfad("sicherung"), dumps[1], "40"}});
    QStringList erwartet;
    for (int i = 0; i < 2; ++i) {
        ASSERT_EQ(p[i].exitCode(), 0) << p[i].readAllStandardError().constData();
        const int gespeichert = p[i].readAllStandardOutput().trimmed().toInt();
        erwartet << allein[i][0] + "|" + QString::number(allein[i][1].toInt() * gespeichert);
    }
    erwartet.sort();
    EXPECT_EQ(zeilenJeGerät(), erwartet);
}

// Two workplaces counting from the same "LastFile" into one backup folder never get one number:
// each copy is a file of its own with its own dump.
TEST_F(ZweiLaeufeTest, NumberedCopiesOfTwoProcessesAreDistinctFiles) {
    const QString inhalt[2] = {"erster Arbeitsplatz", "zweiter Arbeitsplatz"};
    QDir(m_dir.path()).mkpath("a");
    QDir(m_dir.path()).mkpath("b");
    QProcess p[2];
    zugleich(
        p, "kopien-anlegen",
        {{pfad("a"), inhalt[0], pfad("sicherung"), "200"}, {pfad("b"), inhalt[1], pfad("sicherung"), "200"}});
    for (int i = 0; i < 2; ++i) {
        ASSERT_EQ(p[i].exitCode(), 0) << p[i].readAllStandardError().constData();
        const QStringList nummern =
            QString::fromUtf8(p[i].readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
        EXPECT_EQ(nummern.size(), 200);
        for (const QString& nummer : nummern) {
            QFile kopie(pfad("sicherung/" + nummer + ".ser"));
            ASSERT_TRUE(kopie.open(QIODevice::ReadOnly)) << nummer.toStdString();
            EXPECT_EQ(QString::fromUtf8(kopie.readAll()), inhalt[i]) << nummer.toStdString();
        }
    }
    EXPECT_EQ(QDir(pfad("sicherung")).entryList(QDir::Files).size(), 400);
}

} // namespace
