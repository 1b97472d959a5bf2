#pragma once

#include <QList>
#include <QVariant>
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
    static QList<QVariant> pfad(const QTreeWidgetItem* knoten);
    QTreeWidgetItem* knotenAuf(const QList<QVariant>& pfad) const;
    void neuAufbauen();
    void zweigFüllen(QTreeWidgetItem* knoten) const;
    void messungenZeigen(QTreeWidgetItem* knoten);

    QTreeWidget* m_baum;
    QTableWidget* m_messungen;
    QLabel* m_kopf;
    Reihenanzeige* m_reihe;
};
