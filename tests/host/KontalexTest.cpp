#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include "KontalexSpeicher.h"
#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "grid/EinleseDatenController.h"
#include "grid/GridBefehle.h"
#include "host/DateiEinlesen.h"
#include "host/Modul15a.h"
#include "host/VerteilerListe.h"
#include "store/Variant.h"

#include <QDir>
#include <QFile>

using namespace vemo;

namespace {

class KontalexHostTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
        neueDatenbank(true);
        QDir(m_dir.path()).mkpath("sicherung");
        m_komponente = std::make_unique<vemo0100Modul15a>(m_ui, m_settings);
        m_komponente->setVemotrixDBName(m_dbPfad);
        m_komponente->setBackupVerzeichnis(pfad("sicherung"));
        m_komponente->setPrüfgeräteTypID(101);
    }
    void TearDown() override {
        m_komponente.reset();
        zahlformat::ausUmgebung();
        Testumgebung::TearDown();
    }

    // The read-in rows without their keys: where, when, and the values.
    QStringList einlesezeilen() const {
        return zeilen(
            "SELECT AnlageNr, VerteilerNr, StromkreisNr, Datum, Uhrzeit, (SELECT group_concat(Funktion "
            "|| '=' || ifnull(wert, '') || ifnull(Einheit, ''), ' ') FROM 0100_EinleseMessDaten w WHERE "
            "w.MessungID = d.MessungID) FROM 0100_EinleseDaten d ORDER BY MessungID");
    }
    // How many rows of the new inspections in the table hold the value in the column ("Spalte=wert").
    long gefunden(const QString& tabelle, const QString& paar) const {
        return wert("SELECT Count(*) FROM [" + tabelle + "] WHERE MessID >= 10000 AND [" +
                        paar.section('=', 0, 0) + "] = ?",
                    {paar.section('=', 1)})
            .toLong();
    }

    std::unique_ptr<vemo0100Modul15a> m_komponente;
};

// Every model from the instrument's memory to the inspection records: the transfer, the grid's
// assignment of customer and plant, the take-over; the saved raw file read again gives the same
// rows.
TEST_F(KontalexHostTest, DerGanzeWegJedesModells) {
    // The values of the new measurement rows and their limit rows, "Spalte=wert; ...", each found at
    // least once.
    struct Fall {
        QString modell, werte, grenzwerte;
    };
    const QList<Fall> fälle{
        {"KONTALEX",
         "RISO=100; UISO=512; LOW=0,11; LOOPRS=0,34; LoopIKRS=676; FIIDN=30; FIFaktor=x1; FGRAD=0°; FIT=15; "
         "FIUB=2,8; DREH=Rechts; ErdRE=13,5; ULN=229; LOOPRI=0,32; LoopIKRI=830; FIIMESS=26; LOOPNPE=0,49; "
         "Messwert=469",
         "RISO=1; LOW=2; ErdRE=100"},
        {"PRAVITONIX",
         "RISO=150; LOW=0,13; LOOPRS=0,39; LoopIKRS=590; LOOPRI=0,33; LoopIKRI=700; FIFaktor=x1; FIT=19; "
         "FIUB=3,8; DREH=Rechts; FIIMESS=26; FGRAD=180°; ULN=226",
         "RISO=>1"},
        {"Georin-Barrier Analyzer", "ErdRE=6; ErdRE=7,8; RISO=423; LOW=0,12; ULN=232", "ErdRE=10; LOW=2"},
        {"VOLTIRA 9KV",
         "Funktion=INSULATION RESISTANCE R; Messwert=800; Funktion=VOLTAGE f; Funktion=DIAGNISTIC TEST PI1; "
         "Messwert=1,52",
         ""},
    };
    for (const Fall& fall : fälle) {
        SCOPED_TRACE(fall.modell.toStdString());
        sql("DELETE FROM [0100_Messung]; DELETE FROM [0100_Grenzwert]");
        m_ui.meldungen.clear();
        {
            test::Simulator sim({"--type", "101", "--model", fall.modell, "--records", "12", "--baud", "0",
                                 "--link", pfad("port")});
            ASSERT_FALSE(sim.gerät().isEmpty());
            modul().portPfad = pfad("port");
            m_komponente->DatenEmpfangen();
        }
        EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
        const QStringList empfangen = einlesezeilen();
        ASSERT_EQ(empfangen.size(), 12);
        QFile::remove(pfad("gespeichert.sep"));
        ASSERT_TRUE(QFile::copy(arbeitsdatei(datei::Rs232Sep), pfad("gespeichert.sep")));

        EXPECT_EQ(zuordnenBefehl("1-12", "1", "1"), 0);
        EXPECT_EQ(zuordnenBefehl("1-12", "2", "2"), 0);
        EinleseDatenController form;
        form.übernehmenKlick();
        EXPECT_EQ(anzahl("0100_EinleseDaten"), 0) << "every row was taken over";
        for (const QString& paar : fall.werte.split("; ", Qt::SkipEmptyParts))
            EXPECT_GE(gefunden("0100_Messung", paar), 1) << paar.toStdString();
        for (const QString& paar : fall.grenzwerte.split("; ", Qt::SkipEmptyParts))
            EXPECT_GE(gefunden("0100_Grenzwert", paar), 1) << "limit " << paar.toStdString();

        m_ui.meldungen.clear();
        m_komponente->EinlesenAusDateiName(pfad("gespeichert.sep"));
        EXPECT_EQ(modul().Selektor(), selektor::Kontalex);
        EXPECT_EQ(einlesezeilen(), empfangen);
        EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
        sql("DELETE FROM [0100_EinleseDaten]");
    }
}

} // namespace
