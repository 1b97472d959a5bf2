#pragma once

#include "support/Testumgebung.h"

#include "core/Arbeitsdateien.h"
#include "links/ZemakDialog.h"

#include <QFile>
#include <QPointer>
#include <QTimer>
#include <functional>

namespace vemo::test {

// Runs the query dialog of a 37xx variant with the recording Ui and lets a test act on it while it
// is shown. A dialog still open when its time is up is aborted, and the test fails instead of
// hanging.
class ZemakUmgebung : public Testumgebung {
protected:
    static inline const QByteArray AlteDatei = "die Messungen von gestern\r\n";

    void SetUp() override {
        Testumgebung::SetUp();
        modul().CommPort = 1;
    }
    void TearDown() override {
        EXPECT_FALSE(m_wachhund) << "the dialog did not end by itself";
        Testumgebung::TearDown();
    }

    void übertragen(const QString& selektor, const std::function<void(frmZEMAK&)>& aktion = {},
                    int frist = 8000) {
        m_ui.beiDialog = [this, aktion, frist](DialogController& d) {
            m_form = qobject_cast<frmZEMAK*>(&d);
            ASSERT_TRUE(m_form);
            if (aktion)
                aktion(*m_form);
            QTimer::singleShot(frist, m_form, [this] {
                m_wachhund = true;
                m_form->abbrechen();
            });
        };
        zemakÜbertragen(*zemakVariante(selektor));
    }

    // Does aktion once, as soon as bedingung holds while the dialog is open.
    static void sobald(frmZEMAK& form, std::function<bool()> bedingung, std::function<void()> aktion) {
        auto* uhr = new QTimer(&form);
        QObject::connect(uhr, &QTimer::timeout, &form, [uhr, bedingung, aktion] {
            if (!bedingung())
                return;
            uhr->stop();
            aktion();
        });
        uhr->start(5);
    }

    QByteArray ruvo() const {
        QFile f(arbeitsdatei(datei::Ruvo));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<fehlt>");
    }
    void ruvoVorbelegen() const {
        QFile f(pfad("Ruvo.ser"));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(AlteDatei);
    }

    QPointer<frmZEMAK> m_form;
    bool m_wachhund = false;
};

} // namespace vemo::test
