#include "Einleseumgebung.h"

#include "core/Satzdatei.h"
#include "takeover/MesswertUebernehmen.h"

using namespace vemo;

namespace {

// The record files of the command-protocol instruments, shown with plant, board, circuit, time and
// date of each block.
class KontalexEinlesen : public test::Einleseumgebung {
protected:
    void SetUp() override {
        Einleseumgebung::SetUp();
        modul().Selektor() = "Multitester = Kontalex";
    }

    void probeLesen(const QString& probe, const QString& dateiname = {}) {
        probeAblegen(datei::Rs232Txt, probe);
        starten(dateiname);
    }
    void satzdateiLesen(const QList<QByteArray>& zeilen, const QString& dateiname = {}) {
        test::schreiben(arbeitsdatei(datei::Rs232Txt), zeilen.join());
        starten(dateiname);
    }
    void starten(const QString& dateiname) {
        modul().dateinameGewählt = dateiname;
        modul().aktuellesPrüfgerät = 0;
        modul().Abbruchmerker = 0;
        modul().DatenloggerMode = false;
        m_ui.meldungen.clear();
        EinlesenVonDatei();
    }
    QStringList blöcke() const {
        return Einleseumgebung::blöcke({"AnlageNr", "VerteilerNr", "StromkreisNr", "Uhrzeit", "Datum"});
    }

