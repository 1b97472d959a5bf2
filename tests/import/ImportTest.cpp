#include "support/Quelldatenbank.h"

#include "core/ModulState.h"
#include "host/Modul15a.h"
#include "import/FormImport.h"
#include "store/Recordset.h"
#include "store/Variant.h"
#include "support/Fremdtexte.h"
#include "support/Testumgebung.h"

#include <QDate>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

using namespace vemo;
using namespace vemo::test;

namespace {

const QString Erfolg = "Importieren erfolgreich beendet";
const QString Fehlerhaft = "Beim Importieren sind Fehler aufgetreten.";

// Two circuits on board 1 of the compressed form, with cable, fuse, RCD and all values.
const QString ZweiKreise =
    "!1/1;;Küche;NYY-J 5x10;Z13;;30;;A;;500;1,2;0,9;>999;30;21;4,5;0,6;28;0,35;0,41;12;rechts;"
    "0,15#!1/2;;Bad;NYY-J 5x10;Z13;;;;;;;;;200#@";

class ImportTest : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        m_quelle = std::make_unique<Quelldatenbank>(pfad("Pruefcode.db"));
    }

    // The dialog on the source; the user presses Konvertieren. Gives the dialog.
    std::unique_ptr<FormImport> importieren(const QString& quelle) {
        auto form = std::make_unique<FormImport>();
        form->geöffnet();
        form->setDatenquelle(quelle);
        form->konvertierenKlick();
        return form;
    }

    std::unique_ptr<Quelldatenbank> m_quelle;
};

