#pragma once

#include <QDialog>
#include <QPointer>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace vemo {

class DialogController;
class Form2;

// The window of the reception's wait dialog: a hint picture, the blinking hint, the tail of what
// has come, and the abort button.
class Form2Ansicht : public QDialog {
    Q_OBJECT
public:
    Form2Ansicht(Form2& form, QWidget* eltern);

    static QDialog* erstellen(DialogController& controller, QWidget* eltern);

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;
    void changeEvent(QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void reject() override;

private:
    void anzeigen();
    void nachVorne();

    QPointer<Form2> m_form;
    QLabel* m_hinweis;
    QPlainTextEdit* m_text;
    QPushButton* m_abbrechen;
};

} // namespace vemo
