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

    long geschrieben() const {
        return anzahl("0100_EinleseGeräteDaten") + anzahl("0100_EinleseDaten") +
               anzahl("0100_EinleseMessDaten") + anzahl("Prüfgerät");
    }
    static QStringList corvexKopf(const QString& geräteZeile) {
        return {"RUVO GmbH 0100 Multi    ", "------------------------", geräteZeile,
                " _______________________", ""};
    }
};

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

} // namespace
