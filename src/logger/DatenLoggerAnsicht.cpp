#include "logger/DatenLoggerAnsicht.h"

#include "core/ModulState.h"
#include "logger/DatenLogger.h"
#include "platform/Dialogtasten.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace vemo {
namespace {

const char* const Feldnamen[DatenLogger::Felder] = {"Tag", "Monat", "Jahr", "Stunde", "Minute", "Sekunde"};

bool dialogtaste(int taste) {
    for (const int t : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
        if (taste == t)
            return true;
    return false;
}

} // namespace

DatenLoggerAnsicht::DatenLoggerAnsicht(DatenLogger& dialog, QWidget* eltern)
    : QDialog(eltern), m_dialog(&dialog) {
    setObjectName("DatenLogger");
    setWindowTitle(dialog.titel());
    auto* label1 = new QLabel(xText("Daten Logger"));
    label1->setObjectName("Label1");
    QFont groß = label1->font();
    groß.setBold(true);
    label1->setFont(groß);
    auto* raster = new QGridLayout;
    raster->addWidget(new QLabel(xText("Beginn der Aufzeichnung") + ":"), 0, 0, 1, 3);
    for (int i = 0; i < DatenLogger::Felder; ++i) {
        auto* feld = new QLineEdit;
        feld->setObjectName(QString("Text1_%1").arg(i));
        feld->setMaxLength(i == 2 ? 4 : 2);
        feld->setMaximumWidth(60);
        feld->installEventFilter(this);
        connect(feld, &QLineEdit::textEdited, this,
                [this, i](const QString& t) { m_dialog->feldSetzen(i, t); });
        m_felder << feld;
        raster->addWidget(new QLabel(xText(Feldnamen[i])), 1 + i / 3 * 2, i % 3);
        raster->addWidget(feld, 2 + i / 3 * 2, i % 3);
    }
    auto* knöpfe = new QDialogButtonBox;
    auto* ok = knöpfe->addButton(xText("Übernehmen"), QDialogButtonBox::AcceptRole);
    ok->setObjectName("Command1");
    auto* abbrechen = knöpfe->addButton(xText("Abbrechen"), QDialogButtonBox::RejectRole);
    abbrechen->setObjectName("Command2");
    connect(ok, &QPushButton::clicked, &dialog, &DatenLogger::command1);
    connect(abbrechen, &QPushButton::clicked, &dialog, &DatenLogger::command2);
    dialogtastenSetzen(*this, ok, nullptr); // reject() is the cancel button already
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label1);
    layout->addLayout(raster);
    layout->addWidget(knöpfe);
    connect(&dialog, &DialogController::geschlossen, this, [this](int ergebnis) { done(ergebnis); });
    connect(&dialog, &DialogController::aktualisiert, this, &DatenLoggerAnsicht::anzeigen);
    anzeigen();
}

QDialog* DatenLoggerAnsicht::erstellen(DialogController& controller, QWidget* eltern) {
    return new DatenLoggerAnsicht(static_cast<DatenLogger&>(controller), eltern);
}

// Keys reach a field only when the dialog lets them; leaving a field formats its number.
bool DatenLoggerAnsicht::eventFilter(QObject* objekt, QEvent* ereignis) {
    const int i = int(m_felder.indexOf(qobject_cast<QLineEdit*>(objekt)));
    if (i < 0 || !m_dialog)
        return QDialog::eventFilter(objekt, ereignis);
    if (ereignis->type() == QEvent::KeyPress) {
        const auto* taste = static_cast<QKeyEvent*>(ereignis);
        // Tab and the arrows move between the fields, Enter confirms and Escape cancels, as in any
        // dialog; of the keys that type, only digits and the backspace reach a field.
        if (dialogtaste(taste->key()))
            return false;
        const QString text = taste->text();
        const int zeichen = taste->key() == Qt::Key_Backspace ? DatenLogger::Rückschritt
                            : text.isEmpty()                  ? -1
                                                              : text.at(0).unicode();
        if (zeichen < 0)
            return false;
        return !DatenLogger::tasteErlaubt(zeichen);
    }
    // A field entered holds a number already (the start proposed): typing replaces it.
    if (ereignis->type() == QEvent::FocusIn)
        QTimer::singleShot(0, m_felder[i], &QLineEdit::selectAll);
    if (ereignis->type() == QEvent::FocusOut)
        m_dialog->feldVerlassen(i);
    return QDialog::eventFilter(objekt, ereignis);
}

void DatenLoggerAnsicht::anzeigen() {
    if (!m_dialog)
        return;
    for (int i = 0; i < DatenLogger::Felder; ++i)
        if (m_felder[i]->text() != m_dialog->feld(i))
            m_felder[i]->setText(m_dialog->feld(i));
}

// Escape and the window's close button act as the dialog's cancel button, whose closing of the
// dialog closes the window; a window whose dialog has closed already just goes.
void DatenLoggerAnsicht::reject() {
    if (m_dialog && m_dialog->istOffen())
        m_dialog->command2();
    else
        QDialog::reject();
}

} // namespace vemo