TEST_F(ImportTest, EachSourceRowBecomesAnInspectionUnderItsCustomerAndPlant) {
    QVariantMap sommer = quellzeile("Bäckerei Sommer", "Backstube", ZweiKreise);
    sommer.insert({{"kopf_Check3d10", 0},
                   {"kopf_Check3d11", -1},
                   {"Besichtigung_check3d14", -1},
                   {"Netzspannung", "230/400 V"},
                   {"kopf_label2", "Z-4711"},
                   {"kopf_Check3d6", -1},
                   {"Pruefung_nach", "DIN VDE 0105"},
                   {"Erprobung_Text3", "RCD geprüft"},
                   {"Erprobung_Text4", "Drehfeld rechts"},
                   {"Form1_MaskedEdit3", "Corvex"},
                   {"Form1_MaskedEdit5", "0100"},
                   {"Seriennummer", "C123"},
                   {"Form1_MaskedEdit4", "Zange"},
                   {"Prüfer", "M. Ohm"},
                   {"Form1_MaskedEdit11", "30.06.2023 00:00:00"},
                   {"Betriebsmittel", "Kühlschrank\t\tgeprüft\r\nOfen"}});
    m_quelle->zeile(sommer);
    m_quelle->zeile(quellzeile("Bäckerei Sommer", "Backstube", "!1/1;;Flur;NYY-J 5x10;;;;;;;;;;300#@"));
    // The long form names its boards and takes one field a line.
    m_quelle->zeile(
        quellzeile("Praxis Feldmann", "Praxis",
                   QString("**** START ****|UV Garage|2/1||Tor||||||||400").split('|').join("\r\n")));

    const long kabeltypenVorher = anzahl("0100_Kabeltyp");
    const auto form = importieren(m_quelle->pfad());
    EXPECT_FALSE(form->istOffen());
    EXPECT_EQ(m_ui.texte(), QStringList{Erfolg});
    EXPECT_EQ(anzahlen("Kunde|0100_Anlage|0100_Prüfung"), "2|2|3");

    EXPECT_EQ(
        wert("SELECT Firma || '|' || Kundennummer || '|' || Strasse || '|' || Plz || '|' || Stadt FROM Kunde "
             "WHERE Name = 'Bäckerei Sommer'"),
        "Bäckerei Sommer|K-Bäc|Lindenweg 4|34117|Kassel");
    EXPECT_EQ(
        wert("SELECT Code || '|' || Name || '|' || Anlagenplaner || '|' || NächstePrüfung FROM 0100_Anlage "
             "WHERE Name = 'Backstube'"),
        "Backstube|Backstube|Planbüro West|2023-06-30");
    const QString prüfung = wert("SELECT PrüfungID FROM 0100_Prüfung WHERE ProtokollNr = 'P-Backstube' "
                                 "ORDER BY PrüfungID");
    // The old masks numbered the last checks apart: Besichtigung16 is their check3d14.
    EXPECT_EQ(
        zeile("SELECT Grund1, Grund2, Besichtigung16, Netzspannung, ZählerNr, CheckDIN3, TextDIN4, "
              "echecktext, PrüfgerätName1, PrüfgerätName2, PrüferName, Datum FROM 0100_Prüfung WHERE "
              "PrüfungID = ?",
              {prüfung}),
        "0|-1|-1|230/400 V|Z-4711|-1|DIN VDE 0105|RCD geprüft \r\nDrehfeld rechts \r\n \r\n|Corvex 0100 "
        "C123|Zange|M. Ohm|" +
            text(QDate(2019, 6, 14)));
    EXPECT_EQ(wert("SELECT group_concat(Zeile || ',' || Spalte || '=' || inhalt, ' ') FROM "
                   "(SELECT * FROM 0100_Betriebsmittel WHERE PrüfungID = ? ORDER BY Zeile, Spalte)",
                   {prüfung}),
              "1,1=Kühlschrank 1,3=geprüft 2,1=Ofen");

    // The measurements: one board without a name, its circuits with their types and values.
    EXPECT_EQ(wert("SELECT Name || '|' || Code FROM 0100_Verteiler WHERE PrüfungID = ?", {prüfung}),
              "Neuer Verteiler|001");
    EXPECT_EQ(
        wert("SELECT Count(*) FROM 0100_Stromkreis s JOIN 0100_Verteiler v ON s.VerteilerID = v.VerteilerID "
             "WHERE v.PrüfungID = ?",
             {prüfung}),
        "2");
    EXPECT_EQ(
        wert("SELECT k.Name || '|' || k.Anzahl_Leiter || '|' || k.Querschnitt || '|' || f.Charakteristik || "
             "'|' || f.NennStrom || '|' || r.Nennfehlerstrom || r.Art FROM 0100_Stromkreis s "
             "JOIN 0100_Kabeltyp k ON s.KabelTypID = k.KabeltypID "
             "JOIN 0100_Sicherungstyp f ON s.SicherungsTypID = f.SicherungstypID "
             "JOIN 0100_RCDtyp r ON s.RCDTypID = r.RCDtypID WHERE s.Name = 'Küche'"),
        "NYY-J 5x10|5|10|Z|13|30A");
    // One new cable type, found again by its name for all three circuits.
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_Kabeltyp WHERE Name = 'NYY-J 5x10'"), "1");
    EXPECT_EQ(anzahl("0100_Kabeltyp"), kabeltypenVorher + 1);
    EXPECT_EQ(wert("SELECT VISO || '|' || RISO || '|' || FIT || '|' || DREH || '|' || LOW || '|' || Datum "
                   "FROM 0100_Messung m JOIN 0100_Stromkreis s ON m.StromkreisID = s.StromkreisID "
                   "WHERE s.Name = 'Küche'"),
              "500|>999|28|rechts|0,15|14.06.2019");
    EXPECT_EQ(anzahl("0100_Messung"), 4);
    EXPECT_EQ(
        zeile("SELECT v.Name, v.Code, s.Name, m.VISO FROM ((0100_Verteiler v JOIN 0100_Prüfung p ON "
              "p.PrüfungID = v.PrüfungID) JOIN 0100_Stromkreis s ON s.VerteilerID = v.VerteilerID) JOIN "
              "0100_Messung m ON m.StromkreisID = s.StromkreisID WHERE p.ProtokollNr = 'P-Praxis'"),
        "Garage|002|Tor|400");
}

