#include "support/Testumgebung.h"

#include "ansichten/Ansichten.h"
#include "links/Form2.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace vemo::test {
namespace {

class Form2Test : public Testumgebung {};

TEST_F(Form2Test, HinweisBlinktBisDatenKommen) {
    modul().anwendungstitel = "Prüfstand";
    Form2 form;
    EXPECT_EQ(form.titel(), "Serielle Datenübertragung - Prüfstand");
    EXPECT_FALSE(form.abbrechenAktiv());
    form.wartenAnzeigen();
    EXPECT_TRUE(form.abbrechenAktiv());
    EXPECT_TRUE(form.blinkt());

    const QString hinweis = form.hinweis();
    EXPECT_EQ(hinweis, "RS232-Taste am Corvex drücken ...");
    QSignalSpy vorne(&form, &Form2::raiseRequested);
    ASSERT_TRUE(vorne.wait(Form2::Blinktakt + 500));
    EXPECT_EQ(form.hinweis(), QString()) << "the first tick hides the hint";

    form.datenKommen();
    EXPECT_FALSE(form.blinkt());
    EXPECT_TRUE(form.sanduhr());
    EXPECT_EQ(form.hinweis(), "Datenübertragung läuft...");
}

TEST_F(Form2Test, TextBoxBehaeltDasEndeUndTastenWirkenAufDieMerker) {
    Form2 form;
    form.zeilenAnzeigen(QString(300, 'a') + "\r\n");
    form.zeilenAnzeigen("b\r\n");
    EXPECT_EQ(form.text(), QString(253, 'a') + "\r\nb\r\n");
    EXPECT_EQ(form.caret(), form.text().size() - 1);

    EXPECT_FALSE(form.tasteGedrückt('x'));
    EXPECT_EQ(modul().Empfangsende, 0);
    EXPECT_TRUE(form.tasteGedrückt(Form2::Enter));
    EXPECT_EQ(modul().Empfangsende, 1);
    EXPECT_EQ(modul().Abbruchmerker, 0) << "Enter is a success";
    modul().Empfangsende = 0;
    form.abbrechen();
    EXPECT_EQ(modul().Empfangsende, 1);
    EXPECT_EQ(modul().Abbruchmerker, 1);
}

TEST_F(Form2Test, FensterLeitetKnopfUndTastenWeiter) {
    QtUi qtUi(ansichten());
    Form2 form;
    form.wartenAnzeigen();
    qtUi.zeigeNichtModal(form);
    QDialog* fenster = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "Form2")
            fenster = qobject_cast<QDialog*>(w);
    ASSERT_NE(fenster, nullptr) << "the view is found by the controller's class";
    EXPECT_EQ(fenster->windowTitle(), form.titel());
    auto* knopf = fenster->findChild<QPushButton*>("Command1");
    auto* text = fenster->findChild<QPlainTextEdit*>("Text2");
    ASSERT_TRUE(knopf && text);
    EXPECT_EQ(knopf->text(), "Datenübertragung Abbrechen");

    form.zeilenAnzeigen("Zeile 1\r\n");
    EXPECT_EQ(text->toPlainText(), "Zeile 1\n");
    QTest::keyClicks(text, "xy");
    EXPECT_EQ(text->toPlainText(), "Zeile 1\n") << "typing is swallowed";
    EXPECT_EQ(modul().Empfangsende, 0);
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(modul().Empfangsende, 1);
    EXPECT_EQ(modul().Abbruchmerker, 0);

    modul().Empfangsende = 0;
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
