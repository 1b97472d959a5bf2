#pragma once

#include <QWidget>

class QTreeWidget;
class QTreeWidgetItem;
class QTableWidget;
class QLabel;
class Reihenanzeige;

// A read-only view of what the take-over produced: customers, plants, inspections, boards and
// circuits as a tree, and the measurement rows of the chosen circuit with their limits beside them.
class Uebersicht : public QWidget {
    Q_OBJECT
public:
    explicit Uebersicht(QWidget* eltern = nullptr);
    void aktualisieren();
    void beschriften();

private:
    void zweigFüllen(QTreeWidgetItem* knoten);
    void messungenZeigen(QTreeWidgetItem* knoten);

    QTreeWidget* m_baum;
    QTableWidget* m_messungen;
    QLabel* m_kopf;
    Reihenanzeige* m_reihe;
};
