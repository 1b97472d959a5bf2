#include "grid/EinleseDatenAnsicht.h"

#include "grid/EinleseGridModell.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>
#include <numeric>

namespace vemo {

namespace {

constexpr int TwipsJePixel = 15;
constexpr int MindestZeilenhöhe = 280; // twips
constexpr int SichtbareZeilen = 14;

int pixel(int twips) {
    return twips / TwipsJePixel;
}

// The key codes the form's logic knows, for the keys that mean something to the combo box.
int tastenCode(int qtTaste) {
    switch (qtTaste) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Up:
        return 38;
    case Qt::Key_Down:
        return 40;
    default:
        return 0;
    }
}

} // namespace

EinleseDatenAnsicht::EinleseDatenAnsicht(EinleseDatenController& formular, QWidget* eltern)
    : QDialog(eltern), m_formular(formular) {
    aufbauen();
    verbinden();
    zeigen();
    anpassen();
}

void EinleseDatenAnsicht::aufbauen() {
    const Beschriftungen& t = m_formular.beschriftungen();
    setWindowTitle(t.titel);

    m_modell = new EinleseGridModell(m_formular, this);
    m_tabelle = new QTableView(this);
    m_tabelle->setObjectName("EinleseGrid");
    m_tabelle->setModel(m_modell);
    m_tabelle->setSelectionMode(QAbstractItemView::ContiguousSelection);
    m_tabelle->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_tabelle->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tabelle->verticalHeader()->hide();
    m_tabelle->verticalHeader()->setMinimumSectionSize(pixel(MindestZeilenhöhe));
    m_tabelle->verticalHeader()->setDefaultSectionSize(
        std::max(pixel(MindestZeilenhöhe), m_tabelle->fontMetrics().height() + 6));
    m_tabelle->horizontalHeader()->setHighlightSections(false);
    m_tabelle->setWordWrap(false);
    m_combo = new QComboBox(m_tabelle->viewport());
    m_combo->setObjectName("ComboEdit");
    m_combo->setEditable(true);
    m_combo->setInsertPolicy(QComboBox::NoInsert);
    m_combo->setMaxVisibleItems(20);
    m_combo->hide();
    m_combo->installEventFilter(this);
    m_combo->lineEdit()->installEventFilter(this);
    m_tabelle->installEventFilter(this);
    m_tabelle->viewport()->installEventFilter(this);

    m_menü = new QMenu(t.menü, this);
    m_menü->setObjectName("mnuBearbeiten");
    m_mnuZuordnung = m_menü->addAction(t.zuordnung);
    m_mnuZuordnung->setObjectName("mnuZuordnung");
    m_menü->addSeparator()->setObjectName("mnuTrennung");
    m_mnuLöschen = m_menü->addAction(t.menüLöschen);
    m_mnuLöschen->setObjectName("mnuLoeschen");

    const auto knopf = [this](const QString& text, const char* name) {
        auto* k = new QPushButton(text, this);
        k->setObjectName(name);
        k->setAutoDefault(false);
        return k;
    };
    m_übernehmen = knopf(t.übernehmen, "Uebernehmen");
    m_comLöschen = knopf(t.löschen, "ComLoeschen");
    m_editResults = knopf(t.editResults, "EditResults");
    m_schließen = knopf(t.schließen, "Schliessen");

    m_fortschritt = new QProgressBar(this);
    m_fortschritt->setObjectName("fortschritt");
    m_anzahlZeilen = new QLabel(this);
    m_anzahlZeilen->setObjectName("AnzahlZeilen");
    m_hilfetext = new QLabel(t.hilfetext, this);
    m_hilfetext->setObjectName("Hilfetext");
    m_hilfetext->setWordWrap(true);

    auto* zeile = new QHBoxLayout;
    zeile->addWidget(m_anzahlZeilen);
    zeile->addWidget(m_fortschritt, 1);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addWidget(m_übernehmen);
    knöpfe->addWidget(m_comLöschen);
    knöpfe->addWidget(m_editResults);
    knöpfe->addStretch(1);
    knöpfe->addWidget(m_schließen);
    auto* spalte = new QVBoxLayout(this);
    spalte->addWidget(m_tabelle, 1);
    spalte->addLayout(zeile);
    spalte->addWidget(m_hilfetext);
    spalte->addLayout(knöpfe);
}

