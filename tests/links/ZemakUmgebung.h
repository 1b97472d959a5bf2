#pragma once

#include "support/Dateien.h"
#include "support/Testumgebung.h"

#include "core/Arbeitsdateien.h"
#include "links/ZemakDialog.h"

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

    void übertragen(const QString& selektor, const std::function<void(frmZEMAK&)>& aktion = {},
                    int frist = 8000) {
        m_ui.beiDialog = [this, aktion, frist](DialogController& d) {
            m_form = qobject_cast<frmZEMAK*>(&d);
            ASSERT_TRUE(m_form);
            if (aktion)
                aktion(*m_form);
            bewachen(*m_form, frist);
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

    QByteArray ruvo() const { return inhalt(arbeitsdatei(datei::Ruvo)); }
    void ruvoVorbelegen() const { schreiben(pfad("Ruvo.ser"), AlteDatei); }

    QPointer<frmZEMAK> m_form;
};

} // namespace vemo::test
