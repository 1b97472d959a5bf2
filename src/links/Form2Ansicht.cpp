#include "links/Form2Ansicht.h"

#include "links/Form2.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vemo {
namespace {

// An instrument with its send key lit, and the cable to the computer.
QPixmap hinweisBild() {
    QPixmap bild(120, 150);
    bild.fill(Qt::transparent);
    QPainter p(&bild);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::darkGray, 2));
    p.setBrush(QColor(250, 200, 40));
    p.drawRoundedRect(QRectF(10, 10, 70, 125), 10, 10);
    p.setBrush(QColor(190, 215, 190));
    p.drawRect(QRectF(20, 22, 50, 32));
    p.setBrush(Qt::gray);
    for (int zeile = 0; zeile < 2; ++zeile)
        for (int spalte = 0; spalte < 3; ++spalte)
            p.drawEllipse(QRectF(20 + spalte * 18, 68 + zeile * 18, 12, 12));
    p.setBrush(QColor(220, 40, 40));
    p.drawRoundedRect(QRectF(22, 108, 46, 16), 4, 4);
    p.setPen(Qt::white);
    QFont schrift = p.font();
    schrift.setPixelSize(10);
    schrift.setBold(true);
    p.setFont(schrift);
    p.drawText(QRectF(22, 108, 46, 16), Qt::AlignCenter, "RS232");
    p.setPen(QPen(Qt::black, 3));
    p.setBrush(Qt::NoBrush);
    QPainterPath kabel(QPointF(80, 40));
    kabel.cubicTo(QPointF(110, 40), QPointF(95, 110), QPointF(112, 140));
    p.drawPath(kabel);
    return bild;
}

} // namespace

Form2Ansicht::Form2Ansicht(Form2& form, QWidget* eltern)
    : QDialog(eltern), m_form(&form), m_hinweis(new QLabel(this)), m_text(new QPlainTextEdit(this)),
      m_abbrechen(new QPushButton(form.abbrechenText(), this)) {
    setObjectName("Form2");
    setWindowTitle(form.titel());
    setModal(false);

    auto* bild = new QLabel(this);
    bild->setPixmap(hinweisBild());
    m_hinweis->setObjectName("labSendText");
    m_hinweis->setMinimumWidth(260);
    m_text->setObjectName("Text2");
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    m_text->installEventFilter(this);
    m_abbrechen->setObjectName("Command1");

    auto* rechts = new QVBoxLayout;
    rechts->addWidget(m_hinweis);
    rechts->addWidget(m_text, 1);
    rechts->addWidget(m_abbrechen);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(bild, 0, Qt::AlignTop);
    layout->addLayout(rechts, 1);
    resize(460, 240);

    connect(m_abbrechen, &QPushButton::clicked, &form, &Form2::abbrechen);
    connect(&form, &Form2::aktualisiert, this, &Form2Ansicht::anzeigen);
    connect(&form, &Form2::raiseRequested, this, &Form2Ansicht::nachVorne);
    anzeigen();
}

QDialog* Form2Ansicht::erstellen(DialogController& controller, QWidget* eltern) {
    return new Form2Ansicht(static_cast<Form2&>(controller), eltern);
}

void Form2Ansicht::anzeigen() {
    if (!m_form)
        return;
    m_hinweis->setText(m_form->hinweis());
    m_abbrechen->setEnabled(m_form->abbrechenAktiv());
    // The box shows lines as lines; the caret keeps its place counted without the CR of each end.
    QString text = m_form->text();
    const int crVorCaret = int(text.left(m_form->caret()).count('\r'));
    text.remove('\r');
    if (m_text->toPlainText() != text) {
        m_text->setPlainText(text);
        QTextCursor cursor = m_text->textCursor();
        cursor.setPosition(std::clamp(m_form->caret() - crVorCaret, 0, int(text.size())));
        m_text->setTextCursor(cursor);
    }
    if (m_form->sanduhr())
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

void Form2Ansicht::nachVorne() {
    raise();
    activateWindow();
}

bool Form2Ansicht::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt != m_text || ereignis->type() != QEvent::KeyPress || !m_form)
        return QDialog::eventFilter(objekt, ereignis);
    const auto* taste = static_cast<QKeyEvent*>(ereignis);
    if (taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter) {
        m_form->tasteGedrückt(Form2::Enter);
        return true;
    }
    // Typed characters are swallowed, so that nobody edits what came; moving about stays free.
    if (!taste->text().isEmpty() && taste->text()[0].isPrint())
        return !m_form->tasteGedrückt(taste->text()[0].unicode());
    return QDialog::eventFilter(objekt, ereignis);
}

void Form2Ansicht::changeEvent(QEvent* ereignis) {
    if (ereignis->type() == QEvent::ActivationChange && isActiveWindow() && m_form)
        m_form->aktiviert();
    QDialog::changeEvent(ereignis);
}

// While the reception runs the window goes only with it: closing it by its frame or with Escape
// is taken as the abort button.
void Form2Ansicht::closeEvent(QCloseEvent* ereignis) {
    if (m_form && m_form->istOffen()) {
        m_form->abbrechen();
        ereignis->ignore();
        return;
    }
    QDialog::closeEvent(ereignis);
}

void Form2Ansicht::reject() {
    if (m_form && m_form->istOffen()) {
        m_form->abbrechen();
        return;
    }
    QDialog::reject();
}

} // namespace vemo
