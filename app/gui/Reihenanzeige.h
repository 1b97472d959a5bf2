#pragma once

#include <QVariant>
#include <QWidget>

class QLabel;

namespace vemo {
class Reihendiagramm;
}

// The logger series of an inspection in the overview: its chart over time with the voltage, and
// the highest and lowest value of its head. Hidden for an inspection that holds none.
class Reihenanzeige : public QWidget {
    Q_OBJECT
public:
    explicit Reihenanzeige(QWidget* eltern = nullptr);

    void prüfungZeigen(const QVariant& prüfungID);

private:
    QLabel* m_kopf;
    vemo::Reihendiagramm* m_diagramm;
};
