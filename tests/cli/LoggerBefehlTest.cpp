#include "support/Dateien.h"
#include "support/Kommandozeile.h"
#include "support/Testumgebung.h"

#include "support/Leitung.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vemo::test {
namespace {

// The command line reads a logger dump headless: the start given stores the series.
class LoggerBefehlTest : public Testumgebung {
protected:
    QStringList global() const {
        return {"--db", m_db, "--settings", pfad("s.ini"), "--backup", pfad("sicherung")};
    }
    Lauf lesen(const QStringList& auswahl, const QStringList& hinten,
               const QString& dump = quelle("samples/corvex-datenlogger.ser")) {
        return vemo0100(global() + auswahl + QStringList{"read-file", dump} + hinten);
    }
    qsizetype kopien() const { return QDir(pfad("sicherung")).entryList(QDir::Files).size(); }
    void SetUp() override {
        Testumgebung::SetUp();
        m_db = pfad("cli.db");
        ASSERT_EQ(vemo0100({"init-db", m_db, "--demo"}).status, 0);
        ASSERT_TRUE(QDir().mkpath(pfad("sicherung")));
        // The tests look at what the command line wrote.
        modul().db.Close();
        modul().db = Datenbank::OpenDatabase(m_db);
    }
    QString m_db;
};

TEST_F(LoggerBefehlTest, StartSpeichertDieReiheUndOhneAnlageOderStartNichts) {
    const QStringList auswahl{"--customer", "1", "--plant", "2"};
    const Lauf gespeichert = lesen(auswahl, {"--start", "14.03.2026 07:30:00"});
    EXPECT_EQ(gespeichert.status, 0) << gespeichert.fehler.toStdString();
    bool zahl = false;
    const int prüfung = gespeichert.aus.trimmed().toInt(&zahl);
    EXPECT_TRUE(zahl && prüfung > 0) << gespeichert.aus.toStdString();

    const Lauf json = lesen(auswahl, {"--start", "15.03.2026 00:00:00", "--json"});
    ASSERT_EQ(json.status, 0) << json.fehler.toStdString();
    const QJsonObject reihe = QJsonDocument::fromJson(json.aus.toUtf8()).object();
    EXPECT_NE(reihe["inspection"].toInt(), prüfung) << "each series is an inspection of its own";
    EXPECT_EQ(reihe["start"].toString(), "2026-03-15T00:00:00");
    EXPECT_EQ(reihe["max"].toString(), "233,0");
    const QJsonArray punkte = reihe["points"].toArray();
    ASSERT_EQ(punkte.size(), 6);
    EXPECT_EQ(punkte[0].toObject()["time"].toString(), "2026-03-15T00:01:00");
    EXPECT_EQ(punkte[5].toObject()["time"].toString(), "2026-03-15T00:06:00");
    EXPECT_DOUBLE_EQ(punkte[5].toObject()["value"].toDouble(), 232.1);

    // Without a plant or a start nothing is stored.
    const Lauf ohneAnlage = lesen({"--customer", "1"}, {"--start", "14.03.2026 07:30:00"});
    EXPECT_EQ(ohneAnlage.status, 1);
    EXPECT_TRUE(ohneAnlage.fehler.contains("Zuvor eine Anlage...")) << ohneAnlage.fehler.toStdString();
    EXPECT_TRUE(ohneAnlage.aus.isEmpty());

    const Lauf ohneStart = lesen({"--customer", "1", "--plant", "2"}, {});
    EXPECT_EQ(ohneStart.status, 0);
    EXPECT_TRUE(ohneStart.fehler.contains("--start")) << ohneStart.fehler.toStdString();
    EXPECT_TRUE(ohneStart.aus.isEmpty());

    EXPECT_EQ(lesen({}, {"--start", "31.02.2026 07:30:00"}).status, 2);
}

// The head is found by its labels, whatever separator and blank lines stand behind the mark.
TEST_F(LoggerBefehlTest, EinKopfMitTrennzeile) {
    schreiben(pfad("trennzeile.ser"),
              "RUVO GmbH 0100 Multi    \r\n------------------------\r\n4470D    No. 98120-00471\r\n"
              "DATEN LOGGER\r\n------------------------\r\n\r\n"
              "ANZAHL ME\xdfWERTE = 3\r\nINTERVALL       =  10 s\r\n"
              "UL-N(L) MAX     =  231,0 V\r\nUL-N(L) MIN     =  229,5 V\r\n"
              "  229,5\r\n  231,0\r\n  230,1\r\n\r\n\r\n\r\n");
    const Lauf r = lesen({"--customer", "1", "--plant", "2"}, {"--start", "14.03.2026 07:30:00", "--json"},
                         pfad("trennzeile.ser"));
    ASSERT_EQ(r.status, 0) << r.fehler.toStdString();
    const QJsonObject reihe = QJsonDocument::fromJson(r.aus.toUtf8()).object();
    EXPECT_EQ(reihe["count"].toString(), "3");
    EXPECT_EQ(reihe["interval"].toString(), "10");
    EXPECT_EQ(reihe["min"].toString(), "229,5");
    ASSERT_EQ(reihe["points"].toArray().size(), 3);
    EXPECT_EQ(reihe["points"].toArray()[2].toObject()["time"].toString(), "2026-03-14T07:30:30");
}

// A logger's memory received from the simulated instrument, a Corvex printing its dump and a
// Kontalex answering its commands: with --start the series is stored; without it the command line
// ends at once, saying how to store it, with nothing stored and the numbered copy made all the same.
TEST_F(LoggerBefehlTest, EmpfangenerLoggerspeicherMitUndOhneStart) {
    const std::pair<QString, QString> instrumente[] = {{"100", "samples/corvex-datenlogger.ser"},
                                                       {"101", "samples/pravitonix-datenlogger.sep"}};
    for (const auto& [typ, speicher] : instrumente) {
        for (const bool mitStart : {false, true}) {
            SCOPED_TRACE((typ + (mitStart ? " --start" : "")).toStdString());
            Simulator sim({"--type", typ, "--memory", quelle(speicher), "--press-after", "0.5", "--link",
                           pfad("port")});
            ASSERT_FALSE(sim.gerät().isEmpty());
            const qsizetype vorher = kopien();
            const long reihen = anzahl("datlog37");
            const QStringList start =
                mitStart ? QStringList{"--start", "14.03.2026 07:30:00"} : QStringList{};
            const Lauf r = vemo0100(global() +
                                    QStringList{"--customer", "1", "--plant", "2", "--port", pfad("port"),
                                                "--type", typ, "receive"} +
                                    start);
            EXPECT_EQ(r.status, 0) << r.fehler.toStdString();
            EXPECT_EQ(kopien(), vorher + 1);
            EXPECT_EQ(anzahl("datlog37"), reihen + (mitStart ? 1 : 0));
            EXPECT_EQ(r.fehler.contains("--start"), !mitStart) << r.fehler.toStdString();
            EXPECT_EQ(r.aus.trimmed().toInt() > 0, mitStart) << r.aus.toStdString();
        }
    }
    EXPECT_EQ(anzahl("messreihe37"), 12);
}

} // namespace
} // namespace vemo::test
