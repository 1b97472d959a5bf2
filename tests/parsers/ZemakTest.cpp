#include "Einleseumgebung.h"

#include "core/Geraetetypen.h"

using namespace vemo;

namespace {

const QString Standardtitel = "vemo0100Modul15";

// The 37xx working files: the samples, and files written line by line around a few records.
class Zemak : public test::Einleseumgebung {
protected:
    // A file read is the default: no instrument joins the register.
    void probeLesen(const QString& s, const QString& probe, const QString& dateiname = "/tmp/x.ser") {
        probeAblegen(datei::Ruvo, probe);
        starten(s, dateiname);
    }
    void textLesen(const QString& s, const QStringList& zeilen) {
        zeilenAblegen(datei::Ruvo, zeilen);
        starten(s, "/tmp/x.ser");
    }

    // The head a transfer saves, the records, and the closing line.
    static QStringList speicher(const QString& kennung, const QStringList& sätze) {
        return QStringList{kennung, "XG,778582800", "OK", "QD 2,0001,"} + sätze + QStringList{"00"};
    }
    void lesen3720(const QStringList& sätze) { textLesen(selektor::Zemak3720, speicher(Z3720, sätze)); }

    void starten(const QString& s, const QString& dateiname) {
        modul().Selektor() = s;
        modul().dateinameGewählt = dateiname;
        modul().aktuellesPrüfgerät = 0;
        modul().Abbruchmerker = 0;
        m_ui.meldungen.clear();
        EinlesenVonDatei();
        EXPECT_EQ(modul().Abbruchmerker, 0); // the caller goes on, whatever the parser met
    }

    // "customer/plant board circuit date time" of each block.
    QStringList orte() const {
        QStringList ergebnis;
        Recordset b = db().OpenRecordset("SELECT * FROM 0100_EinleseDaten ORDER BY MessungID");
        for (; !b.Eof(); b.MoveNext())
            ergebnis << b.Text("KundeNr") + "/" + b.Text("AnlageNr") + " " + b.Text("VerteilerNr") + " " +
                            b.Text("StromkreisNr") + " " + b.Text("Datum") + " " + b.Text("Uhrzeit");
        return ergebnis;
    }
    QString gerät() const {
        return wert("SELECT PrüfgerätName & '|' & Versionsnummer & '|' & Seriennummer & '|' & PrüfgerätID "
                    "FROM 0100_EinleseGeräteDaten ORDER BY GeräteID DESC");
    }

