#include "Uebersicht.h"
#include "Kontrast.h"

#include "grid/EinleseDatenController.h"
#include "host/DateiEinlesen.h"
#include "platform/Zahlformat.h"
#include "support/Testumgebung.h"
#include "takeover/Uebernahme.h"

#include <QDir>
#include <QFile>
#include <QTableWidget>
#include <QTreeWidget>

namespace vemo::test {
namespace {

// The overview of the window program after a take-over: a circuit's measurement rows with each
// value's limit beside it.
class UebersichtTest : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        neueDatenbank(true);
        EinleseDatenController::datenübernahmeEinsetzen(Übernehmen);
        zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
        QDir(m_dir.path()).mkpath("sicherung");
        modul().BackupVerzeichnis = pfad("sicherung");
    }
    void TearDown() override {
        zahlformat::ausUmgebung();
        Testumgebung::TearDown();
    }

    // The measurement table of a circuit, as "column: value" for each cell of its first row.
    QStringList zeigen(Uebersicht& ü, const QStringList& pfad) {
        auto* baum = ü.findChild<QTreeWidget*>();
        QTreeWidgetItem* knoten = nullptr;
        for (const QString& teil : pfad) {
            QTreeWidgetItem* gefunden = nullptr;
            const int n = knoten ? knoten->childCount() : baum->topLevelItemCount();
            for (int i = 0; i < n && !gefunden; ++i) {
                QTreeWidgetItem* kind = knoten ? knoten->child(i) : baum->topLevelItem(i);
                if (kind->text(0).startsWith(teil) || (teil == "*" && i == n - 1))
                    gefunden = kind;
            }
            if (!gefunden)
                return {"<kein " + teil + ">"};
            knoten = gefunden;
            baum->expandItem(knoten);
        }
        baum->setCurrentItem(knoten);
        const auto* tabelle = ü.findChild<QTableWidget*>();
        QStringList zellen;
        for (int c = 0; c < tabelle->columnCount(); ++c)
            zellen << tabelle->horizontalHeaderItem(c)->text() + ": " +
                          (tabelle->item(0, c) ? tabelle->item(0, c)->text() : QString());
        return zellen;
    }
};

// The 3720 measures insulation between named conductors (here L-PE) or between the lines; the
// limit row has one insulation limit, and it stands beside either.
TEST_F(UebersichtTest, TheInsulationLimitStandsBesideEachPairOfConductors) {
    sql("INSERT INTO init VALUES ('codeSplitting3720', '1');");
    const QString kopie = pfad("sicherung/00000001.ser");
    ASSERT_TRUE(QFile::copy(quelle("samples/zemak-3720.ser"), kopie));
    EinlesenAusDateiName(kopie);
    EinleseDatenController form;
    form.übernehmenKlick();
    ASSERT_EQ(anzahl("0100_EinleseDaten"), 0) << m_ui.texte().join(" | ").toStdString();

    Uebersicht ü;
    ü.aktualisieren();
    const QStringList kunde{"12 ", "002 ", "*", "0001"};
    EXPECT_EQ(zeigen(ü, kunde + QStringList{"0002"}),
              (QStringList{"RISO_LPE: >200", "RISO_LPE Grenzwert: >1", "UISO: 1010"}));
    EXPECT_EQ(zeigen(ü, kunde + QStringList{"0003"}),
              (QStringList{"RISO: 50,0", "RISO Grenzwert: >0,5", "UISO: 275"}));

    // The limits stand second, yet readable on the table's background.
    const auto* tabelle = ü.findChild<QTableWidget*>();
    const QColor grenze = tabelle->item(0, 1)->foreground().color();
    EXPECT_GE(kontrast(grenze, tabelle->palette().color(QPalette::Base)), 4.5);
    EXPECT_NE(grenze, tabelle->palette().color(QPalette::Text));

    // After a command the tree is built anew, and stays opened and chosen where the user left it.
    auto* baum = ü.findChild<QTreeWidget*>();
    const QString gewählt = baum->currentItem()->text(0);
    ü.aktualisieren();
    ASSERT_TRUE(baum->currentItem());
    EXPECT_EQ(baum->currentItem()->text(0), gewählt);
    EXPECT_TRUE(baum->currentItem()->parent()->isExpanded());
    EXPECT_EQ(tabelle->rowCount(), 1);
}

} // namespace
} // namespace vemo::test
