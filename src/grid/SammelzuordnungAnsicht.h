#pragma once

#include <QDialog>
#include <QPointer>

class QComboBox;
class QPushButton;

namespace vemo {

class DialogController;
class frmZuordnen;
struct Zuordnungsliste;

// The window of the bulk assignment: three combo boxes under a frame, and the button Weiter.
class SammelzuordnungAnsicht : public QDialog {
    Q_OBJECT
public:
    SammelzuordnungAnsicht(frmZuordnen& form, QWidget* eltern);

    static QDialog* erstellen(DialogController& controller, QWidget* eltern);

private:
    void anzeigen();
    static void comboZeigen(QComboBox* combo, const Zuordnungsliste& liste);

    QPointer<frmZuordnen> m_form;
    QComboBox* m_kunde;
    QComboBox* m_anlage;
    QComboBox* m_prüfung;
    QPushButton* m_weiter;
};

} // namespace vemo
