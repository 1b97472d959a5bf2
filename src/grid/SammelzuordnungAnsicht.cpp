#include "grid/SammelzuordnungAnsicht.h"

#include "grid/ZuordnenDialog.h"
#include "platform/Dialogtasten.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace vemo {

SammelzuordnungAnsicht::SammelzuordnungAnsicht(frmZuordnen& form, QWidget* eltern)
    : QDialog(eltern), m_form(&form), m_kunde(new QComboBox(this)), m_anlage(new QComboBox(this)),
      m_prüfung(new QComboBox(this)), m_weiter(new QPushButton(form.beschriftungen().weiter, this)) {
    const auto& t = form.beschriftungen();
    setObjectName("frmZuordnen");
    setWindowTitle(t.titel);
    m_kunde->setObjectName("ComboKunde");
    m_anlage->setObjectName("ComboAnlage");
    m_prüfung->setObjectName("ComboPrüfung");
    m_weiter->setObjectName("CoWeiter");
    for (QComboBox* c : {m_kunde, m_anlage, m_prüfung})
        c->setMinimumWidth(320);

    auto* rahmen = new QGroupBox(t.rahmen, this);
    auto* felder = new QFormLayout(rahmen);
    felder->addRow(t.kunde, m_kunde);
    felder->addRow(t.anlage, m_anlage);
    felder->addRow(t.prüfung, m_prüfung);
    auto* hilfe = new QLabel(t.hilfe, this);
    hilfe->setObjectName("LabHilfe");
    hilfe->setWordWrap(true);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(rahmen);
    layout->addWidget(hilfe);
    layout->addWidget(m_weiter, 0, Qt::AlignRight);

    connect(m_kunde, &QComboBox::activated, &form, &frmZuordnen::kundeKlick);
    connect(m_anlage, &QComboBox::activated, &form, &frmZuordnen::anlageKlick);
    connect(m_prüfung, &QComboBox::activated, &form, &frmZuordnen::prüfungKlick);
    connect(m_weiter, &QPushButton::clicked, &form, &frmZuordnen::weiterKlick);
    dialogtastenSetzen(*this, m_weiter, nullptr);
    connect(&form, &frmZuordnen::aktualisiert, this, &SammelzuordnungAnsicht::anzeigen);
    anzeigen();
}

QDialog* SammelzuordnungAnsicht::erstellen(DialogController& controller, QWidget* eltern) {
    return new SammelzuordnungAnsicht(static_cast<frmZuordnen&>(controller), eltern);
}

void SammelzuordnungAnsicht::comboZeigen(QComboBox* combo, const Zuordnungsliste& liste) {
    const QSignalBlocker still(combo);
    combo->clear();
    for (const ComboEintrag& e : liste.einträge)
        combo->addItem(e.text, e.schlüssel);
    combo->setCurrentIndex(liste.listIndex);
    combo->setEnabled(liste.aktiv);
}

void SammelzuordnungAnsicht::anzeigen() {
    if (!m_form)
        return;
    comboZeigen(m_kunde, m_form->comboKunde());
    comboZeigen(m_anlage, m_form->comboAnlage());
    comboZeigen(m_prüfung, m_form->comboPrüfung());
}

} // namespace vemo