void EinleseDatenAnsicht::verbinden() {
    EinleseDatenController& f = m_formular;
    connect(&f, &DialogController::aktualisiert, this, &EinleseDatenAnsicht::zeigen);
    connect(&f, &DialogController::geschlossen, this, [this](int ergebnis) { done(ergebnis); });
    connect(&f, &EinleseDatenController::gridFocusRequested, this, [this] { m_tabelle->setFocus(); });
    connect(&f, &EinleseDatenController::cellVisibleRequested, this,
            [this](int zeile, int spalte) { m_tabelle->scrollTo(m_modell->index(zeile - 1, spalte)); });
    connect(&f, &EinleseDatenController::popupRequested, this, [this] { m_menü->popup(QCursor::pos()); });

    connect(m_tabelle->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &EinleseDatenAnsicht::auswahlGeaendert);
    connect(m_tabelle->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &EinleseDatenAnsicht::auswahlGeaendert);
    connect(m_tabelle->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int spalte, int, int breite) {
                if (!m_abgleich)
                    m_formular.setColWidth(spalte, breite * TwipsJePixel);
            });
    for (QScrollBar* leiste : {m_tabelle->horizontalScrollBar(), m_tabelle->verticalScrollBar()})
        connect(leiste, &QScrollBar::valueChanged, this, [this] { m_formular.gridFokus(); });

    connect(m_combo, &QComboBox::activated, this, [this](int index) { m_formular.comboKlick(index); });
    connect(m_combo->lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& t) { m_formular.comboText(t); });

    connect(m_mnuZuordnung, &QAction::triggered, &f, &EinleseDatenController::mnuZuordnungKlick);
    connect(m_mnuLöschen, &QAction::triggered, &f, &EinleseDatenController::löschenKlick);
    connect(m_comLöschen, &QPushButton::clicked, &f, &EinleseDatenController::löschenKlick);
    connect(m_übernehmen, &QPushButton::clicked, &f, &EinleseDatenController::übernehmenKlick);
    connect(m_editResults, &QPushButton::clicked, &f, &EinleseDatenController::editResultsKlick);
    connect(m_schließen, &QPushButton::clicked, &f, &EinleseDatenController::schließenKlick);
}

// Escape or the window's close box unload the form; a window whose form was never shown as a
// dialog closes all the same.
void EinleseDatenAnsicht::reject() {
    m_formular.formTaste(27);
    if (!m_formular.istOffen())
        QDialog::reject();
}

// ---- showing the controller's state

void EinleseDatenAnsicht::zeigen() {
    const EinleseGrid& g = m_formular.grid();
    if (!g.Redraw)
        return;
    if (!m_auswahlDerTabelle)
        gridZeigen();

    const Schaltflächen& k = m_formular.schaltflächen();
    m_übernehmen->setEnabled(k.übernehmen);
    m_comLöschen->setEnabled(k.löschen);
    m_mnuLöschen->setEnabled(k.löschen);
    m_mnuZuordnung->setEnabled(k.zuordnung);
    m_schließen->setEnabled(k.schließen);
    m_editResults->setEnabled(k.editResults);
    m_editResults->setVisible(k.editResultsSichtbar);

    const Fortschritt& p = m_formular.fortschritt();
    m_fortschritt->setRange(p.Min, p.Max);
    m_fortschritt->setValue(p.Value);
    m_fortschritt->setVisible(p.sichtbar);
    m_anzahlZeilen->setText(m_formular.anzahlZeilen());
    comboZeigen();
}

void EinleseDatenAnsicht::gridZeigen() {
    const EinleseGrid& g = m_formular.grid();
    m_abgleich = true;
    m_modell->neuLaden();
    for (int spalte = 0; spalte < EinleseGrid::Cols; ++spalte)
        m_tabelle->setColumnHidden(spalte, g.ColWidth(spalte) == 0);
    spaltenVerteilen();
    auswahlZeigen();
    m_abgleich = false;
}

// Each column as wide as its widest text, and at least as wide as the user left it; what room
// the grid has beyond that goes to the columns of customer to circuit, which hold the names.
std::array<int, EinleseGrid::Cols> EinleseDatenAnsicht::natürlicheBreiten() const {
    std::array<int, EinleseGrid::Cols> breite{};
    for (int spalte = 0; spalte < EinleseGrid::Cols; ++spalte)
        if (!m_tabelle->isColumnHidden(spalte))
            breite[size_t(spalte)] =
                std::max({pixel(m_formular.grid().ColWidth(spalte)),
                          static_cast<const QAbstractItemView*>(m_tabelle)->sizeHintForColumn(spalte),
                          m_tabelle->horizontalHeader()->sectionSizeHint(spalte)});
    return breite;
}

