#include "GridUmgebung.h"

namespace vemo::test {

void GridUmgebung::SetUp() {
    Testumgebung::SetUp();
    neueDatenbank(true);
}

void GridUmgebung::gerät(int geräteID, const QString& name) {
    ausführen("INSERT INTO 0100_EinleseGeräteDaten (GeräteID, PrüfgerätName, Seriennummer) VALUES (?, ?, ?)",
              {geräteID, name, "S" + QString::number(geräteID)});
}

void GridUmgebung::zeile(const Einlesezeile& z) {
    ausführen(
        "INSERT INTO 0100_EinleseDaten (MessungID, GeräteID, KundeNr, AnlageNr, VerteilerNr, StromkreisNr, "
        "Datum, Uhrzeit, KundeID, AnlageID, PrüfungID, VerteilerID, StromkreisID) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {z.messungID, z.geräteID, z.kundeNr, z.anlageNr, z.verteilerNr, z.stromkreisNr, z.datum, z.uhrzeit,
         z.kundeID, z.anlageID, z.prüfungID, z.verteilerID, z.stromkreisID});
}

QString GridUmgebung::feld(int messungID, const QString& name) const {
    return wert("SELECT " + name + " FROM 0100_EinleseDaten WHERE MessungID = ?", {messungID});
}

std::unique_ptr<EinleseDatenController> GridUmgebung::formular() {
    return std::make_unique<EinleseDatenController>();
}

QString GridUmgebung::text(const EinleseDatenController& f, int zeile, int spalte) {
    return f.grid().TextMatrix(zeile, spalte);
}

Zellzustand GridUmgebung::zustand(const EinleseDatenController& f, int zeile, int spalte) {
    return f.grid().zelle(zeile, spalte).zustand;
}

} // namespace vemo::test
