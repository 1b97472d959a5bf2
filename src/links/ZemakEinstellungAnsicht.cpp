#include "links/ZemakEinstellungAnsicht.h"

#include "core/ModulState.h"
#include "links/ZemakEinstellung.h"
#include "platform/Dialogtasten.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace vemo {
namespace {

QLabel* label(const QString& name, QWidget* eltern, const QString& text = {}) {
    auto* l = new QLabel(text, eltern);
    l->setObjectName(name);
    return l;
}

QPushButton* knopf(const QString& name, const QString& text, QWidget* eltern) {
    auto* k = new QPushButton(text, eltern);
    k->setObjectName(name);
    k->setAutoDefault(false);
    return k;
}

} // namespace

ZemakEinstellungAnsicht::ZemakEinstellungAnsicht(frmSettingZEMAK3710& form, QWidget* eltern)
    : Abbruchfenster(
          form, [&form] { form.ComSchließen(); }, eltern),
      m_form(&form) {
    setObjectName(form.variante().name);
    setWindowTitle(form.titel());

    m_löschen = knopf("ComMesLöschen", xText("Prüfgerätespeicher löschen"), this);
    auto* schließen = knopf("ComSchließen", xText("Schließen"), this);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addWidget(m_löschen);
    knöpfe->addStretch(1);
    knöpfe->addWidget(schließen);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(kennungBauen());
    layout->addWidget(uhrBauen());
    layout->addWidget(aufteilungBauen());
    layout->addStretch(1);
    layout->addLayout(knöpfe);

    connect(m_löschen, &QPushButton::clicked, &form, &frmSettingZEMAK3710::ComMesLöschen);
    connect(schließen, &QPushButton::clicked, &form, &frmSettingZEMAK3710::ComSchließen);
    dialogtastenSetzen(*this, nullptr, schließen);
    connect(&form, &frmSettingZEMAK3710::aktualisiert, this, &ZemakEinstellungAnsicht::anzeigen);
    connect(&form, &frmSettingZEMAK3710::kennungUebernommen, this,
            &ZemakEinstellungAnsicht::kennungMarkieren);
    anzeigen();
    m_kennung->setText(form.kennungstext());
    resize(460, sizeHint().height());
}

QDialog* ZemakEinstellungAnsicht::erstellen(DialogController& controller, QWidget* eltern) {
    return new ZemakEinstellungAnsicht(static_cast<frmSettingZEMAK3710&>(controller), eltern);
}

QGroupBox* ZemakEinstellungAnsicht::kennungBauen() {
    auto* rahmen = new QGroupBox(m_form->kennungsRahmen(), this);
    rahmen->setObjectName("FraSerienNr");
    m_gerät = label("LabGerät", rahmen);
    QFont fett = m_gerät->font();
    fett.setBold(true);
    m_gerät->setFont(fett);
    m_serienNr = label("LabSerienNr", rahmen);
    m_kennung = new QLineEdit(rahmen);
    m_kennung->setObjectName("TxtSerienNr");
    auto* senden = knopf("ComSend", QString(), rahmen);
    senden->setIcon(style()->standardIcon(QStyle::SP_ArrowRight));
    senden->setToolTip(xText("ID an Prüfgerät senden"));

    auto* zeile = new QHBoxLayout;
    zeile->addWidget(m_kennung, 1);
    zeile->addWidget(senden);
    auto* layout = new QVBoxLayout(rahmen);
    layout->addWidget(m_gerät);
    layout->addWidget(m_serienNr);
    layout->addLayout(zeile);

    connect(m_kennung, &QLineEdit::textEdited, m_form.data(), &frmSettingZEMAK3710::setKennungstext);
    connect(senden, &QPushButton::clicked, m_form.data(), &frmSettingZEMAK3710::ComSend);
    return rahmen;
}

