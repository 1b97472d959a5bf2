#include "links/LinkHilfen.h"
#include "store/Datenbank.h"
#include "store/Recordset.h"
#include "support/Testumgebung.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

namespace vemo::test {
namespace {

// One 37xx model on the whole serial road of the command line: its memory in the simulator,
// receive, grid, assign to Bäckerei Sommer's Verkaufsraum, take-over; then one of its
// measurements in the new inspection, each value in its column beside its limit.
struct Strecke {
    int typ;
    const char* probe;
    const char* prüfgerät;
    const char* verteiler;
    const char* stromkreis;
    const char* ausdruck; // over the measurement rows m and their limit rows g
    const char* erwartet;
};

void PrintTo(const Strecke& s, std::ostream* os) {
    *os << s.typ;
}

const char* const Isolation = "ifnull(m.RISO, '') || ifnull(m.RISO_LN, '') || ifnull(m.RISO_LPE, '') || "
                              "ifnull(m.RISO_NPE, '') || '/' || m.UISO || ' < ' || g.RISO";
const char* const Rcd =
    "ifnull(m.FIT, '') || '/' || ifnull(m.FIIMESS, '') || '/' || m.FIUB || '/' || m.FIIDN || "
    "'/' || ifnull(m.FIFaktor, '') || '/' || m.FGRAD || ' < ' || g.FIUB || '/' || g.FIRE || "
    "'/' || ifnull(g.[FIT MIN], '') || '/' || g.[FIT MAX]";

class SerielleStrecke : public Testumgebung, public ::testing::WithParamInterface<Strecke> {
protected:
    QString db() const { return pfad("cli/vemotrix.db"); }

    QString vemo(const QStringList& argumente, int erwartet = 0) const {
        QProcess p;
        p.start(QString(VEMO_BIN_DIR) + "/vemo0100",
                QStringList{"--db", db(), "--settings", pfad("cli/settings.ini"), "--locale", "de_DE",
                            "--port", pfad("port"), "--type", QString::number(GetParam().typ)} +
                    argumente);
        const bool fertig = p.waitForFinished(30000);
        const QString fehler = QString::fromLocal8Bit(p.readAllStandardError());
        EXPECT_TRUE(fertig && p.exitCode() == erwartet)
            << argumente.join(' ').toStdString() << ": " << fehler.toStdString();
        return QString::fromLocal8Bit(p.readAllStandardOutput());
    }
    QString messung() const {
        const Strecke& s = GetParam();
        const Datenbank cli = Datenbank::OpenDatabase(db());
        const QString abfrage =
            QString(
                "SELECT Group_Concat(x, ' | ') FROM (SELECT %1 AS x FROM ((((0100_Messung m LEFT JOIN "
                "0100_Grenzwert g ON g.MessID = m.MessID) JOIN 0100_Stromkreis s ON s.StromkreisID = "
                "m.StromkreisID) JOIN 0100_Verteiler v ON v.VerteilerID = s.VerteilerID) JOIN 0100_Prüfung p "
                "ON p.PrüfungID = v.PrüfungID) WHERE p.PrüfungID >= 10000 AND p.AnlagenID = 2 AND v.Code = ? "
                "AND s.Code = ? ORDER BY m.MessID)")
                .arg(s.ausdruck);
        return cli.OpenRecordset(abfrage, {s.verteiler, s.stromkreis}).Field(0).toString();
    }
    QString prüfgerät() const {
        const Datenbank cli = Datenbank::OpenDatabase(db());
        return cli.OpenRecordset("SELECT PrüfgerätName1 FROM 0100_Prüfung WHERE PrüfungID >= 10000")
            .Field(0)
            .toString();
    }
};

TEST_P(SerielleStrecke, TheMemoryLandsInTheInspectionBesideItsLimits) {
    const Strecke& s = GetParam();
    QProcess init;
    init.start(QString(VEMO_BIN_DIR) + "/vemo0100", {"init-db", db(), "--demo"});
    ASSERT_TRUE(init.waitForFinished(20000) && init.exitCode() == 0);
    Simulator sim({"--type", QString::number(s.typ), "--memory", quelle(QString("samples/") + s.probe),
                   "--link", pfad("port")});
    ASSERT_FALSE(sim.gerät().isEmpty());

    vemo({"receive"});
    const QJsonArray zeilen = QJsonDocument::fromJson(vemo({"grid", "--json"}).toUtf8()).array();
    ASSERT_FALSE(zeilen.isEmpty());
    const QString alle = "1-" + QString::number(zeilen.size());
    vemo({"assign", "--rows", alle, "--column", "1", "--key", "1"});
    vemo({"assign", "--rows", alle, "--column", "2", "--key", "2"});
    vemo({"take-over"});

    EXPECT_EQ(vemo({"grid", "--json"}).trimmed(), "[]") << "every row taken over";
    EXPECT_EQ(prüfgerät(), s.prüfgerät);
    EXPECT_EQ(messung(), s.erwartet);
}

INSTANTIATE_TEST_SUITE_P(
    Modelle, SerielleStrecke,
    ::testing::Values(
        Strecke{103, "zemak-3710.ser", "ZEMAK 3710 Ser. Nr.: 3710042", "0002", "0001", Rcd,
                "18//3,5/30/x1/AC 0° < <50/<1666,7//<300 | /24/2,9/30//AC S 180° < <50/<1666,7//<300"},
        Strecke{104, "zemak-3710b.ser", "ZEMAK 3710B Ser. Nr.: 3711877", "0001", "0002",
                "ifnull(ifnull(m.RISO, '') || '/' || m.UISO || ' < ' || g.RISO, 'LOW ' || m.LOW)",
                ">200,0/260 < >0,5 | LOW 0,19"},
        Strecke{105, "zemak-3720.ser", "ZEMAK 3720B Ser. Nr.: 3720315", "1202", "0102", Isolation,
                ">200/1010 < >1"},
        Strecke{106, "quentavoir.ser", "HELVARD Quentavoir Ser. Nr.: Q9015", "3401", "0105", Rcd,
                "290//4,6/10/x1/2/AC 0° < <25/<2500/>300/"},
        Strecke{107, "zemak-3740.ser", "ZEMAK 3740B Ser. Nr.: 3740226", "1202", "0102", Isolation,
                "40,0/55 < >0,25"}),
    [](const ::testing::TestParamInfo<Strecke>& info) { return std::to_string(info.param.typ); });

} // namespace
} // namespace vemo::test
