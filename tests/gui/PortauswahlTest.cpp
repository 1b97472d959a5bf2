#include "Portauswahl.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// The list offers each port with its description, the field takes its device alone, and a path
// typed freely survives the list being offered anew.
TEST(PortauswahlTest, AChosenPortGivesItsDeviceAndATypedPathIsKept) {
    Portauswahl auswahl;
    const QList<vemo::Schnittstelle> ports{{"/dev/ttyS0", "", std::nullopt, std::nullopt},
                                           {"/dev/ttyUSB0", "USB-Seriell", 0x0403, 0x6001}};
    auswahl.anbieten(ports);
    auto* liste = auswahl.findChild<QComboBox*>();
    ASSERT_TRUE(liste);
    EXPECT_EQ(liste->itemText(1), "/dev/ttyUSB0  USB-Seriell  USB 0403:6001");

    liste->lineEdit()->clear();
    QTest::keyClicks(liste->lineEdit(), "/tmp/pts/7");
    auswahl.anbieten(ports);
    EXPECT_EQ(auswahl.text(), "/tmp/pts/7");

    liste->setCurrentIndex(0);
    QTest::keyClick(liste, Qt::Key_Down);
    EXPECT_EQ(auswahl.text(), "/dev/ttyUSB0");
}

} // namespace
