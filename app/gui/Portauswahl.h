#pragma once

#include "platform/Schnittstellen.h"

#include <QWidget>

class QComboBox;
class QPushButton;

// The port field of the window program: a list of the computer's serial ports, each shown with its
// description and USB identity, in which a port number or any device path may be typed as well;
// beside it "Suchen" asks the ports which instrument answers there.
class Portauswahl : public QWidget {
    Q_OBJECT
public:
    explicit Portauswahl(QWidget* parent = nullptr);

    // What the field holds: a port number or a device path.
    QString text() const;
    void setText(const QString& text);
    // Offers these ports in the list; what the field holds stays, typed or chosen.
    void anbieten(const QList<vemo::Schnittstelle>& liste);
    // The button's text in the program's language.
    void beschriften();

signals: // without umlauts: the meta-object compiler reads none
    // The user has chosen a port from the list or typed one.
    void portGesetzt();
    // "Suchen" found an instrument of this device type code, and put its port into the field.
    void instrumentGefunden(int typ);

private:
    void gewählt(int index);
    QStringList zuFragen() const;
    void suchen();

    QComboBox* m_liste;
    QPushButton* m_suchen;
};
