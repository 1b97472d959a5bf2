#include "takeover/Uebernahme.h"
#include "grid/EinleseDatenController.h"
#include "grid/GridBefehle.h"
#include "host/DateiEinlesen.h"
#include "host/Modul15a.h"
#include "language/SprachDatenbank.h"
#include "parsers/PruefgeraetEintragen.h"
#include "platform/Zahlformat.h"
#include "store/Recordset.h"
#include "store/Variant.h"
#include "support/Testumgebung.h"

#include <QDate>

using namespace vemo;

namespace {

// The demo customers and plants, and read-in rows built with SQL as a parser leaves them.
class UebernahmeTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        neueDatenbank(true);
        EinleseDatenController::datenübernahmeEinsetzen(Übernehmen);
        sql("INSERT INTO \"0100_EinleseGeräteDaten\" VALUES (1, '0100-Corvex', '  C12345678', 1, '');");
    }

    using Testumgebung::zeile;
    // A read-in row with a loop test as its values.
    void zeile(int messungID, int kunde, int anlageID, const QString& anlageNr, const QString& verteiler,
               const QString& stromkreis, int prüfungID = 0) {
        ausführen(
            "INSERT INTO 0100_EinleseDaten (MessungID, GeräteID, KundeID, AnlageID, AnlageNr, PrüfungID, "
            "VerteilerNr, StromkreisNr) VALUES (?, 1, ?, ?, ?, ?, ?, ?)",
            {messungID, kunde, anlageID, anlageNr, prüfungID, verteiler, stromkreis});
        ausführen("INSERT INTO 0100_EinleseMessDaten VALUES (?, 'Zs', ?, 'Ohm'), (?, 'Zs Ik', '575', 'A')",
                  {messungID, "0,4" + QString::number(messungID), messungID});
    }

    // The button of the form; what to change between the form's refresh and the click.
    void übernehmen(const QString& nachDemLaden = {}) {
        EinleseDatenController form;
        if (!nachDemLaden.isEmpty())
            sql(nachDemLaden);
        form.übernehmenKlick();
    }
    QDate datum(const QString& abfrage) const { return db().OpenRecordset(abfrage).Field(0).toDate(); }
};

TEST_F(UebernahmeTest, ASavedDumpTravelsTheWholeRoad) {
    zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
    modul().BackupVerzeichnis = m_dir.path();
    EinlesenAusDateiName(test::quelle("samples/corvex-verteilung.ser"));
    ASSERT_EQ(anzahl("0100_EinleseDaten"), 14);
    sql("DELETE FROM \"0100_EinleseGeräteDaten\" WHERE GeräteID = 1");
    ASSERT_EQ(zuordnenBefehl("1-14", "1", "1"), 0); // Bäckerei Sommer
    ASSERT_EQ(zuordnenBefehl("1-14", "2", "2"), 0); // her plant 002 Verkaufsraum
    // The user opens the read-in data and presses the button; the form closes by itself.
    bool nochOffen = true;
    m_ui.beiDialog = [&](DialogController& form) {
        static_cast<EinleseDatenController&>(form).übernehmenKlick();
        nochOffen = form.istOffen();
        form.schließen();
    };
    vemo0100Modul15a komponente(m_ui, m_settings);
    komponente.EinleseDaten();
    zahlformat::ausUmgebung();
    EXPECT_FALSE(nochOffen);
    EXPECT_EQ(m_ui.dialoge, QStringList{"vemo::EinleseDatenController"});

    EXPECT_EQ(zeile("SELECT (SELECT Count(*) FROM 0100_EinleseDaten), (SELECT Count(*) FROM "
                    "0100_EinleseMessDaten), (SELECT Count(*) FROM 0100_EinleseGeräteDaten)"),
              "0|0|0");
    // One inspection of the plant, with its instrument, earth resistance, certificate record, boards
    // and circuits.
    EXPECT_EQ(zeilen("SELECT PrüfgerätName1, Erdungswiderstand FROM 0100_Prüfung WHERE AnlagenID = 2"),
              QStringList{"0100-Corvex Ser. Nr.: 98120-00471|12,5"});
    const QString prüfung = wert("SELECT PrüfungID FROM 0100_Prüfung WHERE AnlagenID = 2");
    EXPECT_EQ(
        zeile("SELECT (SELECT Count(*) FROM 0100U_CertNic WHERE pid = ?), (SELECT Group_Concat(Code, ' ') "
              "FROM 0100_Verteiler WHERE PrüfungID = ?), (SELECT Count(*) FROM 0100_Stromkreis s JOIN "
              "0100_Verteiler v ON s.VerteilerID = v.VerteilerID WHERE v.PrüfungID = ?)",
              {prüfung, prüfung, prüfung}),
        "1|0001 0002|6");
    // The circuit of the inspection by board and circuit code.
    const QString kreis =
        "(SELECT StromkreisID FROM 0100_Stromkreis s JOIN 0100_Verteiler v ON s.VerteilerID = "
        "v.VerteilerID WHERE v.PrüfungID = ? AND v.Code = ? AND s.Code = ?)";
    EXPECT_EQ(wert("SELECT RISO || '/' || VISO FROM 0100_Messung WHERE StromkreisID = " + kreis,
                   {prüfung, "0001", "0001"}),
              "245/500");
    EXPECT_EQ(
        wert("SELECT LOOPRS || '/' || LoopIKRS FROM 0100_Messung WHERE LOOPRS <> '' AND StromkreisID = " +
                 kreis,
             {prüfung, "0001", "0002"}),
        "0,35/657");
    const QString rcd = wert("SELECT MessID FROM 0100_Messung WHERE FIT = '18' AND StromkreisID = " + kreis,
                             {prüfung, "0001", "0003"});
    EXPECT_EQ(
        wert("SELECT FGRAD || FIIDN || FIFaktor || '/' || FIUB FROM 0100_Messung WHERE MessID = ?", {rcd}),
        "AC 0°30x1/3,5");
    EXPECT_EQ(
        wert("SELECT FIUB || ' ' || FIRE || ' ' || [FIT MAX] FROM 0100_Grenzwert WHERE MessID = ?", {rcd}),
        "<50 <1666,7 <300");
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
}