// Importing twice adds the inspections again and finds customers, plants and cable types. Names
// that read as a condition or hold an apostrophe make a customer and a plant of their own, stored
// as they came, found again by the second import, never taken for another customer's; the same name
// at another address is another customer.
TEST_F(ImportTest, ImportingTwiceFindsEachNameAsItsText) {
    m_quelle->zeile(quellzeile("Bäckerei Sommer", "Backstube", ZweiKreise));
    m_quelle->zeile(quellzeile("Praxis Feldmann", "Praxis"));
    QVariantMap umgezogen = quellzeile("Praxis Feldmann", "Praxis");
    umgezogen.insert("Adresse", "Marktplatz 2");
    m_quelle->zeile(umgezogen);
    for (const QString& name : Fremdtexte) {
        QVariantMap z = quellzeile(name, name);
        z.insert("Anlagenplaner", name);
        m_quelle->zeile(z);
    }
    const long kabeltypenVorher = anzahl("0100_Kabeltyp");
    importieren(m_quelle->pfad());
    importieren(m_quelle->pfad());
    EXPECT_EQ(m_ui.texte(), (QStringList{Erfolg, Erfolg}));
    const long n = 3 + Fremdtexte.size();
    EXPECT_EQ(anzahlen("Kunde|0100_Anlage|0100_Prüfung|0100_Verteiler"),
              QString("%1|%1|%2|2").arg(n).arg(2 * n));
    EXPECT_EQ(anzahl("0100_Kabeltyp"), kabeltypenVorher + 1);
    for (const QString& name : Fremdtexte) {
        EXPECT_EQ(wert("SELECT Count(*) FROM Kunde WHERE Name = ? AND Firma = ?", {name, name}), "1");
        EXPECT_EQ(wert("SELECT Count(*) FROM [0100_Prüfung] AS p JOIN [0100_Anlage] AS a ON p.AnlagenID = "
                       "a.AnlageID WHERE a.Name = ? AND a.Code = ? AND a.Anlagenplaner = ?",
                       {name, name, name}),
                  "2")
            << name.toStdString();
    }
}

// "=" on text ignores case for umlauts as for ASCII, in the import's look-ups as in FindFirst; the
// file stays a plain SQLite database that a tool without the component's collation reads.
TEST_F(ImportTest, UmlautsCompareWithoutRegardToCaseAndTheFileStaysReadable) {
    m_quelle->zeile(quellzeile("Bäcker", "Öfen"));
    m_quelle->zeile(quellzeile("BÄCKER", "ÖFEN"));
    importieren(m_quelle->pfad());
    EXPECT_EQ(anzahlen("Kunde|0100_Anlage"), "1|1");
    Recordset kunden = modul().db.OpenRecordset("Kunde");
    kunden.FindFirst("Name = 'bäcker'");
    EXPECT_FALSE(kunden.NoMatch());

    const QString werkzeug = QStandardPaths::findExecutable("sqlite3");
    if (werkzeug.isEmpty())
        GTEST_SKIP() << "the sqlite3 command-line tool is not installed";
    for (const auto& [befehl, erwartet] : std::initializer_list<std::pair<const char*, const char*>>{
             {"SELECT Name FROM Kunde WHERE Name = 'bäcker'", "Bäcker\n"},
             {"PRAGMA integrity_check", "ok\n"}}) {
        QProcess p;
        p.start(werkzeug, {m_dbPfad, befehl});
        ASSERT_TRUE(p.waitForFinished(30000));
        EXPECT_EQ(QString::fromUtf8(p.readAll()), erwartet) << p.readAllStandardError().toStdString();
    }
}

// The dates in every spelling the old engine took; a text that is no date is its type error, and
// never today.
TEST_F(ImportTest, DatesReadInEverySpellingTheOldEngineTookAndOtherTextsAreATypeError) {
    for (const QString datum : {"2019-06-14", "2019-06-14 00:00:00", "14.06.2019", "14.06.19", "14.6.19"}) {
        QVariantMap z = quellzeile("Praxis Feldmann", datum);
        z.insert(
            {{"Pruefdatum", datum}, {"Form1_MaskedEdit11", datum.contains(':') ? datum : datum + " 8:00"}});
        m_quelle->zeile(z);
    }
    importieren(m_quelle->pfad());
    EXPECT_EQ(m_ui.texte(), QStringList{Erfolg});
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_Prüfung WHERE Datum LIKE '2019-06-14%'"), "5");
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_Anlage WHERE NächstePrüfung LIKE '2019-06-14%'"), "5");

    const Quelldatenbank falsch(pfad("falsch.db"));
    QVariantMap z = quellzeile("Praxis Feldmann", "Praxis");
    z.insert("Pruefdatum", "bald");
    falsch.zeile(z);
    importieren(falsch.pfad());
    EXPECT_TRUE(m_ui.texte().value(1).startsWith("Fehler 13:  ")) << m_ui.texte().join('|').toStdString();
    EXPECT_EQ(m_ui.texte().value(2), Fehlerhaft);
    EXPECT_EQ(anzahl("0100_Prüfung"), 5);
}

