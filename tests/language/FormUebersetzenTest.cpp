#include "Sprachumgebung.h"

#include "language/FormUebersetzen.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace vemo::test {
namespace {

using FormÜbersetzenTest = Sprachumgebung;

template <typename W> W* mitTag(W* w, const char* tag) {
    w->setProperty("Tag", tag);
    return w;
}

TEST_F(FormÜbersetzenTest, JedesSteuerelementNachSeinemTag) {
    spracheEinstellen(Englisch);
    QDialog form;
    form.setWindowTitle("Kunde");
    auto* layout = new QVBoxLayout(&form);
    auto* beschriftung = mitTag(new QLabel("Kunde:"), "x");
    auto* ohneTag = new QLabel("Anlage");
    auto* schließen = mitTag(new QPushButton("Schließen"), "xttt");
    schließen->setToolTip("Prüfgerät");
    auto* nurTipp = mitTag(new QCheckBox("Kunde"), "ttt");
    nurTipp->setToolTip("Datum");
    auto* rahmen = mitTag(new QGroupBox("Zustand"), "x");
    auto* eingabe = mitTag(new QLineEdit("Kunde"), "xttt"); // a text field has no caption
    eingabe->setToolTip("Uhrzeit");
    auto* reiter = mitTag(new QTabWidget, "tab");
    reiter->addTab(new QWidget, "Kunde");
    reiter->addTab(new QWidget, "Verteiler");
    auto* fremd = mitTag(new QLabel("Stromkreis"), "y");
    auto* aktion = mitTag(new QAction("Zuordnung ändern", &form), "x");
    for (QWidget* w : std::initializer_list<QWidget*>{beschriftung, ohneTag, schließen, nurTipp, rahmen,
                                                      eingabe, reiter, fremd})
        layout->addWidget(w);

    FormÜbersetzen(&form);

    EXPECT_EQ(beschriftung->text(), "Customer:");
    EXPECT_EQ(ohneTag->text(), "Anlage");
    EXPECT_EQ(schließen->text(), "Close");
    EXPECT_EQ(schließen->toolTip(), "Instrument");
    EXPECT_EQ(nurTipp->text(), "Kunde");
    EXPECT_EQ(nurTipp->toolTip(), "Date");
    EXPECT_EQ(rahmen->title(), "State");
    EXPECT_EQ(eingabe->text(), "Kunde");
    EXPECT_EQ(eingabe->toolTip(), "Time");
    EXPECT_EQ(reiter->tabText(0), "Customer");
    EXPECT_EQ(reiter->tabText(1), "Distribution board");
    EXPECT_EQ(fremd->text(), "Stromkreis");
    EXPECT_EQ(aktion->text(), "Change assignment");
    EXPECT_EQ(form.windowTitle(), "Kunde"); // the form's own caption is the dialog's business
    EXPECT_TRUE(m_ui.meldungen.isEmpty());

    FormÜbersetzen(nullptr);
}

} // namespace
} // namespace vemo::test