TEST_F(UebernahmeTest, PlantsAndInspectionsAreFoundOrMadeRowByRow) {
    zeile(1, 1, 0, "007", "1", "1"); // a new plant number...
    zeile(2, 1, 0, "007", "1", "2"); // ...found again by its code
    zeile(3, 2, 3, "", "1", "1");    // plant B without an inspection
    zeile(4, 1, 0, "007", "2", "1"); // plant A again: the current inspection is B's now
    zeile(5, 1, 0, "", "1", "1");    // neither key nor number: stays
    zeile(6, 1, 0, "007", "0", "1"); // board "0": excluded
    übernehmen();

    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_Anlage WHERE Code = '007'"), "1");
    EXPECT_EQ(wert("SELECT Name || Nr FROM 0100_Anlage WHERE Code = '007'"), ""); // only a code
    const QString a = wert("SELECT AnlageID FROM 0100_Anlage WHERE Code = '007'");
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_Prüfung WHERE AnlagenID = ?", {a}), "2");
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_Prüfung WHERE AnlagenID = 3"), "1");
    EXPECT_EQ(wert("SELECT Group_Concat(MessungID) FROM 0100_EinleseDaten"), "5,6");
    EXPECT_EQ(anzahl("0100_EinleseGeräteDaten"), 1); // rows remain: the instrument stays
    EXPECT_EQ(text(modul().ListeAnlageID), a);
    // The run made the next inspection date from the newest inspection and the interval.
    EXPECT_EQ(datum("SELECT NächstePrüfung FROM 0100_Anlage WHERE AnlageID = 3"),
              QDate::currentDate().addMonths(48));
}

TEST_F(UebernahmeTest, ADeadPlantKeyWithoutNumberLandsOnThePlantBefore) {
    sql("UPDATE \"0100_Anlage\" SET Intervall = NULL WHERE AnlageID = 4;");
    zeile(1, 3, 4, "", "1", "1");
    zeile(2, 3, 4, "", "1", "2");
    // The plant goes after the grid has resolved the row, as when it is deleted elsewhere meanwhile.
    übernehmen("UPDATE \"0100_EinleseDaten\" SET AnlageID = 99 WHERE MessungID = 2;");
    EXPECT_EQ(m_ui.texte(), QStringList{" keine Anlage"});
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
    EXPECT_EQ(
        wert("SELECT Count(*) FROM 0100_Stromkreis s JOIN 0100_Verteiler v ON s.VerteilerID = v.VerteilerID "
             "JOIN 0100_Prüfung p ON p.PrüfungID = v.PrüfungID WHERE p.AnlagenID = 4"),
        "2");
    EXPECT_EQ(datum("SELECT NächstePrüfung FROM 0100_Anlage WHERE AnlageID = 4"),
              QDate(2026, 12, 31)); // no interval
}

