#include "support/Testumgebung.h"

#include "ansichten/Ansichten.h"
#include "links/Form2.h"

#include <QApplication>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace vemo::test {
namespace {

class Form2Test : public Testumgebung {};

// The wait dialog in its window: the hint blinks until data come, the text box keeps the end, Enter
// ends the reception as a success, the button and the window's close abort it.
TEST_F(Form2Test, FensterBlinktBisDatenKommenUndLeitetKnopfUndTastenWeiter) {
    modul().anwendungstitel = "Prüfstand";
    QtUi qtUi(ansichten());
    Form2 form;
    EXPECT_FALSE(form.abbrechenAktiv());
    form.wartenAnzeigen();
    EXPECT_TRUE(form.abbrechenAktiv());
    qtUi.zeigeNichtModal(form);
    QDialog* fenster = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "Form2")
            fenster = qobject_cast<QDialog*>(w);
    ASSERT_NE(fenster, nullptr) << "the view is found by the controller's class";
    EXPECT_EQ(fenster->windowTitle(), "Serielle Datenübertragung - Prüfstand");
    auto* knopf = fenster->findChild<QPushButton*>("Command1");
    auto* text = fenster->findChild<QPlainTextEdit*>("Text2");
    ASSERT_TRUE(knopf && text);

    EXPECT_EQ(form.hinweis(), "RS232-Taste am Corvex drücken ...");
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.hinweis().isEmpty(); }, Form2::Blinktakt + 500))
        << "the first tick hides the hint";
    form.datenKommen();
    EXPECT_FALSE(form.blinkt());
    EXPECT_EQ(form.hinweis(), "Datenübertragung läuft...");

    form.zeilenAnzeigen(QString(300, 'a') + "\r\n");
    form.zeilenAnzeigen("b\r\n");
    EXPECT_EQ(form.text(), QString(253, 'a') + "\r\nb\r\n");
    const QString gezeigt = text->toPlainText();
    EXPECT_TRUE(gezeigt.endsWith("a\nb\n"));
    QTest::keyClicks(text, "xy");
    EXPECT_EQ(text->toPlainText(), gezeigt) << "typing is swallowed";
    EXPECT_EQ(modul().Empfangsende, 0);
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(modul().Empfangsende, 1);
    EXPECT_EQ(modul().Abbruchmerker, 0);

    fenster->close();
    EXPECT_EQ(modul().Abbruchmerker, 1) << "closing the window aborts";
    EXPECT_TRUE(fenster->isVisible()) << "the window goes only with the reception";
    modul().Abbruchmerker = 0;
    QTest::mouseClick(knopf, Qt::LeftButton);
    EXPECT_EQ(modul().Abbruchmerker, 1);

    QPointer<QDialog> wache(fenster);
    form.schließen();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(wache.isNull());
}

} // namespace
} // namespace vemo::test
