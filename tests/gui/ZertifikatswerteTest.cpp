#include "Zertifikatswerte.h"
#include "Firmendaten.h"
#include "Hauptfenster.h"

#include "core/InitTabelle.h"
#include "grid/EinleseDatenController.h"
#include "host/Modul15a.h"
#include "language/SprachDatenbank.h"
#include "support/Testumgebung.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>

using namespace vemo;

namespace {

// The demo database, whose customer in York has a certificate inspection (key 40) with one board
// and two circuits, and values there as a take-over leaves them.
class ZertifikatswerteTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        neueDatenbank(true);
        sql(R"(UPDATE "0100U_CertNic" SET ZsMax = '0,82', IpfMax = '1,9', RisoMin = '>200' WHERE pid = 40;
               UPDATE "0100_Verteiler" SET ZsMax = '0,82', FIT_x1 = '24' WHERE VerteilerID = 40;
               UPDATE "0100_Messung" SET LOOPRS = '0,82', RISO = '>200', FIT_x1 = '24', FIT_x5 = '11'
               WHERE MessID = 40;)");
    }

    static QTableWidget* tabelle(const QWidget& w, int i) {
        static const char* namen[] = {"Anlagenwerte", "Verteilerwerte", "Kreiswerte"};
        return w.findChild<QTableWidget*>(namen[i]);
    }
    // The cell of a table's row under the column of that heading; "-" when there is no such column.
    static QString zelle(const QTableWidget* t, int zeile, const QString& kopf) {
        for (int c = 0; c < t->columnCount(); ++c)
            if (t->horizontalHeaderItem(c)->text() == kopf)
                return t->item(zeile, c) ? t->item(zeile, c)->text() : QString();
        return "-";
    }
};

