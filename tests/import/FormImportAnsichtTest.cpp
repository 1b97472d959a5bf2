#include "support/Quelldatenbank.h"

#include "import/FormImport.h"
#include "import/FormImportAnsicht.h"
#include "support/Testumgebung.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace vemo;
using namespace vemo::test;

namespace {

class FormImportAnsichtTest : public Testumgebung {};

TEST_F(FormImportAnsichtTest, TheTypedPathIsImportedAndAMissingOneKeepsTheWindow) {
    FormImport form;
    form.geöffnet();
    FormImportAnsicht ansicht(form, nullptr);
    ansicht.show();
    auto* pfadFeld = ansicht.findChild<QLineEdit*>("Datenquelle");
    auto* konvertieren = ansicht.findChild<QPushButton*>("Konvertieren");
    ASSERT_TRUE(pfadFeld && konvertieren);

    QTest::keyClicks(pfadFeld, pfad("fehlt.mdb"));
    EXPECT_EQ(form.datenquelle(), pfad("fehlt.mdb"));
    QTest::mouseClick(konvertieren, Qt::LeftButton);
    EXPECT_TRUE(form.istOffen());
    EXPECT_EQ(form.ergebnisCode(), 3024);

    Quelldatenbank quelle(pfad("alt.db"));
    quelle.zeile(quellzeile("Bäckerei Sommer", "Backstube"));
    form.setDatenquelle(quelle.pfad());
    EXPECT_EQ(pfadFeld->text(), quelle.pfad());
    QTest::mouseClick(konvertieren, Qt::LeftButton);
    EXPECT_FALSE(form.istOffen());
    EXPECT_EQ(ansicht.findChild<QLabel*>("LabProzent")->text(), "100%");
    EXPECT_EQ(ansicht.findChild<QLabel*>("LabAnzahl")->text(), "1 Prüfungen werden importiert...");

    if (const QByteArray ziel = qgetenv("VEMO_IMPORT_BILD"); !ziel.isEmpty())
        ansicht.grab().save(QString::fromLocal8Bit(ziel));
}

} // namespace
