#pragma once

#include "grid/EinleseDatenController.h"

#include <QDialog>
#include <array>

class QComboBox;
class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;
class QTableView;

namespace vemo {

class EinleseGridModell;

// The window of the read-in form: the grid with its combo box and context menu, the buttons, the
// progress bar and the labels. It shows the controller's state and passes on clicks and keys.
class EinleseDatenAnsicht : public QDialog {
    Q_OBJECT
public:
    EinleseDatenAnsicht(EinleseDatenController& formular, QWidget* eltern = nullptr);

    QTableView* tabelle() const { return m_tabelle; }
    QComboBox* comboEdit() const { return m_combo; }
    QMenu* menue() const { return m_menü; }

    void reject() override; // Escape and the window's close box

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void aufbauen();
    void verbinden();
    void zeigen();
    void gridZeigen();
    void auswahlZeigen();
    void comboZeigen();
    std::array<int, EinleseGrid::Cols> natürlicheBreiten() const;
    void spaltenVerteilen();
    void anpassen();
    void auswahlGeaendert();
    bool gridEreignis(QEvent* e);
    bool mausEreignis(QEvent* e);
    bool comboEreignis(QEvent* e);

    EinleseDatenController& m_formular;
    EinleseGridModell* m_modell = nullptr;
    QTableView* m_tabelle = nullptr;
    QComboBox* m_combo = nullptr;
    QMenu* m_menü = nullptr;
    QAction* m_mnuZuordnung = nullptr;
    QAction* m_mnuLöschen = nullptr;
    QPushButton* m_übernehmen = nullptr;
    QPushButton* m_comLöschen = nullptr;
    QPushButton* m_schließen = nullptr;
    QPushButton* m_editResults = nullptr;
    QProgressBar* m_fortschritt = nullptr;
    QLabel* m_anzahlZeilen = nullptr;
    QLabel* m_hilfetext = nullptr;
    bool m_abgleich = false;          // the view is being brought in line with the controller
    bool m_listeGezeigt = false;      // the combo's list was dropped down for this opening
    bool m_auswahlDerTabelle = false; // the controller follows a selection made in the table
};

// The view of an EinleseDatenController, for the table of views.
QDialog* einleseDatenAnsicht(DialogController& formular, QWidget* eltern);

} // namespace vemo
