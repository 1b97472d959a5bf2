#include "ZemakUmgebung.h"
#include "support/Leitung.h"

#include "PortLeitung.h"
#include "ZemakGeraet.h"
#include "ansichten/Ansichten.h"
#include "core/Geraetetypen.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

namespace vemo::test {
namespace {

// The window of the query dialog, shown modally by the Qt Ui as in the window program.
class ZemakAnsichtTest : public ZemakUmgebung {
protected:
    void SetUp() override {
        ZemakUmgebung::SetUp();
        modul().ui = &m_qtUi;
    }
    static QDialog* fenster() {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "frmZEMAK" && w->isVisible())
                return qobject_cast<QDialog*>(w);
        return nullptr;
    }
    // Does aktion once with the window, as soon as bedingung holds for it; a window still open
    // after eight seconds is closed, and the test fails.
    void sobaldFenster(std::function<bool(QDialog&)> bedingung, std::function<void(QDialog&)> aktion) {
        auto* uhr = new QTimer;
        QObject::connect(uhr, &QTimer::timeout, [uhr, bedingung, aktion] {
            QDialog* f = fenster();
            if (!f || !bedingung(*f))
                return;
            uhr->stop();
            uhr->deleteLater();
            aktion(*f);
        });
        uhr->start(10);
        QTimer::singleShot(8000, [this] {
            if (QDialog* f = fenster()) {
                m_wachhund = true;
                f->close();
            }
        });
    }

    QtUi m_qtUi{ansichten()};
};

TEST_F(ZemakAnsichtTest, FensterZeigtDenFortschrittUndDerKnopfBrichtAb) {
    const Zemakvariante& v = *zemakVariante(selektor::Zemak3720);
    auto instrument = speicherleitungEinstecken();
    // The instrument pauses after a third of its reply, so that the window is seen mid-transfer.
    sim::ZemakGerät gerät(sim::ZemakSpeicher::erzeugen(v, 40), {{9600, 0}, {0, -1, 700, 5000}});
    sim::PortLeitung leitung(*instrument, gerät);
    QString zustand;
    int wert = 0, max = 0;
    sobaldFenster([](QDialog& f) { return !f.findChild<QLabel*>("labProzent")->text().isEmpty(); },
                  [&](QDialog& f) {
                      QTest::qWait(2 * frmZEMAK::Taktzeit); // well into the pause
                      zustand = f.findChild<QLabel*>("LabGerätezustand")->text();
                      wert = f.findChild<QProgressBar*>("Bar1")->value();
                      max = f.findChild<QProgressBar*>("Bar1")->maximum();
                      QTest::mouseClick(f.findChild<QPushButton*>("ComAbbruch"), Qt::LeftButton);
                  });

    zemakÜbertragen(v);

    EXPECT_EQ(zustand, "ZEMAK 3720B V1.40 gefunden");
    EXPECT_GT(wert, 0);
    EXPECT_LT(wert, max);
    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_EQ(fenster(), nullptr);
}

TEST_F(ZemakAnsichtTest, EscapeBeimSuchenIstDerAbbruch) {
    ruvoVorbelegen();
    speicherleitungEinstecken(); // nobody answers
    QString zustand, hinweis;
    sobaldFenster([](QDialog&) { return true; },
                  [&](QDialog& f) {
                      zustand = f.findChild<QLabel*>("LabGerätezustand")->text();
                      hinweis = f.findChild<QLabel*>("LabHinweis")->text();
                      QTest::keyClick(&f, Qt::Key_Escape);
                  });

    zemakÜbertragen(*zemakVariante(selektor::Zemak3740));

    EXPECT_EQ(zustand, "Suche ZEMAK 3720 Prüfgerät an COM-Port 1") << "the 3740's texts name the 3720";
    EXPECT_EQ(hinweis, "Alle Messleitungen vom 3720 entfernen.");
    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_EQ(fenster(), nullptr);
    EXPECT_EQ(ruvo(), AlteDatei);
}

} // namespace
} // namespace vemo::test