TEST_F(ImportTest, ABrokenMeasurementTextGivesItsMessageAndTheOtherRowsArrive) {
    m_quelle->zeile(quellzeile("Bäckerei Sommer", "Backstube", ZweiKreise));
    m_quelle->zeile(quellzeile("Bäckerei Sommer", "Verkauf", "!1/1;;Theke;;Z13;alt;;;;;230#@"));
    m_quelle->zeile(quellzeile("Praxis Feldmann", "Praxis", "!1/1;;Empfang;;;;;;;;;;;;;;;;;;;;;0,2#@"));

    const auto form = importieren(m_quelle->pfad());
    EXPECT_FALSE(form->istOffen());
    EXPECT_EQ(m_ui.texte(), (QStringList{"Feld hinter Sicherung ist nicht leer, enthält alt\r\n"
                                         " Datei enthält Fehler, kann nicht Importiert werden.",
                                         Fehlerhaft}));
    // The faulty row's inspection arrives without measurements.
    EXPECT_EQ(anzahlen("0100_Prüfung|0100_Verteiler|0100_Stromkreis"), "3|2|3");
    EXPECT_EQ(wert("SELECT LOW FROM 0100_Messung m JOIN 0100_Stromkreis s ON m.StromkreisID = s.StromkreisID "
                   "WHERE s.Name = 'Empfang'"),
              "0,2");
}

TEST_F(ImportTest, AnUnreachableSourceKeepsTheDialogOpenAFileOfNeitherFormatEndsIt) {
    struct Fall {
        QString pfad;
        int code;
    };
    const QString ohneTabelle = pfad("ohne.db");
    Datenbank::anlegen(ohneTabelle).skriptAusführen("CREATE TABLE andere (x);");
    const QList<Fall> fälle{
        {pfad("fehlt.mdb"), 3024}, {pfad("kein/Ordner/Pruefcode.mdb"), 3044},     {"", 3055},
        {ohneTabelle, 3078},       {quelle("tests/data/users-sample.mdb"), 3078}, // a Jet file without the
                                                                                  // table kunden
    };
    for (const Fall& f : fälle) {
        m_ui.meldungen.clear();
        const auto form = importieren(f.pfad);
        EXPECT_TRUE(form->istOffen()) << f.pfad.toStdString();
        EXPECT_EQ(form->ergebnisCode(), f.code) << f.pfad.toStdString();
        ASSERT_EQ(m_ui.meldungen.size(), 1) << f.pfad.toStdString();
        EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("Importieren nicht möglich\r\nFehler " +
                                                      QString::number(f.code) + ":  "))
            << m_ui.meldungen[0].text.toStdString();
    }
    EXPECT_EQ(anzahl("Kunde"), 0);

    // A file of neither format ends the import with its failure.
    m_ui.meldungen.clear();
    QFile text(pfad("notizen.mdb"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write(QByteArray(4096, 'x'));
    text.close();
    const auto form = importieren(text.fileName());
    EXPECT_FALSE(form->istOffen());
    ASSERT_EQ(m_ui.texte().size(), 2);
    EXPECT_TRUE(m_ui.texte()[0].contains("Fehler 3343:  ")) << m_ui.texte()[0].toStdString();
    EXPECT_EQ(m_ui.texte()[1], Fehlerhaft);
}

TEST_F(ImportTest, ThePublicMethodShowsTheDialogWhichPicksTheSourceByTheOpenDialog) {
    m_quelle->zeile(quellzeile("Bäckerei Sommer", "Backstube"));
    m_ui.gewählteDatei = m_quelle->pfad();
    m_ui.beiDialog = [](DialogController& d) {
        auto& form = static_cast<FormImport&>(d);
        form.ändernKlick();
        form.konvertierenKlick();
    };
    vemo0100Modul15a komponente(m_ui, m_settings);
    komponente.DatenImportieren();
    EXPECT_EQ(m_ui.dialoge, QStringList{"vemo::FormImport"});
    ASSERT_EQ(m_ui.dateiDialoge.size(), 1);
    EXPECT_EQ(m_ui.dateiDialoge[0].filter, "Datenbank (*.mdb)|*.mdb");
    EXPECT_TRUE(m_ui.dateiDialoge[0].startverzeichnis.endsWith("Pruefcode.mdb"));
    EXPECT_EQ(m_ui.texte(), QStringList{Erfolg});
    EXPECT_EQ(anzahl("0100_Prüfung"), 1);
}

} // namespace
