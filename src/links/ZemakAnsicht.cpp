#include "links/ZemakAnsicht.h"

#include "links/ZemakDialog.h"
#include "platform/Dialogtasten.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace vemo {
namespace {

// The instrument with its three sockets empty and the leads laid aside: a measurement running
// during the transfer would disturb it.
QPixmap hinweisBild() {
    QPixmap bild(110, 150);
    bild.fill(Qt::transparent);
    QPainter p(&bild);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::darkGray, 2));
    p.setBrush(QColor(40, 110, 170));
    p.drawRoundedRect(QRectF(8, 8, 70, 120), 10, 10);
    p.setBrush(QColor(190, 215, 190));
    p.drawRect(QRectF(18, 20, 50, 30));
    p.setBrush(Qt::black);
    for (int buchse = 0; buchse < 3; ++buchse)
        p.drawEllipse(QRectF(17 + buchse * 19, 110, 11, 11));
    const QColor farben[] = {QColor(220, 40, 40), Qt::black, QColor(40, 160, 60)};
    for (int leitung = 0; leitung < 3; ++leitung) {
        p.setPen(QPen(farben[leitung], 3));
        QPainterPath kabel(QPointF(84 + leitung * 8, 60 + leitung * 6));
        kabel.cubicTo(QPointF(96 + leitung * 4, 100), QPointF(70, 130), QPointF(90 + leitung * 6, 146));
        p.drawPath(kabel);
    }
    return bild;
}

QGroupBox* rahmen(const QString& titel, const QString& name, QLabel* inhalt, QWidget* eltern) {
    auto* box = new QGroupBox(titel, eltern);
    box->setObjectName(name);
    auto* layout = new QVBoxLayout(box);
    inhalt->setWordWrap(true);
    layout->addWidget(inhalt);
    return box;
}

} // namespace

ZemakAnsicht::ZemakAnsicht(frmZEMAK& form, QWidget* eltern)
    : Abbruchfenster(
          form, [&form] { form.abbrechen(); }, eltern),
      m_form(&form), m_zustand(new QLabel(this)), m_hinweis(new QLabel(this)),
      m_balken(new QProgressBar(this)), m_prozent(new QLabel(this)) {
    setObjectName("frmZEMAK");
    setWindowTitle(form.titel());

    auto* bild = new QLabel(this);
    bild->setObjectName("Image1");
    bild->setPixmap(hinweisBild());
    m_zustand->setObjectName("LabGerätezustand");
    m_hinweis->setObjectName("LabHinweis");
    m_balken->setObjectName("Bar1");
    m_balken->setTextVisible(false);
    m_balken->setMinimum(0);
    m_prozent->setObjectName("labProzent");
    m_prozent->setMinimumWidth(m_prozent->fontMetrics().horizontalAdvance(" 100%") + 4);
    auto* abbrechen = new QPushButton(form.abbrechenText(), this);
    abbrechen->setObjectName("ComAbbruch");

    auto* balkenZeile = new QHBoxLayout;
    balkenZeile->addWidget(m_balken, 1);
    balkenZeile->addWidget(m_prozent);
    auto* rechts = new QVBoxLayout;
    rechts->addWidget(rahmen(form.zustandRahmen(), "FraZustand", m_zustand, this));
    rechts->addWidget(rahmen(form.hinweisRahmen(), "frmHinweis", m_hinweis, this));
    rechts->addLayout(balkenZeile);
    rechts->addWidget(abbrechen, 0, Qt::AlignRight);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(bild, 0, Qt::AlignTop);
    layout->addLayout(rechts, 1);
    resize(480, 250);

    connect(abbrechen, &QPushButton::clicked, &form, &frmZEMAK::abbrechen);
    dialogtastenSetzen(*this, nullptr, abbrechen);
    connect(&form, &frmZEMAK::aktualisiert, this, &ZemakAnsicht::anzeigen);
    anzeigen();
}

QDialog* ZemakAnsicht::erstellen(DialogController& controller, QWidget* eltern) {
    return new ZemakAnsicht(static_cast<frmZEMAK&>(controller), eltern);
}

void ZemakAnsicht::anzeigen() {
    if (!m_form)
        return;
    m_zustand->setText(m_form->gerätezustand());
    m_hinweis->setText(m_form->hinweis());
    m_balken->setMaximum(m_form->balkenMax());
    m_balken->setValue(m_form->balkenWert());
    m_prozent->setText(m_form->prozent());
}

// Closing the window by its frame or with Escape is the abort button.
} // namespace vemo
