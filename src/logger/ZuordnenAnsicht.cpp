#include "logger/ZuordnenAnsicht.h"

#include "core/ModulState.h"
#include "core/Worttabelle.h"
#include "logger/Reihendiagramm.h"
#include "logger/Zuordnen.h"
#include "platform/Dialogtasten.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vemo {
namespace {

// The captions of the logger's fields: the entry of the .MNU table, else our own words.
struct Feldname {
    int eintrag;
    const char* vorgabe;
    bool spannung; // ends in the kind of voltage measured
};
const Feldname Feldnamen[] = {
    {285, "Datum", false},         {286, "Uhrzeit", false},     {293, "Anzahl Messwerte", false},
    {294, "Intervall (s)", false}, {295, "Spannung max", true}, {296, "Spannung min", true},
};

QString feldname(const Feldname& f, const Zuordnen& pool) {
    const QString mnu = mnuText(f.eintrag);
    const QString name = mnu.isEmpty() ? xText(f.vorgabe) : mnu;
    return f.spannung ? name + pool.spannungsEndung() : name + ":";
}

} // namespace

ZuordnenAnsicht::ZuordnenAnsicht(Zuordnen& pool, QWidget* eltern) : QDialog(eltern), m_pool(&pool) {
    setObjectName("Zuordnen");
    setWindowTitle(pool.titel());
    m_zuordnung = zuordnungsteil();
    m_diagrammteil = diagrammteil();
    auto* knöpfe = new QDialogButtonBox;
    auto* speichern = knöpfe->addButton(xText("Übernehmen"), QDialogButtonBox::AcceptRole);
    speichern->setObjectName("Command5");
    auto* schließen = knöpfe->addButton(xText("Schließen"), QDialogButtonBox::RejectRole);
    schließen->setObjectName("Command4");
    connect(speichern, &QPushButton::clicked, &pool, &Zuordnen::command5);
    connect(schließen, &QPushButton::clicked, &pool, &Zuordnen::command4);
    dialogtastenSetzen(*this, speichern, nullptr); // reject() is the cancel button already
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_zuordnung);
    layout->addWidget(m_diagrammteil);
    layout->addWidget(knöpfe);
    connect(&pool, &DialogController::geschlossen, this, [this](int ergebnis) { done(ergebnis); });
    connect(&pool, &DialogController::aktualisiert, this, &ZuordnenAnsicht::anzeigen);
    anzeigen();
}

QDialog* ZuordnenAnsicht::erstellen(DialogController& controller, QWidget* eltern) {
    return new ZuordnenAnsicht(static_cast<Zuordnen&>(controller), eltern);
}

QWidget* ZuordnenAnsicht::zuordnungsteil() {
    auto* teil = new QWidget;
    m_listenÜberschrift = new QLabel;
    m_liste = new QListWidget;
    m_liste->setObjectName("List1");
    m_liste->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(m_liste, &QListWidget::currentRowChanged, m_pool, &Zuordnen::eintragWählen);
    m_nurHauptverteiler = new QCheckBox(xText("Es gibt nur ein Hauptverteiler"));
    m_nurHauptverteiler->setObjectName("Option3D1");
    connect(m_nurHauptverteiler, &QCheckBox::toggled, m_pool, &Zuordnen::nurHauptverteiler);
    m_verteiler = new QGroupBox;
    m_text9 = new QLineEdit;
    m_text9->setObjectName("Text9");
    m_text9->setMaxLength(3);
    connect(m_text9, &QLineEdit::editingFinished, this, [this] { m_pool->text9Verlassen(m_text9->text()); });
    auto* vl = new QFormLayout(m_verteiler);
    vl->addRow(xText("Verteiler") + ":", m_text9);
    m_wie = new QGroupBox;
    m_alle = new QRadioButton;
    m_alle->setObjectName("Option3D3");
    m_alle->setChecked(true);
    m_bestimmte = new QRadioButton;
    m_bestimmte->setObjectName("Option3D4");
    auto* wl = new QVBoxLayout(m_wie);
    wl->addWidget(m_alle);
    wl->addWidget(m_bestimmte);
    auto* l = new QVBoxLayout(teil);
    l->setContentsMargins(0, 0, 0, 0);
    l->addWidget(m_listenÜberschrift);
    l->addWidget(m_liste);
    l->addWidget(m_nurHauptverteiler);
    l->addWidget(m_verteiler);
    l->addWidget(m_wie);
    return teil;
}

QWidget* ZuordnenAnsicht::diagrammteil() {
    auto* teil = new QWidget;
    m_diagramm = new Reihendiagramm;
    auto* felder = new QFormLayout;
    for (int i = 0; i < int(std::size(Feldnamen)); ++i) {
        m_namen << new QLabel;
        m_werte << new QLabel;
        m_werte.back()->setObjectName(QString("Label%1").arg(i + 4));
        felder->addRow(m_namen.back(), m_werte.back());
    }
    m_startzeit = new QPushButton(xText("Beginn der Aufzeichnung") + "...");
    m_startzeit->setObjectName("Startzeit");
    connect(m_startzeit, &QPushButton::clicked, m_pool, &Zuordnen::startzeitFragen);
    auto* links = new QVBoxLayout;
    links->addLayout(felder);
    links->addWidget(m_startzeit);
    links->addStretch();
    auto* l = new QHBoxLayout(teil);
    l->setContentsMargins(0, 0, 0, 0);
    l->addLayout(links);
    l->addWidget(m_diagramm, 1);
    return teil;
}

void ZuordnenAnsicht::anzeigen() {
    if (!m_pool)
        return;
    const Zuordnen& p = *m_pool;
    m_zuordnung->setVisible(p.zeigtZuordnung());
    m_diagrammteil->setVisible(p.zeigtDiagramm());
    m_listenÜberschrift->setText(p.listenÜberschrift());
    m_listenÜberschrift->setVisible(!p.liste().isEmpty());
    m_liste->setVisible(!p.liste().isEmpty());
    if (m_liste->count() != p.liste().size()) {
        const QSignalBlocker still(m_liste);
        m_liste->clear();
        m_liste->addItems(p.liste());
    }
    {
        const QSignalBlocker still(m_liste);
        m_liste->setCurrentRow(p.gewählt());
    }
    m_verteiler->setVisible(p.andereVerteilerSichtbar());
    if (!m_text9->hasFocus())
        m_text9->setText(p.text9());
    m_wie->setTitle(p.überschrift());
    m_alle->setText(p.alleText());
    m_bestimmte->setText(p.bestimmteText());
    beschriftungenZeigen();
    m_diagramm->zeigen(p.diagramm());
}

void ZuordnenAnsicht::beschriftungenZeigen() {
    const Zuordnen& p = *m_pool;
    const Reihenkopf& k = p.kopf();
    const QString werte[] = {
        k.start.isValid() ? k.start.toString("dd.MM.yyyy") : QString(),
        k.start.isValid() ? k.start.toString("HH:mm:ss") : QString(),
        k.anzahl,
        k.intervall,
        k.maximum,
        k.minimum,
    };
    for (int i = 0; i < int(std::size(Feldnamen)); ++i) {
        m_namen[i]->setText(feldname(Feldnamen[i], p));
        m_werte[i]->setText(werte[i]);
    }
    m_startzeit->setVisible(p.modus() == "DATEN LOGGER");
}

// Escape and the window's close button act as the dialog's cancel button, whose closing of the
// dialog closes the window; a window whose dialog has closed already just goes.
void ZuordnenAnsicht::reject() {
    if (m_pool && m_pool->istOffen())
        m_pool->command4();
    else
        QDialog::reject();
}

} // namespace vemo
