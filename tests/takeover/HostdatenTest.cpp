#include "Uebernahmeumgebung.h"

#include "store/Recordset.h"
#include "takeover/Zuordnungstabelle.h"

using namespace vemo;

namespace {

using HostdatenTest = test::Uebernahmeumgebung;

QStringList spaltenVon(const QString& tabelle) {
    QStringList namen;
    const Recordset rs = modul().db.OpenRecordset(tabelle);
    for (int i = 0; i < rs.FieldCount(); ++i)
        namen << rs.FieldName(i);
    return namen;
}

// Every name with a routine of its own is known to the table, so that its routine finds the unit
// its values are converted to; every column the table names exists where the name sends it.
TEST_F(HostdatenTest, FunctionNamesLeadToExistingColumns) {
    for (const QString& name : namenMitHandler())
        EXPECT_EQ(wert("SELECT Count(*) FROM [0100_TeilFunktion] WHERE TeilFunktion = ?", {name}), "1")
            << name.toStdString();

    const QStringList messung = spaltenVon("0100_Messung");
    const QStringList grenzwert = spaltenVon("0100_Grenzwert");
    Recordset rs = modul().db.OpenRecordset("0100_TeilFunktion");
    int zeilen = 0;
    for (; !rs.Eof(); rs.MoveNext(), ++zeilen) {
        const QString name = rs.Text("TeilFunktion");
        const QString spalte = rs.Text("spaltenname");
        if (spalte == "keine***" || spalte == "mitCase***")
            continue;
        const QStringList& ziel = name.startsWith("g_") ? grenzwert : messung;
        EXPECT_TRUE(ziel.contains(spalte, Qt::CaseInsensitive))
            << name.toStdString() << " -> " << spalte.toStdString();
    }
    EXPECT_GT(zeilen, 150);
}

// The limit tables are copied into each other by position.
TEST_F(HostdatenTest, LimitTablesKeepOneColumnOrder) {
    QStringList standard = spaltenVon("0100_GrenzwertStandard");
    QStringList grenzwert = spaltenVon("0100_Grenzwert");
    ASSERT_EQ(standard.size(), grenzwert.size());
    EXPECT_EQ(standard.mid(1), grenzwert.mid(1));
    EXPECT_EQ(grenzwert.first(), "MessID");
    EXPECT_EQ(grenzwert.mid(grenzwert.size() - 2), (QStringList{"Grenzwert", "StromkreisID"}));
    EXPECT_EQ(anzahl("0100_GrenzwertStandard"), 1);
}

} // namespace
