#pragma once

#include <QDialog>
#include <QPointer>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace vemo {

class DialogController;
class Reihendiagramm;
class Zuordnen;

// The window of the data pool: the boards and the assignment options of a plain dump, or the chart
// of a logger series or an RCD analysis with the captions of its head.
class ZuordnenAnsicht : public QDialog {
    Q_OBJECT
public:
    ZuordnenAnsicht(Zuordnen& pool, QWidget* eltern);

    static QDialog* erstellen(DialogController& controller, QWidget* eltern);

protected:
    void reject() override;

private:
    QWidget* zuordnungsteil();
    QWidget* diagrammteil();
    void anzeigen();
    void beschriftungenZeigen();

    QPointer<Zuordnen> m_pool;
    QWidget* m_zuordnung;
    QWidget* m_diagrammteil;
    QLabel* m_listenÜberschrift;
    QListWidget* m_liste;
    QCheckBox* m_nurHauptverteiler;
    QGroupBox* m_verteiler;
    QLineEdit* m_text9;
    QGroupBox* m_wie;
    QRadioButton* m_alle;
    QRadioButton* m_bestimmte;
    Reihendiagramm* m_diagramm;
    QList<QLabel*> m_werte;
    QList<QLabel*> m_namen;
    QPushButton* m_startzeit;
};

} // namespace vemo
