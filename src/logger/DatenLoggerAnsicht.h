#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>

class QLineEdit;

namespace vemo {

class DatenLogger;
class DialogController;

// The window that asks for the start of a logger series: six two-digit fields, date and time.
class DatenLoggerAnsicht : public QDialog {
    Q_OBJECT
public:
    DatenLoggerAnsicht(DatenLogger& dialog, QWidget* eltern);

    static QDialog* erstellen(DialogController& controller, QWidget* eltern);

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;
    void reject() override;

private:
    void anzeigen();

    QPointer<DatenLogger> m_dialog;
    QList<QLineEdit*> m_felder;
};

} // namespace vemo