void EinleseDatenAnsicht::spaltenVerteilen() {
    const QScopedValueRollback abgleich(m_abgleich, true);
    std::array<int, EinleseGrid::Cols> breite = natürlicheBreiten();
    int namensspalten = 0;
    for (int spalte = 1; spalte <= 5; ++spalte)
        namensspalten += m_tabelle->isColumnHidden(spalte) ? 0 : 1;
    const int platz = m_tabelle->viewport()->width();
    int rest = platz - std::accumulate(breite.begin(), breite.end(), 0);
    for (int spalte = 1; spalte <= 5 && rest > 0 && namensspalten > 0; ++spalte) {
        if (m_tabelle->isColumnHidden(spalte))
            continue;
        const int anteil = rest / namensspalten--;
        breite[size_t(spalte)] += anteil;
        rest -= anteil;
    }
    for (int spalte = 0; spalte < EinleseGrid::Cols; ++spalte)
        if (breite[size_t(spalte)] > 0)
            m_tabelle->setColumnWidth(spalte, breite[size_t(spalte)]);
}

void EinleseDatenAnsicht::auswahlZeigen() {
    const Auswahl& a = m_formular.grid().auswahl;
    QItemSelectionModel* auswahl = m_tabelle->selectionModel();
    if (a.ersteZeile() < 1 || m_modell->rowCount() == 0) {
        auswahl->clearSelection();
        return;
    }
    const int letzte = std::min(a.letzteZeile(), m_modell->rowCount()) - 1;
    const QModelIndex von = m_modell->index(a.ersteZeile() - 1, std::min(a.Col, a.ColSel));
    const QModelIndex bis = m_modell->index(letzte, std::max(a.Col, a.ColSel));
    auswahl->setCurrentIndex(m_modell->index(a.Row - 1, a.Col), QItemSelectionModel::NoUpdate);
    auswahl->select(QItemSelection(von, bis), QItemSelectionModel::ClearAndSelect);
}

void EinleseDatenAnsicht::comboZeigen() {
    const ComboEdit& c = m_formular.combo();
    if (!c.sichtbar) {
        m_listeGezeigt = false;
        if (m_combo->isVisible()) {
            m_combo->hidePopup();
            m_combo->hide();
        }
        return;
    }
    const QSignalBlocker sperre(m_combo);
    m_combo->clear();
    for (const ComboEintrag& e : c.einträge)
        m_combo->addItem(e.text, e.schlüssel);
    m_combo->setCurrentIndex(c.listIndex);
    m_combo->setEditText(c.text);

    // Over the cell, a little inside its edges.
    const QRect zelle =
        m_tabelle->visualRect(m_modell->index(m_formular.editRow() - 1, m_formular.editCol()));
    const int breite = m_tabelle->columnWidth(m_formular.editCol()) - pixel(8);
    m_combo->setGeometry(zelle.left() + pixel(30), zelle.top(), std::max(breite, 40),
                         m_combo->sizeHint().height());
    if (!m_combo->isVisible()) {
        m_combo->show();
        m_combo->setFocus();
    }
    if (c.listeOffen && !m_listeGezeigt) {
        m_listeGezeigt = true;
        m_combo->showPopup();
    }
}

// A size that shows every column and a screenful of rows, within the screen; the grid keeps room
// for a few rows when the window is made smaller.
void EinleseDatenAnsicht::anpassen() {
    const int rahmen = 2 * m_tabelle->frameWidth();
    const auto höheFür = [&](int zeilen) {
        return rahmen + m_tabelle->horizontalHeader()->sizeHint().height() +
               zeilen * m_tabelle->verticalHeader()->defaultSectionSize() +
               m_tabelle->horizontalScrollBar()->sizeHint().height();
    };
    const auto spalten = natürlicheBreiten();
    const int breite = rahmen + m_tabelle->verticalScrollBar()->sizeHint().width() +
                       std::accumulate(spalten.begin(), spalten.end(), 0);
    m_tabelle->setMinimumSize(breite, höheFür(std::clamp(m_modell->rowCount(), 4, SichtbareZeilen)));
    QSize größe = sizeHint();
    m_tabelle->setMinimumSize(0, höheFür(4));
    if (const QScreen* s = screen())
        größe = größe.boundedTo(s->availableGeometry().size());
    resize(größe);
}

// ---- events of the widgets, passed on as the form's events

