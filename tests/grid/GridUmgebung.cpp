#include "GridUmgebung.h"

namespace vemo::test {

namespace {
QString zitat(const QString& s) {
    return "'" + QString(s).replace("'", "''") + "'";
}
} // namespace

void GridUmgebung::SetUp() {
    Testumgebung::SetUp();
    neueDatenbank(true);
}

void GridUmgebung::gerät(int geräteID, const QString& name) {
    sql(QString("INSERT INTO \"0100_EinleseGeräteDaten\" (\"GeräteID\", \"PrüfgerätName\", Seriennummer) "
                "VALUES (%1, %2, 'S%1');")
            .arg(geräteID)
            .arg(zitat(name)));
}

void GridUmgebung::zeile(const Einlesezeile& z) {
    sql(QString("INSERT INTO \"0100_EinleseDaten\" (MessungID, \"GeräteID\", KundeNr, AnlageNr, VerteilerNr, "
                "StromkreisNr, Datum, Uhrzeit, KundeID, AnlageID, \"PrüfungID\", VerteilerID, StromkreisID) "
                "VALUES (%1, %2, %3, %4, %5, %6, %7, %8, %9, %10, %11, %12, %13);")
            .arg(z.messungID)
            .arg(z.geräteID)
            .arg(zitat(z.kundeNr), zitat(z.anlageNr), zitat(z.verteilerNr), zitat(z.stromkreisNr),
                 zitat(z.datum), zitat(z.uhrzeit))
            .arg(z.kundeID)
            .arg(z.anlageID)
            .arg(z.prüfungID)
            .arg(z.verteilerID)
            .arg(z.stromkreisID));
}

QString GridUmgebung::feld(int messungID, const QString& name) const {
    return wert("SELECT " + name + " FROM 0100_EinleseDaten WHERE MessungID = " + QString::number(messungID));
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
