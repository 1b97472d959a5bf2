#include "platform/Dialogtasten.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>

namespace vemo {
namespace {

class Abbruchtasten : public QObject {
public:
    Abbruchtasten(QDialog& dialog, QPushButton& abbrechen) : QObject(&dialog), m_abbrechen(&abbrechen) {}

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() != QEvent::KeyPress || !m_abbrechen ||
            !static_cast<QDialog*>(objekt)->isVisible())
            return false;
        const auto* taste = static_cast<QKeyEvent*>(ereignis);
        if (taste->key() != Qt::Key_Escape || taste->modifiers() != Qt::NoModifier)
            return false;
        // A window whose cancel button cannot act (a run that already ends) goes as any window.
        if (!m_abbrechen->isEnabled() || !m_abbrechen->isVisible())
            return false;
        m_abbrechen->click();
        return true;
    }

private:
    QPointer<QPushButton> m_abbrechen;
};

} // namespace

void dialogtastenSetzen(QDialog& dialog, QPushButton* standard, QPushButton* abbrechen) {
    for (QPushButton* k : dialog.findChildren<QPushButton*>())
        k->setDefault(k == standard);
    if (standard)
        standard->setAutoDefault(true);
    if (abbrechen)
        dialog.installEventFilter(new Abbruchtasten(dialog, *abbrechen));
}

} // namespace vemo
