#include "takeover/TeilFunktionAnsicht.h"

#include "platform/Dialogtasten.h"
#include "takeover/TeilFunktionDialog.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vemo {

TeilFunktionAnsicht::TeilFunktionAnsicht(frmTeilFunktion& dialog, QWidget* eltern) : QDialog(eltern) {
    setWindowTitle(dialog.Caption());
    auto* layout = new QVBoxLayout(this);
    auto* name = new QLabel(dialog.TeilFunktion(), this);
    auto* combo1 = new QComboBox(this);
    combo1->addItems(dialog.Combo1());
    combo1->setCurrentText(dialog.Combo1Text());
    auto* command1 = new QPushButton("OK", this);
    layout->addWidget(name);
    layout->addWidget(combo1);
    layout->addWidget(command1);

    connect(&dialog, &DialogController::aktualisiert, name,
            [name, &dialog] { name->setText(dialog.TeilFunktion()); });
    connect(combo1, &QComboBox::currentTextChanged, this,
            [&dialog](const QString& spalte) { dialog.setCombo1Text(spalte); });
    connect(command1, &QPushButton::clicked, this, [&dialog] { dialog.Command1(); });
    dialogtastenSetzen(*this, command1, nullptr);
}

} // namespace vemo
