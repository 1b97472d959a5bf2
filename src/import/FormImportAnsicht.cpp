#include "import/FormImportAnsicht.h"

#include "import/FormImport.h"
#include "platform/Dialogtasten.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vemo {

FormImportAnsicht::FormImportAnsicht(FormImport& form, QWidget* eltern)
    : QDialog(eltern), m_form(&form), m_datenquelle(new QLineEdit(this)), m_anzahl(new QLabel(this)),
      m_prozent(new QLabel(this)), m_ändern(new QPushButton(form.beschriftungen().ändern, this)),
      m_konvertieren(new QPushButton(form.beschriftungen().konvertieren, this)),
      m_abbrechen(new QPushButton(form.beschriftungen().abbrechen, this)) {
    setObjectName("FormImport");
    setWindowTitle(form.beschriftungen().titel);
    m_datenquelle->setObjectName("Datenquelle");
    m_ändern->setObjectName("control3");
    m_konvertieren->setObjectName("Konvertieren");
    m_abbrechen->setObjectName("Abbrechen");
    m_anzahl->setObjectName("LabAnzahl");
    m_prozent->setObjectName("LabProzent");

    auto* rahmen = new QGroupBox(form.beschriftungen().rahmen, this);
    rahmen->setObjectName("Frame1");
    auto* quelle = new QHBoxLayout(rahmen);
    quelle->addWidget(m_datenquelle, 1);
    quelle->addWidget(m_ändern);

    auto* stand = new QHBoxLayout;
    stand->addWidget(m_anzahl, 1);
    stand->addWidget(m_prozent);

    auto* hilfe = new QLabel(form.beschriftungen().hilfe, this);
    hilfe->setObjectName("ImportHilfe");
    hilfe->setWordWrap(true);

    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch(1);
    knöpfe->addWidget(m_konvertieren);
    knöpfe->addWidget(m_abbrechen);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(rahmen);
    layout->addWidget(hilfe);
    layout->addLayout(stand);
    layout->addLayout(knöpfe);
    resize(520, 200);

    connect(m_datenquelle, &QLineEdit::textEdited, &form, &FormImport::setDatenquelle);
    connect(m_ändern, &QPushButton::clicked, &form, &FormImport::ändernKlick);
    connect(m_konvertieren, &QPushButton::clicked, &form, &FormImport::konvertierenKlick);
    connect(m_abbrechen, &QPushButton::clicked, &form, &FormImport::abbrechenKlick);
    dialogtastenSetzen(*this, m_konvertieren, m_abbrechen);
    connect(&form, &FormImport::aktualisiert, this, &FormImportAnsicht::anzeigen);
    anzeigen();
}

QDialog* FormImportAnsicht::erstellen(DialogController& controller, QWidget* eltern) {
    return new FormImportAnsicht(static_cast<FormImport&>(controller), eltern);
}

void FormImportAnsicht::anzeigen() {
    if (!m_form)
        return;
    if (m_datenquelle->text() != m_form->datenquelle())
        m_datenquelle->setText(m_form->datenquelle());
    m_anzahl->setText(m_form->anzahlText());
    m_prozent->setText(m_form->prozentText());
    const bool frei = !m_form->läuft();
    m_ändern->setEnabled(frei);
    m_konvertieren->setEnabled(frei);
    m_abbrechen->setEnabled(frei);
}

} // namespace vemo
