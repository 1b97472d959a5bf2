#include "import/Quelltabelle.h"
#include "support/Testumgebung.h"

#include <QDateTime>
#include <QProcess>
#include <QStandardPaths>

using namespace vemo;

namespace {

const QString Datumsformat = "%Y-%m-%d %H:%M:%S";

// A field as mdb-export prints it: yes/no as 1 and 0, dates in the format asked for.
QString wieExportiert(const QVariant& wert) {
    if (wert.isNull())
        return {};
    if (wert.typeId() == QMetaType::QDateTime)
        return wert.toDateTime().toString("yyyy-MM-dd HH:mm:ss");
    if (wert.typeId() == QMetaType::Int && (wert.toInt() == -1 || wert.toInt() == 0))
        return wert.toInt() == -1 ? "1" : "0";
    return wert.toString();
}

// A third-party sample database in the old desktop format; see tests/data/README.md.
const QString Beispiel = test::quelle("tests/data/users-sample.mdb");

TEST(JetQuelleTest, TheReaderYieldsWhatMdbExportPrintsForTheSameTable) {
    const QString export_ = QStandardPaths::findExecutable("mdb-export");
    if (export_.isEmpty())
        GTEST_SKIP() << "mdb-export is not installed (package mdbtools; scripts/bootstrap installs it)";
    QProcess p;
    // Unquoted and apart by tabs: the sample's texts hold neither a tab nor a line break.
    p.start(export_, {"-T", Datumsformat, "-Q", "-d", "\t", Beispiel, "Users"});
    ASSERT_TRUE(p.waitForFinished(30000));
    ASSERT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    QList<QStringList> erwartet;
    for (const QString& zeile : QString::fromUtf8(p.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts))
        erwartet << zeile.split('\t');
    ASSERT_GE(erwartet.size(), 2);

    const auto tabelle = quelltabelleÖffnen(Beispiel, "users"); // found without regard to case
    EXPECT_EQ(tabelle->spalten(), erwartet[0]);
    EXPECT_EQ(tabelle->anzahl(), erwartet.size() - 1);
    for (qsizetype z = 1; z < erwartet.size(); ++z) {
        const auto zeile = tabelle->nächsteZeile();
        ASSERT_TRUE(zeile.has_value()) << "row " << z;
        for (qsizetype s = 0; s < erwartet[0].size(); ++s)
            EXPECT_EQ(wieExportiert(zeile->feld(erwartet[0][s])), erwartet[z].value(s))
                << "row " << z << ", column " << erwartet[0][s].toStdString();
    }
    EXPECT_FALSE(tabelle->nächsteZeile().has_value());
}

TEST(JetQuelleTest, FieldsComeTypedAndAMissingColumnIsTheOldEnginesError) {
    const auto tabelle = quelltabelleÖffnen(Beispiel, "Users");
    const auto zeile = tabelle->nächsteZeile();
    ASSERT_TRUE(zeile.has_value());
    EXPECT_EQ(zeile->feld("UserId").typeId(), QMetaType::LongLong);
    EXPECT_EQ(zeile->feld("UserBirthday").typeId(), QMetaType::QDateTime);
    EXPECT_EQ(zeile->feld("usermarried").toInt(), -1); // yes is -1, as the old database keeps it
    EXPECT_THROW(zeile->text("Reserve3"), Fehler);
}

} // namespace