void EinleseDatenAnsicht::auswahlGeaendert() {
    if (m_abgleich)
        return;
    const QItemSelection s = m_tabelle->selectionModel()->selection();
    const QModelIndex aktuell = m_tabelle->selectionModel()->currentIndex();
    if (s.isEmpty() || !aktuell.isValid())
        return;
    const QItemSelectionRange& r = s.first();
    Auswahl a;
    a.RowSel = aktuell.row() + 1;
    a.ColSel = aktuell.column();
    a.Row = (aktuell.row() == r.top() ? r.bottom() : r.top()) + 1;
    a.Col = aktuell.column() == r.left() ? r.right() : r.left();
    // The table shows this selection already. Loading the grid again in the middle of the table's
    // own handling of a click would drop the cell being pressed, and the table would then select
    // from the last selection's anchor (after an assignment, the assigned cell) to the click.
    const QScopedValueRollback eigene(m_auswahlDerTabelle, true);
    m_formular.gridAuswahl(a);
}

bool EinleseDatenAnsicht::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt == m_combo || objekt == m_combo->lineEdit())
        return comboEreignis(ereignis) || QDialog::eventFilter(objekt, ereignis);
    if (objekt == m_tabelle->viewport()) {
        if (ereignis->type() == QEvent::Resize)
            spaltenVerteilen();
        return mausEreignis(ereignis) || QDialog::eventFilter(objekt, ereignis);
    }
    if (objekt == m_tabelle)
        return gridEreignis(ereignis) || QDialog::eventFilter(objekt, ereignis);
    return QDialog::eventFilter(objekt, ereignis);
}

bool EinleseDatenAnsicht::gridEreignis(QEvent* e) {
    switch (e->type()) {
    case QEvent::FocusIn:
        m_formular.gridFokus();
        return false;
    case QEvent::FocusOut:
        m_formular.gridFokusVerloren();
        return false;
    case QEvent::KeyPress: {
        const auto* k = static_cast<QKeyEvent*>(e);
        if (k->key() == Qt::Key_Escape) {
            m_formular.formTaste(27);
            return true;
        }
        const QString text = k->text();
        if (text.size() != 1 || k->key() == Qt::Key_Tab || text[0].unicode() > 255)
            return false;
        m_formular.gridTaste(text[0].unicode());
        return true;
    }
    default:
        return false;
    }
}

bool EinleseDatenAnsicht::mausEreignis(QEvent* e) {
    const auto typ = e->type();
    if (typ != QEvent::MouseButtonPress && typ != QEvent::MouseButtonRelease &&
        typ != QEvent::MouseButtonDblClick)
        return false;
    const auto* m = static_cast<QMouseEvent*>(e);
    const QModelIndex index = m_tabelle->indexAt(m->position().toPoint());
    const int zeile = index.isValid() ? index.row() + 1 : -1;
    const int spalte = index.isValid() ? index.column() : -1;
    const bool rechts = m->button() == Qt::RightButton;
    switch (typ) {
    case QEvent::MouseButtonPress:
        m_formular.gridMausRunter(zeile, spalte, rechts);
        return rechts; // the form itself decides what a right click selects
    case QEvent::MouseButtonRelease:
        m_formular.gridMausHoch(zeile, spalte, rechts);
        return rechts;
    default:
        if (m->button() == Qt::LeftButton)
            m_formular.gridDoppelklick();
        return true;
    }
}

bool EinleseDatenAnsicht::comboEreignis(QEvent* e) {
    switch (e->type()) {
    case QEvent::FocusIn:
        if (static_cast<QFocusEvent*>(e)->reason() != Qt::PopupFocusReason)
            m_formular.comboFokus();
        return false;
    case QEvent::FocusOut: {
        // The box loses the focus to another widget, not to its own list or its own text field.
        const auto grund = static_cast<QFocusEvent*>(e)->reason();
        QWidget* neu = QApplication::focusWidget();
        const bool eigenes = neu == m_combo || neu == m_combo->lineEdit() || m_combo->view()->isVisible();
        if (grund != Qt::PopupFocusReason && !eigenes && m_formular.combo().sichtbar)
            m_formular.comboFokusVerloren();
        return false;
    }
    case QEvent::KeyPress: {
        const int code = tastenCode(static_cast<QKeyEvent*>(e)->key());
        m_formular.comboTaste(code);
        return code != 0; // Enter, Escape and the arrows are the form's, not the box's
    }
    case QEvent::Wheel:
        return true; // turning the wheel over the box is no choice
    default:
        return false;
    }
}

QDialog* einleseDatenAnsicht(DialogController& formular, QWidget* eltern) {
    return new EinleseDatenAnsicht(static_cast<EinleseDatenController&>(formular), eltern);
}

} // namespace vemo
