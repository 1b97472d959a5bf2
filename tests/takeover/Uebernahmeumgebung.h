#pragma once

#include "support/Testumgebung.h"

#include <QString>
#include <QStringList>

namespace vemo::test {

// An inspection with one board and one circuit (key 400, no fuse type) that the run keys point
// at, and helpers to read in values and look at what the mapping made of them.
class Uebernahmeumgebung : public Testumgebung {
protected:
    void SetUp() override;

    // Stores the values of a read-in block, in order, each as a parser leaves it:
    // "Funktion|wert|Einheit".
    void einlesen(const QStringList& zeilen, int messungID = 1) const;
    // Maps the block with the moment of the read-in row.
    void übernehmen(int messungID = 1) const;
    // A column of all measurement rows, in the order they were made.
    QStringList spalte(const QString& name) const;
    QStringList messIDs() const;
    // The measurement rows in the order they were made, each as its columns joined by "|"
    // ("FIT|FIUB" gives "38|4,2").
    QStringList reihen(const QString& spalten) const;
    // A column of the limit row of a measurement row.
    QString grenzwert(const QString& spalte, const QString& messID) const;
    // Columns of the limit row of a measurement row, joined by "|".
    QString grenzwerte(const QString& spalten, const QString& messID) const;
    // Columns of the first row of a table that meets the condition, joined by "|".
    QString felder(const QString& tabelle, const QString& bedingung, const QString& spalten) const;
};

} // namespace vemo::test
