#pragma once

#include "support/Testumgebung.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace vemo::test {

// A read-in value as a parser leaves it.
struct Quellzeile {
    QString funktion;
    QString wert;
    QString einheit;
};

// An inspection with one board and one circuit (key 400, no fuse type) that the run keys point
// at, and helpers to read in values and look at what the mapping made of them.
class Uebernahmeumgebung : public Testumgebung {
protected:
    void SetUp() override;

    // Stores the values of a read-in block, in order.
    void einlesen(const QList<Quellzeile>& zeilen, int messungID = 1) const;
    // Maps the block with the moment of the read-in row.
    void übernehmen(int messungID = 1) const;
    // A column of all measurement rows, in the order they were made.
    QStringList spalte(const QString& name) const;
    QStringList messIDs() const;
    // A column of the limit row of a measurement row.
    QString grenzwert(const QString& spalte, const QString& messID) const;
};

} // namespace vemo::test