    static QByteArray marke(const QString& m) { return satzzeile({m, 1, 1, 1, 1, 1, 1, 1}); }
    static QList<QByteArray> gerät(const QString& modell, const QString& seriennummer) {
        return {marke(kontalexsatz::Gerätemarke),
                satzzeile({modell, "STD", "2.14", "HW 3", seriennummer, "01.2024", "Deutsch", 1})};
    }
    static QList<QByteArray> block(int objekt, int stromkreis, const QString& platz,
                                   const QList<QStringList>& werte = {}) {
        QList<QByteArray> z{marke(kontalexsatz::Blockmarke),
                            satzzeile({objekt, stromkreis, platz, "", "", "", "09:15", "18.03.2024"})};
        for (const QStringList& w : werte)
            z << satzzeile({w[0], w[1], w[2], w[3], w[4], 1, 1, 1});
        return z;
    }
};

// Each model's sample; every name the models give is known to the take-over: a row of the
// table, or a text block (the high-voltage tester's names).
TEST_F(KontalexEinlesen, ProbenJedesModells) {
    const auto unbekannteNamen = [this] {
        QStringList namen =
            zeilen("SELECT DISTINCT Funktion FROM 0100_EinleseMessDaten WHERE Funktion NOT IN "
                   "(SELECT TeilFunktion FROM 0100_TeilFunktion)");
        namen.removeIf(istTextblock);
        return namen;
    };
    probeLesen("kontalex.ser");
    EXPECT_EQ(unbekannteNamen(), QStringList());
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    const QStringList k = blöcke();
    ASSERT_EQ(k.size(), 12);
    EXPECT_EQ(k[0], "001 0001 0001 08:00 17.03.2024: R ISO, M, R=100 MOhm | R ISO, M, U=512 V | "
                    "R ISO, E, Un=500 V | R ISO, G, R=1 MOhm");
    EXPECT_EQ(k[3],
              "001 0001 0004 08:03 17.03.2024: RCD t, E, Idn=30 mA | RCD t, E, mult.:=x1 | "
              "RCD t, E, phase:= 0° | RCD t, E, type := General | RCD t, M, t=15 ms | RCD t, M, Uci=2,8 V");
    EXPECT_EQ(k[9], "001 0003 0002 08:09 17.03.2024: R LOOP N-PE, M, R=0,49 Ohm | R LOOP N-PE, M, Isc=469 A");
    EXPECT_EQ(
        wert("SELECT PrüfgerätName & '|' & Versionsnummer & '|' & Seriennummer FROM 0100_EinleseGeräteDaten"),
        "KONTALEX|2.14|11840217");
    // A serial transfer registers the instrument under the name of its model, and remembers it.
    EXPECT_EQ(wert("SELECT Bezeichnung & '|' & typ FROM Prüfgerät"), "0100-KONTAlex|101");
    EXPECT_EQ(m_settings.GetSetting("Application", "PrüfgeräteID"), "10000");

    for (const auto& [probe, bezeichnung, erster] :
         {std::tuple{"pravitonix.ser", "0100-PRAVITonix",
                     "001 0001 0001 00:00 01.01.00: R ISO, M, R=150 MOhm | R ISO, E, Un=500 V"},
          std::tuple{
              "georin.ser", "GEORIN-Btest",
              "001 0001 0001 00:00 01.01.00: R EARTH GEORTEST, M, Re=6 Ohm | R EARTH GEORTEST, E, Un=48 V"},
          std::tuple{"voltira.ser", "VOLTIra 9KV",
                     " 0000 0998 08:00 17.03.2024: INSULATION RESISTANCE, M, R=800 MOhm | "
                     "INSULATION RESISTANCE, M, U=5000 V | INSULATION RESISTANCE, M, I=4 nA | "
                     "INSULATION RESISTANCE, M, C=22 nF"}}) {
        SCOPED_TRACE(probe);
        sql("DELETE FROM [0100_EinleseDaten]");
        probeLesen(probe);
        EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
        const QStringList b = blöcke();
        ASSERT_EQ(b.size(), 12);
        EXPECT_EQ(b[0], erster);
        EXPECT_EQ(unbekannteNamen(), QStringList());
        EXPECT_EQ(wert(QString("SELECT Count(*) FROM Prüfgerät WHERE Bezeichnung = '%1'").arg(bezeichnung)),
                  "1");
    }
    // The high-voltage tester's places go into the circuit as they stand, past 999.
    EXPECT_EQ(blöcke()[2].left(16), " 0000 1000 08:02");
}

TEST_F(KontalexEinlesen, UnbekanntesGeraetUndLoggerdateiSchreibenNichts) {
    QList<QByteArray> datei = gerät("KONTALEX", "99-1160");
    datei += block(1, 1, "1", {{"R ISO", "M", "R", "245", "MOhm"}});
    datei += marke(kontalexsatz::Endemarke);
    satzdateiLesen(datei);
    EXPECT_EQ(m_ui.texte(), QStringList{"Unbekanntes Prüfgerät"});
    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_EQ(anzahl("0100_EinleseGeräteDaten") + anzahl("0100_EinleseDaten") + anzahl("Prüfgerät"), 0);

    datei.prepend(satzzeile({kontalexsatz::Loggerkopf, 2, 1, 1, 1, 1, 1, 1}));
    datei[2] = satzzeile({"PRAVITONIX", "STD", "2.14", "HW 3", "11731544", "01.2024", "No Language", 1});
    satzdateiLesen(datei);
    EXPECT_TRUE(modul().DatenloggerMode);
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
    EXPECT_EQ(anzahl("0100_EinleseGeräteDaten") + anzahl("0100_EinleseDaten"), 0);
}

// A file that breaks off keeps what was read; the broken read is told once and the walk ends.
TEST_F(KontalexEinlesen, AbgebrocheneDateiBehaeltIhreZeilen) {
    QList<QByteArray> datei = gerät("KONTALEX", "11840217");
    datei += block(1, 1, "1", {{"R ISO", "M", "R", "245", "MOhm"}, {"R ISO", "M", "U", "512", "V"}});
    datei += block(1, 1, "2", {{"Z LOOP", "M", "Z", "0.35", "Ohm"}});
    datei += "\"Z LOOP\",\"M\",\"Isc\",\"65";
    satzdateiLesen(datei);

    EXPECT_EQ(blöcke(),
              (QStringList{"001 0001 0001 09:15 18.03.2024: R ISO, M, R=245 MOhm | R ISO, M, U=512 V",
                           "001 0001 0002 09:15 18.03.2024: Z LOOP, M, Z=0,35 Ohm"}));
    EXPECT_EQ(m_ui.texte(), QStringList{"62Einlesen hinter Dateiende"});
    EXPECT_EQ(modul().Abbruchmerker, 0);
}

} // namespace
