#include "support/Testumgebung.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace vemo::test {
namespace {

struct Ergebnis {
    int status;
    QByteArray aus;
    QString fehler;
};

// The command line reads a logger dump headless: the start given stores the series.
class LoggerBefehlTest : public Testumgebung {
protected:
    Ergebnis vemo0100(const QStringList& argumente) {
        QProcess p;
        p.start(QString(VEMO_BIN_DIR) + "/vemo0100", argumente);
        EXPECT_TRUE(p.waitForFinished(20000)) << argumente.join(' ').toStdString();
        return {p.exitCode(), p.readAllStandardOutput(), QString::fromLocal8Bit(p.readAllStandardError())};
    }
    Ergebnis lesen(const QStringList& auswahl, const QStringList& hinten) {
        return vemo0100(QStringList{"--db", m_db, "--settings", pfad("s.ini"), "--backup", m_dir.path()} +
                        auswahl + QStringList{"read-file", quelle("samples/corvex-datenlogger.ser")} +
                        hinten);
    }
    void SetUp() override {
        Testumgebung::SetUp();
        m_db = pfad("cli.db");
        ASSERT_EQ(vemo0100({"init-db", m_db, "--demo"}).status, 0);
    }
    QString m_db;
};

TEST_F(LoggerBefehlTest, StartSpeichertDieReiheUndJsonZeigtSie) {
    const QStringList auswahl{"--customer", "1", "--plant", "2"};
    const Ergebnis gespeichert = lesen(auswahl, {"--start", "14.03.2026 07:30:00"});
    EXPECT_EQ(gespeichert.status, 0) << gespeichert.fehler.toStdString();
    bool zahl = false;
    const int prüfung = gespeichert.aus.trimmed().toInt(&zahl);
    EXPECT_TRUE(zahl && prüfung > 0) << gespeichert.aus.toStdString();

    const Ergebnis json = lesen(auswahl, {"--start", "15.03.2026 00:00:00", "--json"});
    ASSERT_EQ(json.status, 0) << json.fehler.toStdString();
    const QJsonObject reihe = QJsonDocument::fromJson(json.aus).object();
    EXPECT_NE(reihe["inspection"].toInt(), prüfung) << "each series is an inspection of its own";
    EXPECT_EQ(reihe["start"].toString(), "2026-03-15T00:00:00");
    EXPECT_EQ(reihe["max"].toString(), "233,0");
    const QJsonArray punkte = reihe["points"].toArray();
    ASSERT_EQ(punkte.size(), 6);
    EXPECT_EQ(punkte[0].toObject()["time"].toString(), "2026-03-15T00:01:00");
    EXPECT_EQ(punkte[5].toObject()["time"].toString(), "2026-03-15T00:06:00");
    EXPECT_DOUBLE_EQ(punkte[5].toObject()["value"].toDouble(), 232.1);
}

TEST_F(LoggerBefehlTest, OhneAnlageOderStartWirdNichtsGespeichert) {
    const Ergebnis ohneAnlage = lesen({"--customer", "1"}, {"--start", "14.03.2026 07:30:00"});
    EXPECT_EQ(ohneAnlage.status, 1);
    EXPECT_TRUE(ohneAnlage.fehler.contains("Zuvor eine Anlage...")) << ohneAnlage.fehler.toStdString();
    EXPECT_TRUE(ohneAnlage.aus.isEmpty());

    const Ergebnis ohneStart = lesen({"--customer", "1", "--plant", "2"}, {});
    EXPECT_EQ(ohneStart.status, 0);
    EXPECT_TRUE(ohneStart.fehler.contains("--start")) << ohneStart.fehler.toStdString();
    EXPECT_TRUE(ohneStart.aus.isEmpty());

    EXPECT_EQ(lesen({}, {"--start", "31.02.2026 07:30:00"}).status, 2);
}

} // namespace
} // namespace vemo::test
