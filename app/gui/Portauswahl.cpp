#include "Portauswahl.h"

#include "core/CommPortAuswahl.h"
#include "core/ModulState.h"
#include "links/Geraetesuche.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <optional>

using namespace vemo;

Portauswahl::Portauswahl(QWidget* parent)
    : QWidget(parent), m_liste(new QComboBox), m_suchen(new QPushButton("Suchen")) {
    m_liste->setEditable(true);
    m_liste->setInsertPolicy(QComboBox::NoInsert);
    m_liste->setToolTip("1 = COM1 = /dev/ttyS0; a device path such as /dev/pts/3 is used as it is");
    m_suchen->setObjectName("PortSuchen");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_liste, 1);
    layout->addWidget(m_suchen);
    connect(m_liste, &QComboBox::activated, this, &Portauswahl::gewählt);
    connect(m_liste->lineEdit(), &QLineEdit::editingFinished, this, &Portauswahl::portGesetzt);
    connect(m_suchen, &QPushButton::clicked, this, &Portauswahl::suchen);
    anbieten(schnittstellen());
}

QString Portauswahl::text() const {
    return m_liste->currentText().trimmed();
}

void Portauswahl::setText(const QString& text) {
    m_liste->setEditText(text);
}

// The list shows each port's whole line; the field takes the device alone.
void Portauswahl::anbieten(const QList<Schnittstelle>& liste) {
    const QString gehalten = m_liste->currentText();
    m_liste->clear();
    for (const Schnittstelle& s : liste)
        m_liste->addItem(s.zeile(), s.gerät);
    setText(gehalten);
}

void Portauswahl::gewählt(int index) {
    setText(m_liste->itemData(index).toString());
    emit portGesetzt();
}

// Every port of the list, and the one typed when it is not among them.
QStringList Portauswahl::zuFragen() const {
    QStringList geräte;
    for (int i = 0; i < m_liste->count(); ++i)
        geräte << m_liste->itemData(i).toString();
    bool istNummer = false;
    const int nummer = text().toInt(&istNummer);
    const QString getippt = istNummer ? portGerät(nummer) : text();
    if (!getippt.isEmpty() && !geräte.contains(getippt))
        geräte << getippt;
    return geräte;
}

void Portauswahl::suchen() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QStringList zeilen;
    std::optional<Gerätefund> erster;
    for (const QString& gerät : zuFragen()) {
        const Gerätefund fund = gerätSuchen(gerät);
        zeilen << fund.zeile();
        if (fund.gefunden() && !erster)
            erster = fund;
    }
    QApplication::restoreOverrideCursor();
    if (erster) {
        setText(erster->port);
        emit instrumentGefunden(erster->typ);
        emit portGesetzt();
    }
    QMessageBox::information(this, xText("Suchen"),
                             zeilen.isEmpty() ? xText("Keine serielle Schnittstelle gefunden.")
                                              : zeilen.join('\n'));
}

void Portauswahl::beschriften() {
    m_suchen->setText(xText("Suchen"));
}