QGroupBox* ZemakEinstellungAnsicht::uhrBauen() {
    auto* rahmen = new QGroupBox(m_form->uhrRahmen(), this);
    rahmen->setObjectName("FraUhrZeit");
    m_prüfgerätZeit = label("LabPrüfgerätTime", rahmen);
    m_pcZeit = label("LabPCtime", rahmen);
    m_sync = knopf("ComSync", QString(), rahmen);
    m_sync->setIcon(style()->standardIcon(QStyle::SP_BrowserReload));
    m_sync->setToolTip(xText("Datum und Uhrzeit an Prüfgerät senden"));

    auto* layout = new QGridLayout(rahmen);
    layout->addWidget(label("LabPrüfgerät", rahmen, xText("Prüfgerät") + ":"), 0, 0);
    layout->addWidget(m_prüfgerätZeit, 0, 1);
    layout->addWidget(label("LabComputer", rahmen, xText("Computer") + ":"), 1, 0);
    layout->addWidget(m_pcZeit, 1, 1);
    layout->addWidget(m_sync, 0, 2, 2, 1, Qt::AlignVCenter);
    layout->setColumnStretch(1, 1);

    connect(m_sync, &QPushButton::clicked, m_form.data(), &frmSettingZEMAK3710::ComSync);
    return rahmen;
}

QGroupBox* ZemakEinstellungAnsicht::aufteilungBauen() {
    m_aufteilung = new QGroupBox(m_form->aufteilungsRahmen(), this);
    m_aufteilung->setObjectName("Frame1");
    m_codeSplitting = new QCheckBox(xText("activateCodeSplitting3720"), m_aufteilung);
    m_codeSplitting->setObjectName("codeSplitting3720");
    m_kundenstellen = new QComboBox(m_aufteilung);
    m_kundenstellen->setObjectName("Combo1");
    m_kundenstellen->addItems(m_form->kundenstellenListe());
    m_verteilerstellen = new QComboBox(m_aufteilung);
    m_verteilerstellen->setObjectName("Combo2");
    m_verteilerstellen->addItems(m_form->verteilerstellenListe());
    m_kundenstellen->setCurrentIndex(m_form->kundenstellenIndex());
    m_verteilerstellen->setCurrentIndex(m_form->verteilerstellenIndex());

    auto* layout = new QVBoxLayout(m_aufteilung);
    layout->addWidget(m_codeSplitting);
    layout->addWidget(m_kundenstellen);
    layout->addWidget(m_verteilerstellen);

    connect(m_codeSplitting, &QCheckBox::clicked, m_form.data(), &frmSettingZEMAK3710::setCodeSplitting);
    connect(m_kundenstellen, &QComboBox::activated, m_form.data(),
            &frmSettingZEMAK3710::setKundenstellenIndex);
    connect(m_verteilerstellen, &QComboBox::activated, m_form.data(),
            &frmSettingZEMAK3710::setVerteilerstellenIndex);
    return m_aufteilung;
}

void ZemakEinstellungAnsicht::anzeigen() {
    if (!m_form)
        return;
    m_gerät->setText(m_form->gerät());
    m_serienNr->setText(m_form->serienNr());
    m_prüfgerätZeit->setText(m_form->prüfgerätZeit());
    m_pcZeit->setText(m_form->pcZeit());
    m_sync->setEnabled(m_form->verbunden());
    m_löschen->setEnabled(m_form->verbunden());
    m_aufteilung->setVisible(m_form->aufteilungSichtbar());
    m_codeSplitting->setChecked(m_form->codeSplitting());
    m_kundenstellen->setEnabled(m_form->codeSplitting());
    m_verteilerstellen->setEnabled(m_form->codeSplitting());
}

void ZemakEinstellungAnsicht::kennungMarkieren() {
    if (!m_form)
        return;
    m_kennung->setText(m_form->kennungstext());
    m_kennung->selectAll();
    m_kennung->setFocus();
}

} // namespace vemo