TEST_F(UebernahmeTest, InstrumentsFillTheFirstFreeSlotOnce) {
    sql("INSERT INTO \"0100_Prüfung\" (PrüfungID, AnlagenID, PrüfgerätName1, PrüfgerätName2, PrüfgerätName3, "
        "Prüfgerät1ID, Datum) VALUES (5, 1, 'Zange', '  ', NULL, 9, NULL);"
        "INSERT INTO \"0100_EinleseGeräteDaten\" VALUES (2, 'ZEMAK 3710', '4711', 0, ''),"
        "(3, 'ZEMAK 3710', '4712', 2, '');");
    Recordset prüfung = db().OpenRecordset("SELECT * FROM 0100_Prüfung WHERE PrüfungID = 5");
    const Recordset zeile = db().OpenRecordset("SELECT '12.03.2025' AS Datum");
    PrüfgerätEintragen(1, prüfung, zeile);
    EXPECT_EQ(prüfung.Text("PrüfgerätName2"), "0100-Corvex Ser. Nr.:   C12345678 Inv. Nr.: INV-07");
    EXPECT_EQ(prüfung.Field("Prüfgerät2ID").toInt(), 1);
    PrüfgerätEintragen(1, prüfung, zeile); // already in a slot
    EXPECT_EQ(prüfung.Text("PrüfgerätName4"), "");
    PrüfgerätEintragen(2, prüfung, zeile); // unknown to the register; its date is trusted
    EXPECT_EQ(prüfung.Text("PrüfgerätName4"), "ZEMAK 3710 Ser. Nr.: 4711"); // slot 3 is Null, not free
    EXPECT_EQ(prüfung.Field("Prüfgerät4ID").toInt(), 0);
    EXPECT_EQ(prüfung.Field("Datum").toDate(), QDate(2025, 3, 12));
    PrüfgerätEintragen(3, prüfung, zeile); // no slot left: nothing happens
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_Prüfung WHERE PrüfgerätName4 LIKE '%4712%'"), "0");
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

// A new inspection gets the equipment table in its user's language, in every language the language
// database offers; the English one also under the certificate rules of the take-over.
TEST_F(UebernahmeTest, ANewInspectionGetsTheEquipmentTableOfItsLanguage) {
    spracheDatenbankAnlegen(m_dir.path());
    const Datenbank sprachDb = Datenbank::OpenDatabase(pfad(sprachdatenbank::DateiName));
    const Recordset spalten = sprachDb.OpenRecordset("Sprache");
    QStringList sprachen;
    for (int i = 0; i < spalten.FieldCount(); ++i)
        if (spalten.FieldName(i) != "TextID" && spalten.FieldName(i) != "VersionID")
            sprachen << spalten.FieldName(i);
    ASSERT_GE(sprachen.size(), 4);

    const QString tabelle =
        "SELECT Group_Concat(Zeile || '/' || Spalte || ' ' || inhalt, '; ') FROM (SELECT * "
        "FROM [%1] WHERE %2 ORDER BY Zeile, Spalte)";
    for (int i = 0; i < sprachen.size(); ++i) {
        const QString& sprache = sprachen[i];
        SCOPED_TRACE(sprache.toStdString());
        spracheEinstellen(sprache);
        ASSERT_EQ(modul().sprachen.Sprache(), sprache);
        // The chosen inspection goes at another workplace while the grid shows it, so the run makes
        // a new one: under the certificate rules the only way to a new inspection.
        const QString gewählt = QString::number(500 + i);
        sql("INSERT INTO \"0100_Prüfung\" (PrüfungID, AnlagenID) VALUES (" + gewählt + ", 2);");
        zeile(i + 1, 1, 2, "", "1", "1", 500 + i);
        übernehmen("DELETE FROM \"0100_Prüfung\" WHERE PrüfungID = " + gewählt + ";");
        ASSERT_EQ(anzahl("0100_EinleseDaten"), 0) << m_ui.texte().join(" | ").toStdString();

        const QString prüfung = wert("SELECT Max(PrüfungID) FROM 0100_Prüfung WHERE AnlagenID = 2");
        const QString vorlage =
            wert(tabelle.arg("0100_Betriebsmittelstandard", "SPRACHE = '" + sprache + "'"));
        EXPECT_EQ(wert(tabelle.arg("0100_Betriebsmittel", "PrüfungID = " + prüfung)), vorlage);
        EXPECT_TRUE(vorlage.startsWith(sprache.startsWith("English") ? "1/1 Equipment; 1/2 Quantity"
                                                                     : "1/1 Betriebsmittel; 1/2 Anzahl"))
            << vorlage.toStdString();
        EXPECT_EQ(vorlage.count(';'), 9);
    }
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100_Prüfung WHERE AnlagenID = 2"),
              QString::number(sprachen.size()));
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
}

} // namespace
