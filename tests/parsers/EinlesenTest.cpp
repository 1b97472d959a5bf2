#include "Einleseumgebung.h"

using namespace vemo;

namespace {

const QString Titel = "vemotrix professional";
const QString KopfFehlt = "Messdaten Kopf fehlt";

// The report and table dumps of the Corvex and Multitester instruments.
class Einlesen : public test::Einleseumgebung {
protected:
    void SetUp() override {
        Einleseumgebung::SetUp();
        modul().Selektor() = "Multitester = Deutsch";
    }

    void probeLesen(const QString& probe, const QString& dateiname = {}) {
        probeAblegen(datei::Ruvo, probe);
        starten(dateiname);
    }
    void textLesen(const QStringList& zeilen, const QString& dateiname = {}) {
        zeilenAblegen(datei::Ruvo, zeilen);
        starten(dateiname);
    }
    void starten(const QString& dateiname) {
        modul().dateinameGewählt = dateiname;
        if (!dateiname.isEmpty())
            modul().aktuellesPrüfgerät = 0; // a file names no instrument
        modul().Abbruchmerker = 0;
        modul().DatenloggerMode = false;
        m_ui.meldungen.clear();
        EinlesenVonDatei();
        EXPECT_EQ(m_ui.sanduhrTiefe, 0);
    }

    // PrüfgerätID of the read-ins, newest first.
    QStringList prüfgeräte() const {
        QStringList ids;
        Recordset r = db().OpenRecordset("SELECT * FROM 0100_EinleseGeräteDaten ORDER BY GeräteID DESC");
        for (; !r.Eof(); r.MoveNext())
            ids << text(r.Field("PrüfgerätID"));
        return ids;
    }
    long geschrieben() const {
        return anzahl("0100_EinleseGeräteDaten") + anzahl("0100_EinleseDaten") +
               anzahl("0100_EinleseMessDaten") + anzahl("Prüfgerät");
    }
    static QStringList corvexKopf(const QString& geräteZeile) {
        return {"RUVO GmbH 0100 Multi    ", "------------------------", geräteZeile,
                " _______________________", ""};
    }
};

TEST_F(Einlesen, CorvexReportGivesOneRowPerGroupOfValues) {
    probeLesen("corvex-verteilung.ser");
    EXPECT_EQ(m_ui.texte(), QStringList());
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_FALSE(modul().DatenloggerMode);
    EXPECT_EQ(
        blöcke(),
        QStringList({
            "0001 0001: Riso V=500 V | Riso MOhm=245 MOhm",
            "0001 0001: LOW Ohm=0,12 Ohm",
            "0001 0002: Zs=0,35 Ohm | Zs Ik=657 A",
            "0001 0002: Ri=0,28 Ohm | Ri Ik=0,82 kA",
            "0001 0003: tFI=AC 0° | tFI mA=30 mA | tFI=1 | tFI t=18 ms | tFI Ub=3,5 V | tFI Ub max=50 V",
            "0001 0003: IdFI=AC 180° | IdFI mA=30 mA | IdFI=1/2 | IdFI Id=24 mA | IdFI t=31 ms | "
            "IdFI Ub=2,9 V",
            "0002 0001: U=231 V | U f=50 Hz",
            "0002 0001: Drehfeld=1.2.3",
            "0002 0004: Riso V=250 V | Riso MOhm=o.r. MOhm",
            "0002 0004: Riso MOhm=o.r. MOhm",
            "0002 0004: Riso V=1000 V | Riso MOhm=>200 MOhm",
            "0002 0004: Re=12,5 Ohm",
            "0002 0005: tFI S=AC 180° | tFI S=300 mA | tFI S=1 | tFI t=130 ms | tFI Ub=4,1 V",
            "0002 0005: UbFI S mA=300 mA | UbFI=1 | UbFI Ub=6,2 V | UbFI Re=21 Ohm",
        }));
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_EinleseDaten WHERE GeräteID = 10000 AND AnlageNr = '' "
                   "AND Datum = '' AND Uhrzeit = ''"),
              "14");
    EXPECT_EQ(wert("SELECT PrüfgerätName & '|' & Seriennummer FROM 0100_EinleseGeräteDaten"),
              "0100-Corvex|98120-00471");
    EXPECT_EQ(prüfgeräte(), QStringList{"10000"});
    EXPECT_EQ(
        wert("SELECT PrüfgerätID & '|' & Bezeichnung & '|' & typ & '|' & Inventarnummer FROM Prüfgerät"),
        "10000|0100-Corvex|100|");
    EXPECT_EQ(text(modul().PrüfgerätID), "10000");
    EXPECT_TRUE(m_settings.werte.isEmpty()); // this family remembers no instrument
}

