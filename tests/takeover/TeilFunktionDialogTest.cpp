#include "Uebernahmeumgebung.h"

#include "store/Recordset.h"
#include "takeover/TeilFunktionAnsicht.h"
#include "takeover/TeilFunktionDialog.h"

#include <QComboBox>
#include <QPushButton>
#include <QTest>

using namespace vemo;

namespace {

using TeilFunktionDialogTest = test::Uebernahmeumgebung;

TEST_F(TeilFunktionDialogTest, ChoicesAreTheReservedNamesThenTheColumns) {
    const frmTeilFunktion dialog;
    EXPECT_EQ(dialog.Caption(), "Unbekannte TeilFunktion");
    QStringList erwartet{"keine***", "mitCase***"};
    const Recordset messung = modul().db.OpenRecordset("0100_Messung");
    for (int i = 0; i < messung.FieldCount(); ++i)
        erwartet << messung.FieldName(i);
    EXPECT_EQ(dialog.Combo1(), erwartet);
    EXPECT_EQ(dialog.Combo1().mid(2, 2), (QStringList{"MessID", "StromkreisID"}));
}

TEST_F(TeilFunktionDialogTest, TeachesTheTableANameOnce) {
    frmTeilFunktion dialog;
    m_ui.beiDialog = [](DialogController& c) {
        auto& d = static_cast<frmTeilFunktion&>(c);
        d.setCombo1Text("RISO");
        d.Command1();
    };
    dialog.ShowStart("R ISO NEU, M, R");
    EXPECT_EQ(m_ui.dialoge, QStringList{"vemo::frmTeilFunktion"});
    EXPECT_FALSE(dialog.istOffen());
    EXPECT_EQ(wert("SELECT spaltenname FROM [0100_TeilFunktion] WHERE TeilFunktion = 'R ISO NEU, M, R'"),
              "RISO");

    // The same name again: the store refuses it, the user is told, the dialog closes.
    dialog.ShowStart("R ISO NEU, M, R");
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("3022 "));
    EXPECT_FALSE(dialog.istOffen());
}

TEST_F(TeilFunktionDialogTest, ViewForwardsTheChoice) {
    frmTeilFunktion dialog;
    m_ui.beiDialog = [](DialogController& c) {
        auto& d = static_cast<frmTeilFunktion&>(c);
        TeilFunktionAnsicht ansicht(d, nullptr);
        EXPECT_EQ(ansicht.windowTitle(), "Unbekannte TeilFunktion");
        auto* combo = ansicht.findChild<QComboBox*>();
        ASSERT_NE(combo, nullptr);
        EXPECT_EQ(combo->count(), d.Combo1().size());
        combo->setCurrentText("ErdRE");
        QTest::mouseClick(ansicht.findChild<QPushButton*>(), Qt::LeftButton);
    };
    dialog.ShowStart("Gibtsnicht");
    EXPECT_EQ(wert("SELECT spaltenname FROM [0100_TeilFunktion] WHERE TeilFunktion = 'Gibtsnicht'"), "ErdRE");
    EXPECT_FALSE(dialog.istOffen());
}

} // namespace
