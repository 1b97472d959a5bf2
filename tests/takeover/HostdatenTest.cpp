#include "Uebernahmeumgebung.h"

#include "parsers/Zemakmesszeilen.h"
#include "store/Recordset.h"
#include "takeover/Zuordnungstabelle.h"

#include <QSet>

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

// The function names a 37xx model can give: every function code with every pattern of the bits
// its tables test, the record otherwise all zero.
QSet<QString> namenDesModells(const Variante& v, int felder, int modusfeld, int codefeld) {
    QSet<QString> namen;
    QStringList satz(felder, "0");
    for (quint64 code = 0; code < 16; ++code)
        for (quint64 bits = 0; bits < 0x400; ++bits) {
            if (codefeld) {
                satz[codefeld - 1] = QString::number(code, 16);
                satz[modusfeld - 1] =
                    QString::number((bits & 0xF) | (bits & 0xF0) << 4 | (bits & 0x300) << 6, 16);
            } else {
                satz[modusfeld - 1] = QString::number(code << 10 | bits, 16).rightJustified(4, '0');
            }
            const Datensatz d(satz.join(','), v.umlaufend);
            for (const Zemakmesszeile& z : messzeilen(v, d))
                if (const auto name = z.funktion())
                    namen << *name;
        }
    return namen;
}

// Every name the decoder can give, of every model, is known to the table; which names a model
// gives is the read-in tests' of the samples.
TEST_F(HostdatenTest, Every37xxFunctionNameGoesSomewhere) {
    QSet<QString> namen = namenDesModells(variante::zemak3740(), 19, 5, 6);
    for (const Variante& v :
         {variante::zemak(), variante::zemak3710B(), variante::zemak3720(), variante::quentavoir()})
        namen += namenDesModells(v, 10, 8, 0);
    namen.remove("");
    EXPECT_GT(namen.size(), 25);
    for (const QString& name : std::as_const(namen))
        EXPECT_EQ(wert("SELECT Count(*) FROM [0100_TeilFunktion] WHERE TeilFunktion = ?", {name}), "1")
            << name.toStdString();
}

} // namespace