    static inline const QString Z3720 = "ZEMAK 3720B,1.04,3720315";
};

// Each model's sample: one row a record, the place and moment of a record, and the instrument; a
// file read leaves the register as it was, a transfer registers the instrument with its model's
// type. The values of each sample travel on through the take-over, whose test compares them
// column by column; the 3720's rows are compared here by function code.
TEST_F(Zemak, EachModelsSampleGivesOneRowPerRecordAndItsInstrument) {
    const struct {
        QString selektor, probe;
        int zeilen, ortZeile;
        QString ort, gerät;
        int typ;
    } proben[] = {
        {selektor::Zemak, "zemak-3710.ser", 10, 0, "/ 0001 0001 14.03.2024 09:30:00",
         "ZEMAK 3710|1.03|3710042", 103},
        {selektor::Zemak3710B, "zemak-3710b.ser", 9, 5, "/ 0002 0001 06.05.2024 14:10:00",
         "ZEMAK 3710B|2.10|3711877", 104},
        {selektor::Zemak3740, "zemak-3740.ser", 8, 7, "/0002 1202 0208 30.06.2025 08:06:00",
         "ZEMAK 3740B|3.02|3740226", 105}, // told from a 3720 by its name only
        {selektor::Quentavoir, "quentavoir.ser", 5, 0, "", "HELVARD Quentavoir|1.20|Q9015", 106},
        {selektor::Zemak3720, "zemak-3720.ser", 10, 0, "/??? 1202 0101 02.09.2024 08:15:00",
         "ZEMAK 3720B|1.04|3720315", 105},
    };
    for (const auto& p : proben) {
        SCOPED_TRACE(p.probe.toStdString());
        sql("DELETE FROM [0100_EinleseDaten]");
        probeLesen(p.selektor, p.probe);
        EXPECT_EQ(m_ui.texte(), QStringList());
        EXPECT_EQ(orte().size(), p.zeilen);
        if (!p.ort.isEmpty()) {
            EXPECT_EQ(orte().value(p.ortZeile), p.ort);
        }
        EXPECT_EQ(gerät(), p.gerät + "|0");
        probeLesen(p.selektor, p.probe, {});
        const QString id = text(modul().PrüfgerätID);
        EXPECT_EQ(wert("SELECT Bezeichnung & '|' & typ FROM Prüfgerät WHERE PrüfgerätID = " + id),
                  p.gerät.section('|', 0, 0) + "|" + QString::number(p.typ));
        EXPECT_TRUE(gerät().endsWith("|" + id));
    }
    EXPECT_EQ(anzahl("Prüfgerät"), 5);
    EXPECT_EQ(
        blöcke().mid(0, 10),
        QStringList({
            "1202 0101: Spannung Uac=231 V | m_Bemerkung=Uac:N-PE | Spannung f=50,0 Hz",
            "1202 0102: m_KTS_INSUPE=>200 Mohm | R ISO, M, U=1010 V | R ISO, E, Un=1000 V",
            "1202 0103: m_KTS_INSUPP=50,0 Mohm | R ISO, M, U=275 V | R ISO, E, Un=250 V",
            "1202 0104: m_KTS_CONTN=0,30 Ohm",
            "1202 0105: Z LOOP, M, Z=0,48 Ohm | R LOOP N-PE, M, R=0,42 Ohm",
            "1202 0106: Z LOOP, M, Z=0,345 Ohm | Z LOOP, M, Isc=666 A",
            "1202 0201: RCD t, M, t=17 ms | RCD t, M, Ub=2,5 V | RCD t, G, Ub=<50 V | RCD t, E, Idn=100 mA "
            "| RCD t, E, mult.:=x5 | RCD t, E, phase:= 180° | RCD t, E, type := PL S",
            "1202 0202: RCD I, M, Id=130 mA | RCD t, M, Ub=0,7 V | RCD t, G, Ub=<25 V | RCD t, E, Idn=150 "
            "mA | RCD t, E, phase:= 0° | RCD t, E, type := B",
            "1202 0209: Re=10,00 Ohm",
            "1202 0210: Phase=123",
        }));
    // A 3720 file is no Quentavoir's: its identification line is never found.
    probeLesen(selektor::Quentavoir, "zemak-3720.ser");
    EXPECT_EQ(m_ui.texte(), QStringList{"62 Einlesen hinter Dateiende"});
    EXPECT_EQ(m_ui.meldungen.value(0).titel, Standardtitel);
}

TEST_F(Zemak, CodeSplittingDividesTheTwoCodes) {
    const QStringList sätze{"04D2,162E,0,0012,00,0010,00,1C00,0,0"};
    lesen3720(sätze); // off by default
    // On with four digits each, then none; two each, the default, is the 3720 sample's road
    // (SpeicherUebernahmeTest).
    sql("INSERT INTO init VALUES ('codeSplitting3720', '1'), ('Kundencodestellen3720', '4'), "
        "('Verteilercodestellen3720', '4');");
    lesen3720(sätze);
    sql("UPDATE init SET wert = '0' WHERE name = 'Kundencodestellen3720';"
        "UPDATE init SET wert = '0' WHERE name = 'Verteilercodestellen3720';");
    lesen3720(sätze);
    EXPECT_EQ(orte(), QStringList({
                          "/??? 1234 5678 01.01.2000 00:00:00",
                          "1234/??? 5678 ??? 01.01.2000 00:00:00",
                          "/234 ??? 5678 01.01.2000 00:00:00",
                      }));

    // The 3740's plant comes from its first field, and stays there when all digits are the customer's.
    const QString satz3740 = "0007,04D2,162E,0,0,07,00,0,0012,0,0,0,0,00,00,00,0,0,0";
    sql("UPDATE init SET wert = '4' WHERE name = 'Kundencodestellen3720';"
        "UPDATE init SET wert = '2' WHERE name = 'Verteilercodestellen3720';");
    textLesen(selektor::Zemak3740, speicher("ZEMAK 3740B,3.02,3740226", {satz3740}));
    EXPECT_EQ(orte().last(), "1234/0007 0056 0078 01.01.2000 00:00:00");

    // An empty setting cannot be a truth value: the read ends before the first record.
    sql("UPDATE init SET wert = NULL WHERE name = 'codeSplitting3720';");
    lesen3720(sätze);
    EXPECT_EQ(m_ui.texte(), QStringList{"13 Typen unverträglich (\"\")"});
    EXPECT_EQ(anzahlen("0100_EinleseDaten|0100_EinleseGeräteDaten"), "4|5");
}

TEST_F(Zemak, ABadMemoryOfThe3710BIsReadWithoutValues) {
    const QString satz = "%1,01,%2,00E6,00,01F4,01,0001,0000,0";
    textLesen(selektor::Zemak3710B, speicher("ZEMAK 3710B,2.10,3711877",
                                             {
                                                 satz.arg("01", "0001") + ",",
                                                 satz.arg("01", "01BD") + ",", // memory index 445
                                                 satz.arg("02", "0003") + ",", // good again, but too late
                                                 satz.arg("ZZ", "0004") + ",", // still read: ends the read
                                                 satz.arg("03", "0005"),
                                             }));
    EXPECT_EQ(m_ui.texte(), QStringList({"Speicherfehler3710B", "13 Typen unverträglich (\"ZZ\")"}));
    EXPECT_EQ(m_ui.meldungen.value(0).titel, "vemotrix professional");
    EXPECT_EQ(m_ui.meldungen.value(1).titel, Standardtitel);
    EXPECT_EQ(blöcke(), QStringList({
                            "0001 0001: Spannung Uac=230 V | m_Bemerkung=Uac:L-PE | Spannung f=50,0 Hz",
                            "0100 0100: ",
                            "0100 0100: ",
                        }));
    EXPECT_EQ(orte().value(1), "/ 0100 0100  ");
}

TEST_F(Zemak, AFailureEndsTheReadButThe3710GoesOnStatementByStatement) {
    const QStringList sätze{
        "01,01,0001,00G6,00,01F4,01,0000,0,", // value A is no number
        "01,02,0002,00F5,00,0212,00,05Z0,0,", // nor is the mode word
        "01,03,0003,000C,02,0000,00,0800,0",
    };
    textLesen(selektor::Zemak, speicher("ZEMAK 3710,1.03,3710042", sätze));
    EXPECT_EQ(m_ui.texte(),
              QStringList({"13 Typen unverträglich (\"00G6\")", "13 Typen unverträglich (\"05Z0\")"}));
    EXPECT_EQ(m_ui.meldungen.value(1).titel, Standardtitel);
    EXPECT_EQ(blöcke(), QStringList({"0001 0001: Spannung Uac=∅ V | Spannung f=50,0 Hz",
                                     "0001 0002: ", "0001 0003: LOW Ohm=0,12 Ohm"}));

    // The 3720 stops at the first: the row of the record stays, its values do not.
    lesen3720({"04B2,0065,0,00G6,00,01F4,01,0000,0,0,", "04B2,0066,0,0012,00,0010,00,1C00,0,0"});
    EXPECT_EQ(m_ui.texte(), QStringList{"13 Typen unverträglich (\"00G6\")"});
    EXPECT_EQ(blöcke().mid(3), QStringList{"1202 0101: "});

    // The test current is read by every record of the 3720, though only an RCD test uses it.
    lesen3720({"04B2,0065,0,0012,00,0010,00,1C00,ZZZZ,0"});
    EXPECT_EQ(m_ui.texte(), QStringList{"13 Typen unverträglich (\"ZZZZ\")"});
    EXPECT_EQ(blöcke().last(), "1202 0101: ");

    // A record too short: the 3710 takes its fields round again, the 3720 runs out of them.
    textLesen(selektor::Zemak, speicher("ZEMAK 3710,1.03,3710042", {"05,06,0,1800"}));
    EXPECT_EQ(m_ui.texte(), QStringList());
    // Field 8, the mode word, is field 4; the attribute in field 5 is field 1.
    EXPECT_EQ(blöcke().last(), "0005 0006: Re=614,4 Ohm");
    // An identification line without version costs the 3710 the version alone, kept as empty text.
    textLesen(selektor::Zemak, speicher("ZEMAK 3710,3710042", {"05,07,0,1800"}));
    EXPECT_TRUE(m_ui.texte().size() == 1 && m_ui.texte()[0].startsWith("5 "))
        << m_ui.texte().join('\n').toStdString();
    EXPECT_EQ(blöcke().last(), "0005 0007: Re=614,4 Ohm");
    EXPECT_EQ(spalte(db().OpenRecordset("SELECT * FROM 0100_EinleseGeräteDaten ORDER BY GeräteID DESC"),
                     "Versionsnummer"),
              "");
    lesen3720({"04B2,0065,0,0012,00"});
    EXPECT_EQ(m_ui.texte(), QStringList{"9 Index außerhalb des gültigen Bereichs (Feld 10)"});
}

} // namespace