TEST_F(Einlesen, MultitesterTableIsHandedOnByTheHeadOfTheReport) {
    probeLesen("multitester-tabelle.ser");
    EXPECT_EQ(m_ui.texte(), QStringList());
    EXPECT_FALSE(modul().DatenloggerMode);
    EXPECT_EQ(blöcke(), QStringList({
                            "0001 0001: Riso MOhm=245 MOhm | Riso V=500 V",
                            "0001 0001: LOW Ohm=0,12 Ohm",
                            "0001 0001: ZS=0,45 Ohm | ZS=511 A",
                            "0001 0002: Riso MOhm=o.r. MOhm | Riso V=250 V",
                            "0001 0002: RI=0,38 Ohm | RI=605 A | V=231 V",
                            "0001 0003: T0=18 ms | T0=30 mA | Ub=3,5 V | Re=117 Ohm",
                            "0001 0003: T180=22 ms | T180=30 mA | Ub=3,9 V",
                            "0001 0007: ",
                            "0001 0012: RS=1,2 Ohm | RS=192 A",
                        }));
    // One read-in of the instrument: the report's parser has written nothing.
    EXPECT_EQ(wert("SELECT PrüfgerätName & '|' & Seriennummer FROM 0100_EinleseGeräteDaten"),
              "0100-Varitron|31742-00815");
    EXPECT_EQ(prüfgeräte(), QStringList{"10000"});
    EXPECT_EQ(wert("SELECT Bezeichnung & '|' & typ FROM Prüfgerät"), "0100-Varitron|100");
    EXPECT_EQ(m_settings.GetSetting("Application", "PrüfgeräteID"), "10000");

    // Every function name of both samples has host data, and maps to a column of the measurements.
    probeLesen("corvex-verteilung.ser");
    EXPECT_EQ(zeilen("SELECT DISTINCT Funktion FROM 0100_EinleseMessDaten WHERE Funktion NOT IN (SELECT "
                     "TeilFunktion FROM 0100_TeilFunktion)"),
              QStringList());
    const Recordset messung = db().OpenRecordset("SELECT * FROM 0100_Messung");
    for (const QString& spalte :
         zeilen("SELECT DISTINCT spaltenname FROM 0100_TeilFunktion WHERE TeilFunktion "
                "IN (SELECT Funktion FROM 0100_EinleseMessDaten)"))
        EXPECT_TRUE(spalte == "mitCase***" || messung.FieldIndex(spalte) >= 0) << spalte.toStdString();
}

TEST_F(Einlesen, LineBeginningWithADigitEndsAMultitesterBlock) {
    textLesen({"-----", "5831     No. 31742-00815", "------", "0005 R: 0,20 Ohm", "2.5 mm2 Kupfer",
               "     R: 0,30 Ohm", "", ""});
    EXPECT_EQ(blöcke(), QStringList({"0001 0005: LOW Ohm=0,2 Ohm", "0001 02.5: LOW Ohm=0,3 Ohm"}));
}

TEST_F(Einlesen, HeadThatCannotBeReadWritesNothing) {
    const QList<QStringList> dumps{
        corvexKopf("44A0D    No. 98120-00471") + QStringList{"S:  001    P:  001"}, // a letter in the type
        {"RUVO GmbH 0100 Multi", "ohne Lineal"},                                    // no device line at all
        corvexKopf("4470D              "), // no serial number on a transfer
    };
    for (const QStringList& dump : dumps) {
        textLesen(dump);
        EXPECT_EQ(m_ui.texte(), QStringList{KopfFehlt});
        EXPECT_EQ(m_ui.meldungen.value(0).titel, Titel);
        EXPECT_EQ(modul().Abbruchmerker, 1);
        EXPECT_EQ(geschrieben(), 0);
    }
    probeLesen("corvex-geraetezeile-fehlerhaft.ser", "/tmp/x.ser");
    EXPECT_EQ(m_ui.texte(), QStringList{KopfFehlt});
    EXPECT_EQ(geschrieben(), 0);
    // From a file, a missing serial number is no reason to stop.
    textLesen(corvexKopf("4470D              ") +
                  QStringList{"S:  001    P:  001", "---", "", "Re = 3 Ohm", ""},
              "/tmp/x.ser");
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_EQ(blöcke(), QStringList{"0001 0001: Re=3 Ohm"});
}

TEST_F(Einlesen, DumpCutShortKeepsTheRowsWrittenSoFar) {
    probeLesen("corvex-abgebrochen.ser");
    EXPECT_EQ(m_ui.texte(), QStringList{KopfFehlt});
    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_EQ(blöcke(), QStringList({"0001 0001: Zs=0,41 Ohm | Zs Ik=561 A", "0001 0002: "}));

    // The table format has no trap of its own: the fault is shown as it is and ends the run.
    textLesen({"-----", "5831     No. 31742-00815", "------", "0001 R: 0,12 Ohm", "     Ub: 3,5 V"});
    EXPECT_EQ(m_ui.texte(), QStringList{"62 Einlesen hinter Dateiende"});
    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_EQ(anzahlen("0100_EinleseDaten|0100_EinleseMessDaten"), "3|3");
}

TEST_F(Einlesen, LoggerRecordAndDumpWithoutBlockGoToTheDataPool) {
    long geräte = 0;
    for (const QString probe : {"corvex-datenlogger.ser", "corvex-ohne-block.ser"}) {
        probeLesen(probe, "/tmp/x.ser");
        EXPECT_TRUE(modul().DatenloggerMode) << probe.toStdString();
        EXPECT_EQ(modul().Abbruchmerker, 0);
        EXPECT_EQ(m_ui.texte(), QStringList());
        EXPECT_EQ(anzahl("0100_EinleseGeräteDaten"), ++geräte);
        EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
    }
}

} // namespace
