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

TEST_F(HostdatenTest, Every37xxFunctionNameGoesSomewhere) {
    const QSet<QString> gemeinsam{"Spannung Uac",     "Spannung f",       "R ISO, M, U",  "R ISO, E, Un",
                                  "Z LOOP, M, Z",     "Z LOOP, M, Isc",   "Z LINE, M, Z", "Z LINE, M, Isc",
                                  "RCD I, M, Id",     "RCD t, M, Ub",     "RCD t, G, Ub", "RCD t, E, Idn",
                                  "RCD t, E, phase:", "RCD t, E, type :", "Re",           "Phase"};
    const QSet<QString> älter{"R ISO, M, R", "LOW Ohm", "R LOOP N-PE, M, R", "RCD t, M, t",
                              "RCD t, E, mult.:"};
    const QSet<QString> kts{"m_Bemerkung", "m_KTS_INSUNE", "m_KTS_INSUPE", "m_KTS_INSUPN"};
    const QSet<QString> nur3720{"m_KTS_INSUPP",      "m_KTS_CONTN", "m_KTS_CONTC",
                                "m_KTS_CONTP",       "m_KTS_CONT+", "m_KTS_CONTR",
                                "R LOOP N-PE, M, R", "RCD t, M, t", "RCD t, E, mult.:"};
    const QSet<QString> zemak = namenDesModells(variante::zemak(), 9, 8, 0);
    EXPECT_EQ(zemak, gemeinsam + älter);
    EXPECT_EQ(namenDesModells(variante::zemak3710B(), 10, 8, 0),
              gemeinsam + älter + QSet<QString>{"m_Bemerkung"});
    const QSet<QString> z3720 = namenDesModells(variante::zemak3720(), 10, 8, 0);
    EXPECT_EQ(z3720, gemeinsam + kts + nur3720);
    EXPECT_EQ(namenDesModells(variante::quentavoir(), 10, 8, 0), z3720);
    const QSet<QString> z3740 = namenDesModells(variante::zemak3740(), 19, 5, 6);
    EXPECT_EQ(z3740, gemeinsam + kts + QSet<QString>{""});

    for (const QString& name : zemak + z3720 + z3740)
        EXPECT_EQ(wert("SELECT Count(*) FROM [0100_TeilFunktion] WHERE TeilFunktion = '" + name + "'"), "1")
            << name.toStdString();
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
