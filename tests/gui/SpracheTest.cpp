#include "Hauptfenster.h"

#include "ansichten/Ansichten.h"
#include "host/Modul15a.h"
#include "language/SprachDatenbank.h"
#include "platform/QtUi.h"
#include "platform/Zahlformat.h"
#include "support/Testumgebung.h"

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace vemo::test {
namespace {

// The language the user picks in the window reaches what Qt draws itself, the descriptions of
// errors, the dates, and how wide a message box must be for its title.
class SpracheTest : public Testumgebung {};

TEST_F(SpracheTest, TheChosenLanguageReachesQtsButtonsErrorsAndDates) {
    spracheDatenbankAnlegen(m_dir.path());
    QtUi qtUi(ansichten());
    vemo0100Modul15a komponente(qtUi, m_settings);
    Hauptfenster fenster(komponente, m_settings, m_dbPfad);
    qtUi.setHauptfenster(&fenster);
    auto* sprache = fenster.findChild<QComboBox*>("Sprache");
    ASSERT_TRUE(sprache);
    const int deutschland = sprache->findData("Deutsch (&Deutschland)");
    EXPECT_EQ(sprache->itemText(deutschland), "Deutsch (Deutschland)");

    struct Fall {
        QString sprache;
        QStringList knöpfe;
        QString fehler;
        QString datum;
    };
    const QString titel = "vemotrix - " + QString(40, 'W');
    for (const Fall& f :
         {Fall{"English (United Kingdom)", {"No", "Yes"}, "62 Input past end of file", "14/06/2022"},
          Fall{"Deutsch (&Deutschland)", {"Ja", "Nein"}, "62 Einlesen hinter Dateiende", "14.06.2022"}}) {
        sprache->setFocus();
        QTest::keyClick(sprache, Qt::Key_Home);
        while (sprache->currentData() != f.sprache && sprache->currentIndex() < sprache->count() - 1)
            QTest::keyClick(sprache, Qt::Key_Down);
        ASSERT_EQ(komponente.Sprache(), f.sprache);

        QStringList knöpfe;
        bool titelGanz = false;
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            for (QAbstractButton* k : box->buttons())
                knöpfe << k->text().remove('&');
            titelGanz = box->width() > box->fontMetrics().horizontalAdvance(titel);
            QTest::keyClick(box, Qt::Key_Escape);
        });
        EXPECT_EQ(qtUi.MsgBox("?", titel, {MsgKnöpfe::JaNein, MsgSymbol::Frage, 2}), antwort::Nein);
        knöpfe.sort();
        EXPECT_EQ(knöpfe, f.knöpfe);
        EXPECT_TRUE(titelGanz);
        EXPECT_EQ(fehler::mit(fehler::HinterDateiende).meldung(), f.fehler);
        EXPECT_EQ(zahlformat::datumText(QDate(2022, 6, 14)), f.datum);
    }
    EXPECT_EQ(fehler::mit(fehler::DatenbankNichtGefunden, "x.db").meldung(),
              "3024 Die Datenbankdatei wurde nicht gefunden. (x.db)");
}

} // namespace
} // namespace vemo::test
