#include "links/KontalexAnsicht.h"

#include "links/Kontalex.h"
#include "platform/Dialogtasten.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace vemo {
namespace {

// Picture1: the bar filled to the share done, the whole percent centred over it.
class Fortschrittsbalken : public QWidget {
public:
    Fortschrittsbalken(const Kontalex& dialog, QWidget* eltern) : QWidget(eltern), m_dialog(dialog) {
        setObjectName("Picture1");
        setMinimumSize(260, 22);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        const QRect rahmen = rect().adjusted(0, 0, -1, -1);
        p.fillRect(rahmen, Qt::white);
        const int prozent = std::clamp(m_dialog.prozent(), 0, 100);
        p.fillRect(QRect(0, 0, width() * prozent / 100, height()), QColor(0, 0, 160));
        p.setPen(Qt::darkGray);
        p.drawRect(rahmen);
        p.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
        p.setPen(Qt::white);
        p.drawText(rect(), Qt::AlignCenter, QString::number(prozent) + "%");
    }

private:
    const Kontalex& m_dialog;
};

QLabel* beschriftung(const QString& name, const QString& text, QWidget* eltern) {
    auto* l = new QLabel(text, eltern);
    l->setObjectName(name);
    return l;
}

} // namespace

KontalexAnsicht::KontalexAnsicht(Kontalex& dialog, QWidget* eltern)
    : Abbruchfenster(
          dialog, [&dialog] { dialog.abbrechen(); }, eltern),
      m_dialog(&dialog), m_kennung(beschriftung("Label1", {}, this)),
      m_zustand(beschriftung("Label9", {}, this)), m_sekunden(beschriftung("Label6", {}, this)),
      m_block(beschriftung("Label3", {}, this)), m_balken(new Fortschrittsbalken(dialog, this)),
      m_abbrechen(new QPushButton(dialog.abbrechenText(), this)) {
    setObjectName("Kontalex");
    setWindowTitle(dialog.titel());
    m_abbrechen->setObjectName("Command1");
    QFont fett = m_zustand->font();
    fett.setBold(true);
    m_zustand->setFont(fett);

    auto* werte = new QGridLayout;
    werte->addWidget(beschriftung("Label2", dialog.baudrateText(), this), 0, 0);
    werte->addWidget(m_kennung, 0, 1);
    werte->addWidget(beschriftung("Label4", dialog.messungenText(), this), 1, 0);
    werte->addWidget(m_block, 1, 1);
    werte->addWidget(beschriftung("Label5", dialog.abbruchInText(), this), 2, 0);
    werte->addWidget(m_sekunden, 2, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_zustand);
    layout->addLayout(werte);
    layout->addWidget(m_balken);
    layout->addWidget(m_abbrechen);

    connect(m_abbrechen, &QPushButton::clicked, &dialog, &Kontalex::abbrechen);
    dialogtastenSetzen(*this, nullptr, m_abbrechen);
    connect(&dialog, &Kontalex::aktualisiert, this, &KontalexAnsicht::anzeigen);
    anzeigen();
}

QDialog* KontalexAnsicht::erstellen(DialogController& controller, QWidget* eltern) {
    return new KontalexAnsicht(static_cast<Kontalex&>(controller), eltern);
}

void KontalexAnsicht::anzeigen() {
    if (!m_dialog)
        return;
    m_kennung->setText(m_dialog->kennung());
    m_zustand->setText(m_dialog->zustand());
    m_sekunden->setText(m_dialog->sekunden());
    m_block->setText(m_dialog->blocknummer());
    m_balken->update();
}

// While the transfer runs the window goes only with it: closing it by its frame or with Escape is
// the abort button.
} // namespace vemo
