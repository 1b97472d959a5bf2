#pragma once

#include <QDialog>
#include <QPointer>

class QLabel;
class QLineEdit;
class QPushButton;

namespace vemo {

class DialogController;
class FormImport;

// The window of the import dialog: the source path with its button, the progress of a run, and
// the buttons that start the import or close the dialog.
class FormImportAnsicht : public QDialog {
    Q_OBJECT
public:
    FormImportAnsicht(FormImport& form, QWidget* eltern);

    static QDialog* erstellen(DialogController& controller, QWidget* eltern);

private:
    void anzeigen();

    QPointer<FormImport> m_form;
    QLineEdit* m_datenquelle;
    QLabel* m_anzahl;
    QLabel* m_prozent;
    QPushButton* m_ändern;
    QPushButton* m_konvertieren;
    QPushButton* m_abbrechen;
};

} // namespace vemo
