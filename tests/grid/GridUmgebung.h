#pragma once

#include "grid/EinleseDatenController.h"
#include "support/Testumgebung.h"

#include <QString>
#include <memory>

namespace vemo::test {

// A read-in row as a parser would leave it; keys 0 until assigned.
struct Einlesezeile {
    int messungID = 0;
    int geräteID = 1;
    QString kundeNr{};
    QString anlageNr{};
    QString verteilerNr{};
    QString stromkreisNr{};
    QString datum{};
    QString uhrzeit{};
    int kundeID = 0;
    int anlageID = 0;
    int prüfungID = 0;
    int verteilerID = 0;
    int stromkreisID = 0;
};

// The demo database (customers with Nummernkreis 12, 34, 56; plants 001 and 002 of customer 1;
// inspection 1 of plant 1 with board 001 and circuits 001 and 002) and read-in rows written with
// SQL.
class GridUmgebung : public Testumgebung {
protected:
    void SetUp() override;

    void gerät(int geräteID, const QString& name);
    void zeile(const Einlesezeile& z);
    // A key or number field of the read-in row with this MessungID.
    QString feld(int messungID, const QString& name) const;
    std::unique_ptr<EinleseDatenController> formular();

    // Text and state of a grid cell.
    static QString text(const EinleseDatenController& f, int zeile, int spalte);
    static Zellzustand zustand(const EinleseDatenController& f, int zeile, int spalte);
};

} // namespace vemo::test
