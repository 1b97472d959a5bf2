#pragma once

#include <QObject>
#include <QString>

namespace vemo {

// The logic of a dialog: a QObject that uses QtCore only and runs its state machine. A view shows
// its state and forwards clicks and keys; the Ui decides whether there is a view at all.
class DialogController : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    bool istOffen() const { return m_offen; }
    int ergebnis() const { return m_ergebnis; }
    // Marks the dialog as shown; the Ui calls it.
    void geöffnet() { m_offen = true; }
    // Unloads the dialog; the view closes and a modal show returns.
    void schließen(int ergebnis = 0);

    // Signals keep to ASCII names: the meta-object compiler reads no other letters.
signals:
    void geschlossen(int ergebnis);
    // Something the view shows has changed.
    void aktualisiert();

private:
    bool m_offen = false;
    int m_ergebnis = 0;
};

} // namespace vemo