// The worst values of a certificate inspection, with the company's details; nothing for another
// inspection, a circuit or an inspection that has gone; a plant gets a new certificate inspection.
TEST_F(ZertifikatswerteTest, ShowsTheWorstValuesOfACertificateAndMakesOneForAPlant) {
    InitSchreiben("Firma", "Fitzroy Electrical");
    InitSchreiben("Firma_NiceicNo", "R-4711");
    Zertifikatswerte w;
    w.zeigen(2, 40);
    ASSERT_FALSE(w.isHidden());
    const QTableWidget* anlage = tabelle(w, 0);
    const QTableWidget* kreise = tabelle(w, 2);
    ASSERT_EQ(anlage->rowCount(), 1);
    EXPECT_EQ(zelle(anlage, 0, "RisoMin"), ">200");
    EXPECT_EQ(zelle(anlage, 0, "RaMax"), "");
    EXPECT_EQ(zelle(anlage, 0, "pid"), "-"); // the key is no value
    ASSERT_EQ(tabelle(w, 1)->rowCount(), 1);
    EXPECT_EQ(zelle(tabelle(w, 1), 0, "FIT_x1"), "24");
    ASSERT_EQ(kreise->rowCount(), 2);
    EXPECT_EQ(zelle(kreise, 0, "FIT_x5"), "11");
    EXPECT_EQ(zelle(kreise, 1, "Name"), "Lighting");
    EXPECT_EQ(zelle(kreise, 0, "FIT"), "-"); // the kept trip time is no column of the certificate
    const QString firma = w.findChild<QLabel*>("Firma")->text();
    EXPECT_TRUE(firma.contains("Fitzroy Electrical") && firma.contains("R-4711")) << firma.toStdString();

    for (const auto& [ebene, id] : {std::pair{2, 1}, {4, 40}, {2, 999}}) {
        w.zeigen(ebene, id);
        EXPECT_TRUE(w.isHidden()) << ebene << " " << id;
    }

    QSignalSpy angelegt(&w, &Zertifikatswerte::prüfungAngelegt);
    w.zeigen(1, 4);
    ASSERT_FALSE(w.isHidden());
    auto* neu = w.findChild<QPushButton*>("NeuePrüfung");
    ASSERT_NE(neu, nullptr);
    EXPECT_FALSE(neu->isHidden());
    QTest::mouseClick(neu, Qt::LeftButton);
    EXPECT_EQ(angelegt.count(), 1);
    const QString p = wert("SELECT PrüfungID FROM 0100_Prüfung WHERE AnlagenID = 4");
    ASSERT_FALSE(p.isEmpty());
    EXPECT_EQ(wert("SELECT typ FROM 0100_Prüfung WHERE PrüfungID = ?", {p}), "Niceic");
    EXPECT_EQ(wert("SELECT Count(*) FROM 0100U_CertNic WHERE pid = ?", {p}), "1");
    EXPECT_NE(wert("SELECT Count(*) FROM 0100_Betriebsmittel WHERE PrüfungID = ?", {p}), "0");
    w.zeigen(2, p);
    EXPECT_FALSE(w.isHidden());
    EXPECT_EQ(tabelle(w, 1)->rowCount(), 0);
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

TEST_F(ZertifikatswerteTest, TheCompanyDetailsAreKeptInTheSettings) {
    InitSchreiben("Firma_PhoneNo", "01904 000000");
    Firmendaten d;
    const QList<QLineEdit*> felder = d.findChildren<QLineEdit*>();
    ASSERT_EQ(felder.size(), int(firmenangaben().size()));
    EXPECT_EQ(felder[4]->text(), "01904 000000");
    felder[0]->setText("Fitzroy Electrical");
    felder[4]->clear();
    d.accept();
    EXPECT_EQ(InitLesen("Firma", "?"), "Fitzroy Electrical");
    EXPECT_EQ(InitLesen("Firma_PhoneNo", "?"), "");
    EXPECT_EQ(InitLesen("Logo", "?"), "");
}

// The window program under the certificate rules: the overview shows the certificate values
// when its inspection is chosen, and the grid's "Edit results" opens the certificate of the
// read-in rows.
TEST_F(ZertifikatswerteTest, TheOverviewAndEditResultsShowTheCertificate) {
    spracheDatenbankAnlegen(m_dir.path());
    m_settings.SaveSetting("Host", "Datenbank", m_dbPfad);
    m_settings.SaveSetting("Host", "Sprache", "English (United Kingdom)");
    vemo0100Modul15a komponente(m_ui, m_settings);
    Hauptfenster fenster(komponente, m_settings);
    fenster.show();
    ASSERT_EQ(komponente.Sprache(), "English (United Kingdom)");
    QTreeWidget* baum = fenster.findChild<QTreeWidget*>();
    ASSERT_NE(baum, nullptr);
    // Down the tree to the inspection of the customer in York.
    QTreeWidgetItem* knoten = nullptr;
    for (int i = 0; i < baum->topLevelItemCount(); ++i)
        if (baum->topLevelItem(i)->text(0).contains("Fitzroy"))
            knoten = baum->topLevelItem(i);
    ASSERT_NE(knoten, nullptr);
    for (int ebene = 1; ebene <= 2; ++ebene) {
        knoten->setExpanded(true);
        ASSERT_GT(knoten->childCount(), 0);
        knoten = knoten->child(0);
    }
    baum->setCurrentItem(knoten);
    auto* werte = fenster.findChild<Zertifikatswerte*>();
    ASSERT_NE(werte, nullptr);
    EXPECT_TRUE(werte->isVisible());
    EXPECT_EQ(zelle(tabelle(*werte, 1), 0, "ZsMax"), "0,82");
    EXPECT_TRUE(werte->findChild<QPushButton*>("NeuePrüfung")->isHidden());
    knoten->setExpanded(true);
    baum->setCurrentItem(knoten->child(0)); // the board
    EXPECT_FALSE(werte->isVisible());
    baum->setCurrentItem(knoten);

    // Headed in the language set after the window was made.
    QStringList überschriften;
    for (const QLabel* l : werte->findChildren<QLabel*>())
        überschriften << l->text();
    EXPECT_TRUE(überschriften.contains("<b>Circuits</b>")) << überschriften.join(" | ").toStdString();

    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();

    // The grid's "Edit results" sends the window program on to the certificate of the read-in rows.
    sql(R"(INSERT INTO "0100_EinleseGeräteDaten" ("GeräteID", "PrüfgerätName") VALUES (1, 'ZEMAK 3710');
           INSERT INTO "0100_EinleseDaten" (MessungID, "GeräteID", KundeID, AnlageID, "PrüfungID")
           VALUES (1, 1, 40, 40, 40);)");
    m_ui.beiDialog = [](DialogController& form) {
        static_cast<EinleseDatenController&>(form).editResultsKlick();
    };
    QAction* einlesedaten = nullptr;
    for (QAction* a : fenster.findChildren<QAction*>())
        if (QString(a->text()).remove('&') == xText("Einlesedaten"))
            einlesedaten = a;
    ASSERT_NE(einlesedaten, nullptr);
    einlesedaten->trigger();

    EXPECT_EQ(komponente.EinlesedatenIDRow().toInt(), 0); // taken up by the host
    Zertifikatswerte* ergebnis = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* z = qobject_cast<Zertifikatswerte*>(w); z && z->isVisible())
            ergebnis = z;
    ASSERT_NE(ergebnis, nullptr);
    EXPECT_EQ(zelle(tabelle(*ergebnis, 1), 0, "Nr"), "DB1");
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 1); // the rows wait for the take-over
    ergebnis->close();
}

} // namespace
