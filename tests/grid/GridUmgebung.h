#pragma once

#include "grid/EinleseDatenController.h"
#include "support/Testumgebung.h"

#include <QString>
#include <memory>

namespace vemo::test {

// The demo database (customers with Nummernkreis 12, 34, 56; plants 001 and 002 of customer 1;
// inspection 1 of plant 1 with board 001 and circuits 001 and 002) and read-in rows written with
// SQL.
class GridUmgebung : public Testumgebung {
protected:
    void SetUp() override;

    void gerät(int geräteID, const QString& name);
    // A read-in row as a parser would leave it, its fields named: "MessungID=3, KundeNr=12,
    // AnlageID=1". Unnamed, the instrument is 1, the numbers are empty and the keys 0 until assigned.
    void eingelesen(const QString& felder);
    // A key or number field of the read-in row with this MessungID.
    QString feld(int messungID, const QString& name) const;
    // Its keys: "KundeID|AnlageID|PrüfungID|VerteilerID|StromkreisID".
    QString schlüssel(int messungID) const;
    std::unique_ptr<EinleseDatenController> formular();

    // Text and state of a grid cell.
    static QString text(const EinleseDatenController& f, int zeile, int spalte);
    static Zellzustand zustand(const EinleseDatenController& f, int zeile, int spalte);
    // The texts of a grid row's cells von to bis, joined by "|".
    static QString reihe(const EinleseDatenController& f, int zeile, int von, int bis);
    // The states of a grid row's cells 1 to 5, a letter each: "a" resolved, "n" to be created, "o"
    // open, "-" not filled.
    static QString zustände(const EinleseDatenController& f, int zeile);
};

} // namespace vemo::test
