#include "Uebernahmeumgebung.h"

#include "takeover/TeilFunktionAnsicht.h"
#include "takeover/TeilFunktionDialog.h"

#include <QComboBox>
#include <QPushButton>
#include <QTest>

using namespace vemo;

namespace {

using TeilFunktionDialogTest = test::Uebernahmeumgebung;

// The reserved names come first, then the columns; the view's choice is taught to the table once,
// and the same name again is refused by the store, told, and the dialog closes.
TEST_F(TeilFunktionDialogTest, TeachesTheTableANameOnce) {
    frmTeilFunktion dialog;
    m_ui.beiDialog = [](DialogController& c) {
        auto& d = static_cast<frmTeilFunktion&>(c);
        TeilFunktionAnsicht ansicht(d, nullptr);
        EXPECT_EQ(ansicht.windowTitle(), "Unbekannte TeilFunktion");
        EXPECT_EQ(d.Combo1().mid(0, 4), (QStringList{"keine***", "mitCase***", "MessID", "StromkreisID"}));
        auto* combo = ansicht.findChild<QComboBox*>();
        ASSERT_NE(combo, nullptr);
        EXPECT_EQ(combo->count(), d.Combo1().size());
        combo->setCurrentText("ErdRE");
        QTest::mouseClick(ansicht.findChild<QPushButton*>(), Qt::LeftButton);
    };
    dialog.ShowStart("Gibtsnicht");
    EXPECT_EQ(m_ui.dialoge, QStringList{"vemo::frmTeilFunktion"});
    EXPECT_FALSE(dialog.istOffen());
    EXPECT_EQ(wert("SELECT spaltenname FROM [0100_TeilFunktion] WHERE TeilFunktion = 'Gibtsnicht'"), "ErdRE");

    dialog.ShowStart("Gibtsnicht");
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("3022 "));
    EXPECT_FALSE(dialog.istOffen());
}

} // namespace
