#include "support/Dateien.h"
#include "support/Testumgebung.h"

#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "host/Modul15a.h"
#include "logger/DateiVorbereiten.h"
#include "logger/DatenLogger.h"
#include "logger/Reihenspeicher.h"
#include "logger/Zuordnen.h"
#include "platform/Zahlformat.h"
#include "store/Recordset.h"
#include "store/Variant.h"

#include <QDir>

using namespace vemo;

namespace {

const QDateTime Beginn(QDate(2026, 3, 14), QTime(7, 30, 0));

// A dump read from a file with the data pool answered as the test says: the start of the series
// given in the logger dialog, and the data pool's Command5 or Command4.
class DatenpoolTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        neueDatenbank(true);
        QDir(m_dir.path()).mkpath("sicherung");
        m_komponente = std::make_unique<vemo0100Modul15a>(m_ui, m_settings);
        m_komponente->setVemotrixDBName(m_dbPfad);
        m_komponente->setBackupVerzeichnis(pfad("sicherung"));
        m_ui.beiDialog = [this](DialogController& d) { beantworten(d); };
    }
    void TearDown() override {
        m_komponente.reset();
        Testumgebung::TearDown();
    }

    void beantworten(DialogController& d) {
        if (auto* logger = qobject_cast<DatenLogger*>(&d)) {
            logger->startSetzen(Beginn);
            logger->command1();
        } else if (auto* pool = qobject_cast<Zuordnen*>(&d)) {
            m_chartpunkte = pool->diagramm().anzahl();
            m_endung = pool->spannungsEndung();
            m_zuordnung = pool->zeigtZuordnung();
            m_liste = pool->liste();
            if (m_listeWählen)
                m_listeWählen(*pool);
            if (m_speichern)
                pool->command5();
            if (pool->istOffen()) // the messages leave it open: the user closes it then
                pool->command4();
        }
    }
    void auswählen(int kunde, int anlage) {
        m_komponente->setListeKundeID(kunde);
        m_komponente->setListeAnlageID(anlage);
    }
    void einlesen(const QString& probe) {
        m_komponente->EinlesenAusDateiName(test::quelle("samples/" + probe));
    }

    std::unique_ptr<vemo0100Modul15a> m_komponente;
    bool m_speichern = true;
    int m_chartpunkte = -1;
    QString m_endung;
    bool m_zuordnung = false;
    QStringList m_liste;
    std::function<void(Zuordnen&)> m_listeWählen;
};

