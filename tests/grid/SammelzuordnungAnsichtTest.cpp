#include "GridUmgebung.h"

#include "grid/SammelzuordnungAnsicht.h"
#include "grid/ZuordnenDialog.h"

#include <QComboBox>
#include <QPushButton>
#include <QTest>

using namespace vemo;
using namespace vemo::test;

namespace {

// The window of the bulk assignment over the demo customers, the newest device with plant 001.
class SammelzuordnungAnsichtTest : public GridUmgebung {
protected:
    void SetUp() override {
        GridUmgebung::SetUp();
        gerät(1, "0100-Corvex");
        eingelesen("MessungID=1, AnlageNr=001");
        m_form = std::make_unique<frmZuordnen>();
        m_ansicht = std::make_unique<SammelzuordnungAnsicht>(*m_form, nullptr);
        m_ansicht->show();
    }

    QComboBox* combo(const char* name) const { return m_ansicht->findChild<QComboBox*>(name); }

    std::unique_ptr<frmZuordnen> m_form;
    std::unique_ptr<SammelzuordnungAnsicht> m_ansicht;
};

TEST_F(SammelzuordnungAnsichtTest, TheCombosFollowTheFormAndWeiterWritesTheRows) {
    QComboBox* kunde = combo("ComboKunde");
    QComboBox* anlage = combo("ComboAnlage");
    QComboBox* prüfung = combo("ComboPrüfung");
    ASSERT_TRUE(kunde && anlage && prüfung);
    EXPECT_EQ(kunde->count(), 4);
    EXPECT_EQ(kunde->currentIndex(), -1);
    EXPECT_FALSE(anlage->isEnabled());

    // The user picks Bäckerei Sommer: her plant 001 comes preselected, its inspection offered.
    kunde->setFocus();
    QTest::keyClick(kunde, Qt::Key_Down);
    ASSERT_EQ(m_form->comboKunde().listIndex, 0);
    EXPECT_TRUE(anlage->isEnabled());
    EXPECT_EQ(anlage->currentText(), "001 A1 Backstube");
    EXPECT_EQ(anlage->currentData().toInt(), 1);
    EXPECT_TRUE(prüfung->isEnabled());
    EXPECT_EQ(prüfung->count(), 1);

    if (const QByteArray ziel = qgetenv("VEMO_ZUORDNEN_BILD"); !ziel.isEmpty())
        m_ansicht->grab().save(QString::fromLocal8Bit(ziel));

    QTest::mouseClick(m_ansicht->findChild<QPushButton*>("CoWeiter"), Qt::LeftButton);
    EXPECT_EQ(feld(1, "KundeID") + "/" + feld(1, "AnlageID"), "1/1");
}

} // namespace
