#pragma once

#include "platform/Dialog.h"

#include <QString>
#include <QStringList>

namespace vemo {

// The dialog that teaches 0100_TeilFunktion a function name it does not know: the user picks the
// column of 0100_Messung the name's values go to, or one of the two reserved choices.
class frmTeilFunktion : public DialogController {
    Q_OBJECT
public:
    // Fills the choices: "keine***", "mitCase***", then the columns of 0100_Messung in table order.
    explicit frmTeilFunktion(QObject* parent = nullptr);

    QString Caption() const;
    const QStringList& Combo1() const { return m_auswahl; }
    QString Combo1Text() const { return m_gewählt; }
    void setCombo1Text(const QString& spalte) { m_gewählt = spalte; }
    QString TeilFunktion() const { return m_teilFunktion; }

    // Shows the dialog for the unknown name and returns when it is closed.
    void ShowStart(const QString& teilFunktion);
    // Enters the name with the chosen column, and closes.
    void Command1();

private:
    QStringList m_auswahl;
    QString m_gewählt;
    QString m_teilFunktion;
};

} // namespace vemo