TEST_F(DatenpoolTest, EineReiheWirdEinePrüfungMitIhrenPunkten) {
    zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
    auswählen(1, 2);
    einlesen("corvex-datenlogger.ser");
    EXPECT_EQ(m_ui.dialoge, (QStringList{"vemo::DatenLogger", "vemo::Zuordnen"}));
    EXPECT_TRUE(m_ui.texte().isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(modul().datenpoolModus, "DATEN LOGGER");
    EXPECT_EQ(m_endung, " (L-N(L)):");

    ASSERT_EQ(wert("SELECT Count(*) FROM 0100_Prüfung WHERE AnlagenID = 2"), "1");
    const QString prüfung = wert("SELECT PrüfungID FROM 0100_Prüfung WHERE AnlagenID = 2");
    EXPECT_EQ(text(m_komponente->ListePrüfungID()), prüfung);
    EXPECT_EQ(anzahl("datlog37"), 1);
    EXPECT_EQ(wert("SELECT PrüfungID FROM datlog37"), prüfung);
    EXPECT_EQ(db().OpenRecordset("datlog37").Field("Datum").toDateTime(), Beginn);
    EXPECT_EQ(
        wert("SELECT xText || '/' || yText || '/' || Anzahlmessungen || '/' || Intervall || '/' || Max || "
             "'/' || Min FROM datlog37"),
        "Zeit/Spannung/6/60/233,0/228,4");
    const QString protokoll =
        wert("SELECT ProtokollNr FROM 0100_Prüfung WHERE PrüfungID = ?", {prüfung.toInt()});
    EXPECT_TRUE(wert("SELECT headline FROM datlog37").endsWith(" " + protokoll));
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100U_CertNic WHERE pid = ?", {prüfung.toInt()}), "1");

    // The first point lies one interval behind the start, each further one more.
    QStringList punkte;
    for (Recordset r = db().OpenRecordset("SELECT * FROM messreihe37 ORDER BY messreihe37ID"); !r.Eof();
         r.MoveNext()) {
        EXPECT_EQ(r.Text("IDDATLOG"), wert("SELECT IDDATLOG FROM datlog37"));
        punkte << r.Field("Datum").toDateTime().toString("HH:mm:ss") + "=" +
                      QString::number(zahl(r.Field("wert")));
    }
    EXPECT_EQ(punkte, (QStringList{"07:31:00=231.2", "07:32:00=230.8", "07:33:00=228.4", "07:34:00=229.9",
                                   "07:35:00=233", "07:36:00=232.1"}));
    EXPECT_EQ(wert("SELECT DISTINCT typeof(wert) FROM messreihe37"), "real")
        << "a number, not the locale's text";
}

// A fault while the series is written leaves nothing of it: no inspection, no head row, no
// certificate record, no equipment. The user is told, and storing again after it stores it once.
TEST_F(DatenpoolTest, EinFehlerBeimSpeichernLässtNichtsZurück) {
    auswählen(1, 2);
    const QStringList tabellen{"0100_Prüfung", "datlog37", "messreihe37", "0100U_CertNic",
                               "0100_Betriebsmittel"};
    const auto zählen = [&] {
        QList<long> n;
        for (const QString& t : tabellen)
            n << anzahl(t);
        return n;
    };
    const QList<long> vorher = zählen();
    sql("CREATE TRIGGER voll BEFORE INSERT ON messreihe37 BEGIN SELECT RAISE(ABORT, 'disk full'); END");
    einlesen("corvex-datenlogger.ser");
    EXPECT_EQ(m_ui.meldungen.size(), 1) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(zählen(), vorher);

    sql("DROP TRIGGER voll");
    m_ui.meldungen.clear();
    einlesen("corvex-datenlogger.ser");
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    const QList<long> nachher = zählen();
    EXPECT_EQ(nachher[0], vorher[0] + 1);
    EXPECT_EQ(nachher[1], 1);
    EXPECT_EQ(nachher[2], 6);
    EXPECT_EQ(nachher[3], vorher[3] + 1);
}

// The logger of a command-protocol instrument comes through the rendering of its record file.
TEST_F(DatenpoolTest, EineKontalexReiheGehtDenselbenWeg) {
    auswählen(1, 1);
    einlesen("pravitonix-datenlogger.sep");
    EXPECT_TRUE(m_ui.texte().isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(anzahl("datlog37"), 1);
    EXPECT_EQ(wert("SELECT Anzahlmessungen FROM datlog37"), "6");
    EXPECT_FALSE(wert("SELECT Intervall FROM datlog37").isEmpty());
    EXPECT_EQ(anzahl("messreihe37"), 6);
}

TEST_F(DatenpoolTest, EineLangeReiheZeigtUndSpeichert1995Punkte) {
    auswählen(3, 4);
    einlesen("datenlogger-2000.ser");
    EXPECT_EQ(m_chartpunkte, Diagramm::HöchstePunkte);
    EXPECT_EQ(m_endung, " (L-PE):") << "the voltage was taken against protective earth";
    EXPECT_EQ(anzahl("messreihe37"), Diagramm::HöchstePunkte);
    EXPECT_EQ(wert("SELECT Anzahlmessungen FROM datlog37"), "2000");
    const Recordset letzter = db().OpenRecordset("SELECT Datum FROM messreihe37 ORDER BY Datum DESC");
    EXPECT_EQ(letzter.Field("Datum").toDateTime(), Beginn.addSecs(qint64(Diagramm::HöchstePunkte) * 900));
}

TEST_F(DatenpoolTest, EineAnalyseFülltZweiReihen) {
    m_komponente->setPrüfgeräteTypID(100);
    test::schreiben(pfad("Ruvo.ser"), test::inhalt(test::quelle("samples/fi-analyse.ser")));
    modul().Selektor() = selektor::Deutsch;
    m_ui.beiDialog = [&](DialogController& d) {
        auto& p = static_cast<Zuordnen&>(d);
        EXPECT_EQ(p.modus(), "Fi-Analyse");
        EXPECT_TRUE(p.zeigtDiagramm());
        ASSERT_EQ(p.diagramm().reihe(0).size(), 8);
        EXPECT_EQ(p.diagramm().reihe(0)[5].wert, "21,0");
        EXPECT_EQ(p.diagramm().reihe(1)[5].wert, "38");
        p.command5(); // no series to store: it closes
    };
    DateiVorbereiten(false);
    EXPECT_EQ(m_ui.dialoge, QStringList{"vemo::Zuordnen"});
    EXPECT_EQ(anzahl("datlog37"), 0);
    EXPECT_TRUE(fnVorZuordnenAuswahlPrüfen()) << "in other kinds the choice is not asked for";
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

// The coded dump of the 0100-Varitron is rewritten before the pre-pass reads it, when asked for; the
// key texts stand behind the rewriting again.
TEST_F(DatenpoolTest, DerCodierteDumpWirdVorDemDatenpoolUmgeschrieben) {
    const QByteArray codiert = test::inhalt(test::quelle("samples/multitester-codiert.ser"));
    test::schreiben(pfad("Ruvo.ser"), codiert);
    modul().Selektor() = "Multitester = 0100-Varitron";
    DateiVorbereiten(false);
    EXPECT_EQ(m_ui.texte(), QStringList{"Messdaten Kopf fehlt"}) << "without the flag nothing is rewritten";
    EXPECT_EQ(test::inhalt(pfad("Ruvo.ser")), codiert);

    m_ui.meldungen.clear();
    m_speichern = false;
    m_listeWählen = [](Zuordnen& p) {
        EXPECT_EQ(p.text9(), "001");
        EXPECT_EQ(p.überschrift(), "Wie werden die Messungen...");
    };
    DateiVorbereiten(true);
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
    EXPECT_TRUE(m_zuordnung);
    EXPECT_TRUE(test::inhalt(pfad("Ruvo.SAV")).startsWith("RUVO GmbH 0100 Multi    \r\n"));
    EXPECT_EQ(modul().mulTexte.value(7).left(24), "S: 255    FI-Analyse    ");
}

// A picture renamed to a dump, read after a logger series, is no dump: it ends in the message, and
// the series of the run before is not offered in its place.
TEST_F(DatenpoolTest, EinBildIstKeinDump) {
    m_speichern = false;
    einlesen("corvex-datenlogger.ser");
    m_ui.dialoge.clear();
    m_ui.meldungen.clear();
    test::schreiben(pfad("bild.ser"), QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\x10", 20));
    m_komponente->EinlesenAusDateiName(pfad("bild.ser"));
    EXPECT_TRUE(m_ui.dialoge.isEmpty()) << m_ui.dialoge.join(", ").toStdString();
    ASSERT_FALSE(m_ui.meldungen.isEmpty());
    EXPECT_EQ(m_ui.meldungen.last().text, "Messdaten Kopf fehlt") << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(modul().Abbruchmerker, 1);
}

// A Kontalex dump's boards from Verteil.txt; each choice puts its rendering in place of the working
// dump and of the data pool's copy.
TEST_F(DatenpoolTest, DreiVerteilerSindDreiEinträge) {
    modul().Selektor() = selektor::Kontalex;
    test::schreiben(pfad("Verteil.txt"),
                    "\"00000011\",1,1,1,\"Keller\",\"001\",\"001\",\"08:00\",\"17.03.2024\"\r\n"
                    "\"00000012\",1,2,1,\"\",\"002\",\"001\",\"08:05\",\"17.03.2024\"\r\n"
                    "\"00000013\",1,3,1,\"Dach\",\"003\",\"001\",\"08:09\",\"17.03.2024\"\r\n");
    const QByteArray bericht = "OMNIVAR\r\n---\r\nKONTALEXX        No. 1\r\n\r\nS: 001  P: 001 \r\n";
    test::schreiben(pfad("Ruvo.ser"), bericht);
    for (const char* nummer : {"00000011", "00000012", "00000013"})
        test::schreiben(pfad(QString(nummer) + ".sep"), bericht + "Verteiler " + nummer + "\r\n");
    m_speichern = false;
    m_listeWählen = [](Zuordnen& p) {
        EXPECT_EQ(p.gewählt(), 0);
        EXPECT_EQ(p.text9(), "001") << "the number of the first board line";
        p.eintragWählen(2);
    };
    DateiVorbereiten(false);
    EXPECT_TRUE(m_zuordnung);
    ASSERT_EQ(m_liste.size(), 3);
    EXPECT_TRUE(m_liste[0].startsWith("Keller ")) << m_liste[0].toStdString();
    EXPECT_TRUE(m_liste[1].startsWith("1.2.1 ")) << m_liste[1].toStdString();
    for (const QString& e : m_liste)
        EXPECT_EQ(e.size(), Zuordnen::NamenBreite + Zuordnen::NummerLänge);
    EXPECT_TRUE(m_liste[2].endsWith("00000013"));
    EXPECT_TRUE(test::inhalt(pfad("Ruvo.ser")).endsWith("Verteiler 00000013\r\n"));
    EXPECT_EQ(test::inhalt(pfad("Ruvo.SAV")), test::inhalt(pfad("Ruvo.ser")));
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

// A start that is no date keeps the dialog open with its message and the series without times; the
// fields' keys are the window test's.
TEST_F(DatenpoolTest, EinStartDerKeinDatumIstHältDenDialogOffen) {
    Zuordnen pool;
    DatenLogger dialog(pool);
    dialog.feldSetzen(1, "13");
    dialog.geöffnet();
    dialog.command1();
    EXPECT_TRUE(dialog.istOffen());
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("Datum oder Uhrzeit des Beginns ist ungültig."));
    EXPECT_FALSE(pool.reiheBereit());
}

} // namespace
