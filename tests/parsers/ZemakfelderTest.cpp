#include "parsers/Zemakfelder.h"
#include "core/InitTabelle.h"
#include "parsers/Codeaufteilung.h"
#include "platform/Zahlformat.h"
#include "support/Fehlernummer.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

using test::fehlernummer;

TEST(Zemakfelder, FieldsWrapRoundInTheOlderModelsAndEndInTheNewer) {
    QStringList felder;
    for (int n = 1; n <= 7; ++n)
        felder << GetFeld("0A,1B,2C", n);
    EXPECT_EQ(felder, QStringList({"0A", "1B", "2C", "0A", "1B", "2C", "0A"}));
    EXPECT_EQ(GetFeld("0A,1B,", 3), "");
    EXPECT_EQ(GetFeld("0A,1B,", 4), "0A");
    EXPECT_EQ(GetFeld("", 5), "");

    const Datensatz älter("0A,1B,2C", true);
    const Datensatz neuer("0A,1B,2C", false);
    EXPECT_EQ(älter.zahl(5), 0x1Bu);
    EXPECT_EQ(neuer.zahl(3), 0x2Cu);
    EXPECT_EQ(fehlernummer([&] { neuer.feld(4); }), fehler::IndexAußerhalb);
}

TEST(Zemakfelder, HexadecimalFieldsAndCodes) {
    EXPECT_EQ(hexZahl("8123"), 33059u); // unsigned, though its top bit is set
    EXPECT_EQ(hexZahl("ffff"), 65535u);
    // 100000 loses its leading digits.
    EXPECT_EQ(test::jeweils(codeText, {"04D2", "7", "186A0", "1E240"}), "1234 | 0007 | 0000 | 3456");
    const auto fehlerBei = [](const QString& feld) {
        return QString::number(fehlernummer([&] { hexZahl(feld); }));
    };
    EXPECT_EQ(test::jeweils(fehlerBei, {"12G4", "", "&H12", "10000000000000000"}),
              QString("%1 | %1 | %1 | %2").arg(fehler::TypenUnverträglich).arg(fehler::Überlauf));

    const Datensatz satz("0,0,0,0,0,0,0,94F2", true);
    EXPECT_EQ(GetCode3(satz), 5u); // bits 10 to 12
    EXPECT_EQ(GetCode4(satz), 5u); // bit 13 is clear
    EXPECT_EQ(GetCode4(Datensatz("0,0,0,0,0,0,0,2000", true)), 8u);
    EXPECT_EQ(GetCode3(Datensatz("0,0,0,0,0,0,0,2000", true)), 0u);
}

TEST(Zemakfelder, AttributeGivesDecimalsAndMarks) {
    zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
    const struct {
        const char* wert;
        const char* attribut;
        bool milli;
        QString text;
    } fälle[] = {
        {"0123", "00", false, "291"},      {"04D2", "01", false, "123,4"},
        {"04D2", "02", false, "12,34"},    {"04D5", "03", false, "1,24"},
        {"04D2", "03", false, "1,23"},     {"0005", "02", false, "0,05"},
        {"0159", "00", true, "0,345"},     {"0159", "01", true, "0,035"},
        {"0000", "00", false, "0"},        {"04D2", "48", false, "---"},
        {"04D2", "C8", false, "---"},      {"04D2", "88", false, ">1234"},
        {"04D2", "09", false, ">123,4"},   {"04D2", "81", false, "ERR123,4"},
        {"04D2", "83", false, "ERR1,234"}, {"0159", "80", true, "ERR0,345"},
    };
    for (const auto& f : fälle)
        EXPECT_EQ(GetWertTextMilli(f.wert, f.attribut, f.milli), f.text) << f.wert << " " << f.attribut;
    // Both fields are read before the marks are looked at.
    EXPECT_EQ(fehlernummer([] { GetWertTextMilli("xx", "40", false); }), fehler::TypenUnverträglich);
    zahlformat::setzen(QLocale::c());
    EXPECT_EQ(GetWertTextMilli("04D2", "02", false), "12.34");
    zahlformat::ausUmgebung();
}

TEST(Codeaufteilung, DigitsGoToCustomerPlantBoardAndCircuit) {
    const struct {
        qint32 k, v;
        QString ergebnis; // customer, plant, board, circuit
    } fälle[] = {
        {2, 2, "12 034 0056 0078"},  {4, 4, "1234 ??? 5678 ???"}, {0, 2, " 234 0056 0078"},
        {1, 3, "1 234 0567 0008"},   {3, 1, "123 004 0005 0678"}, {0, 0, " 234 ??? 5678"},
        {9, 9, "1234 ??? 5678 ???"}, {-1, -1, " 234 ??? 5678"},
    };
    for (const auto& f : fälle) {
        Blockkopf k{{}, "???", "1234", "5678", {}, {}};
        codeAufteilen(k, {true, f.k, f.v});
        EXPECT_EQ(QStringList({k.kundeNr, k.anlageNr, k.verteilerNr, k.stromkreisNr}).join(' '), f.ergebnis)
            << f.k << " " << f.v;
    }
}

using Einstellungen = test::Testumgebung;

TEST_F(Einstellungen, CodeSplittingIsReadFromInit) {
    const auto gelesen = [] {
        const Codeaufteilung c = codeaufteilungLesen();
        return QString("%1 %2 %3").arg(c.an).arg(c.kundenstellen).arg(c.verteilerstellen);
    };
    EXPECT_EQ(gelesen(), "0 2 2");

    sql("INSERT INTO init VALUES ('codeSplitting3720', '1'), ('Kundencodestellen3720', '3'), "
        "('Verteilercodestellen3720', '1');");
    EXPECT_EQ(gelesen(), "1 3 1");

    // Only the first 50 characters of a name count.
    EXPECT_EQ(InitLesen("codeSplitting3720" + QString(40, 'x'), "?"), "?");
    sql("INSERT INTO init VALUES ('" + QString(50, 'n') + "', 'lang');");
    EXPECT_EQ(InitLesen(QString(60, 'n'), "?"), "lang");

    // Writing updates the row named, or adds one under the cut name.
    InitSchreiben(QString(60, 'n'), "neu");
    InitSchreiben("Firma_NiceicNo", "N-17");
    EXPECT_EQ(InitLesen(QString(50, 'n'), "?") + " " + InitLesen("Firma_NiceicNo", "?"), "neu N-17");
    EXPECT_EQ(wert("SELECT COUNT(*) FROM init"), "5");

    sql("UPDATE init SET wert = NULL WHERE name = 'codeSplitting3720';");
    EXPECT_EQ(InitLesen("codeSplitting3720", "0"), "");
    EXPECT_EQ(fehlernummer([] { codeaufteilungLesen(); }), fehler::TypenUnverträglich);
    sql("UPDATE init SET wert = 'True' WHERE name = 'codeSplitting3720';"
        "UPDATE init SET wert = '5000000000' WHERE name = 'Kundencodestellen3720';");
    EXPECT_EQ(fehlernummer([] { codeaufteilungLesen(); }), fehler::Überlauf);
}

} // namespace
