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
    auto* eingabe = mitTag(new QLineEdit("Kunde"), "xttt");
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

    // Each control by its tag; one without a tag or with another tag stays, and a text field has no
    // caption. The form's own caption is the dialog's business.
    EXPECT_EQ(QStringList({beschriftung->text(), ohneTag->text(), schließen->text(), schließen->toolTip(),
                           nurTipp->text(), nurTipp->toolTip(), rahmen->title(), eingabe->text(),
                           eingabe->toolTip(), reiter->tabText(0), reiter->tabText(1), fremd->text(),
                           aktion->text(), form.windowTitle()})
                  .join('|'),
              "Customer:|Anlage|Close|Instrument|Kunde|Date|State|Kunde|Time|Customer|Distribution board|"
              "Stromkreis|Change assignment|Kunde");
    EXPECT_TRUE(m_ui.meldungen.isEmpty());

    FormÜbersetzen(nullptr);
}

} // namespace
} // namespace vemo::test
