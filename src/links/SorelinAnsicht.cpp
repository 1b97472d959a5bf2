#include "links/SorelinAnsicht.h"

#include "links/SorelinUebertragung.h"
#include "platform/Dialogtasten.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>

namespace vemo {
namespace {

// The instrument with its send key, and the arrow of what it sends.
QPixmap hinweisBild() {
    QPixmap bild(96, 120);
    bild.fill(Qt::transparent);
    QPainter p(&bild);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::darkGray, 2));
    p.setBrush(QColor(40, 110, 170));
    p.drawRoundedRect(QRectF(8, 8, 64, 104), 8, 8);
    p.setBrush(QColor(200, 225, 200));
    p.drawRect(QRectF(16, 18, 48, 28));
    p.setBrush(QColor(240, 160, 30));
    p.drawEllipse(QRectF(28, 70, 24, 24));
    p.setPen(QPen(Qt::black, 3));
    p.drawLine(QPointF(74, 40), QPointF(92, 40));
    p.drawLine(QPointF(86, 34), QPointF(92, 40));
    p.drawLine(QPointF(86, 46), QPointF(92, 40));
    return bild;
}

} // namespace

SorelinAnsicht::SorelinAnsicht(frmSorelin& form, QWidget* eltern)
    : Abbruchfenster(
          form, [&form] { form.abbrechen(); }, eltern),
      m_form(&form), m_sendText(new QLabel(this)), m_balken(new QProgressBar(this)),
      m_prozent(new QLabel(this)), m_abbrechen(new QPushButton(form.abbrechenText(), this)) {
    setObjectName("frmSorelin");
    setWindowTitle(form.titel());

    auto* bild = new QLabel(this);
    bild->setObjectName("Picture1");
    bild->setPixmap(hinweisBild());
    m_sendText->setObjectName("labSendText");
    m_sendText->setMinimumWidth(260);
    // The prompt blinks by turning its visibility over; it keeps its place meanwhile.
    QSizePolicy platz = m_sendText->sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    m_sendText->setSizePolicy(platz);
    m_balken->setObjectName("Bar1");
    m_balken->setTextVisible(false);
    m_prozent->setObjectName("labProzent");
    m_prozent->setMinimumWidth(40);
    m_abbrechen->setObjectName("ComAbbruch");

    auto* layout = new QGridLayout(this);
    layout->addWidget(bild, 0, 0, 3, 1, Qt::AlignTop);
    layout->addWidget(m_sendText, 0, 1, 1, 2);
    layout->addWidget(m_balken, 1, 1);
    layout->addWidget(m_prozent, 1, 2);
    layout->addWidget(m_abbrechen, 2, 1, 1, 2);
    resize(420, 150);

    connect(m_abbrechen, &QPushButton::clicked, &form, &frmSorelin::abbrechen);
    dialogtastenSetzen(*this, nullptr, m_abbrechen);
    connect(&form, &frmSorelin::aktualisiert, this, &SorelinAnsicht::anzeigen);
    anzeigen();
}

QDialog* SorelinAnsicht::erstellen(DialogController& controller, QWidget* eltern) {
    return new SorelinAnsicht(static_cast<frmSorelin&>(controller), eltern);
}

void SorelinAnsicht::anzeigen() {
    if (!m_form)
        return;
    m_sendText->setText(m_form->sendText());
    m_sendText->setVisible(m_form->sendTextSichtbar());
    m_balken->setRange(m_form->fortschrittMin(), m_form->fortschrittMax());
    m_balken->setValue(m_form->fortschrittWert());
    m_prozent->setText(m_form->prozentText());
}

// Closing the window by its frame or with Escape is the abort button: the dialog goes with its
// transfer.
} // namespace vemo
