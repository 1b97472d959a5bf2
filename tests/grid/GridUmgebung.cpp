#include "GridUmgebung.h"

#include <QStringList>

namespace vemo::test {

void GridUmgebung::SetUp() {
    Testumgebung::SetUp();
    neueDatenbank(true);
}

void GridUmgebung::gerät(int geräteID, const QString& name) {
    ausführen("INSERT INTO 0100_EinleseGeräteDaten (GeräteID, PrüfgerätName, Seriennummer) VALUES (?, ?, ?)",
              {geräteID, name, "S" + QString::number(geräteID)});
}

void GridUmgebung::eingelesen(const QString& felder) {
    QStringList namen{"MessungID",    "GeräteID",    "KundeNr",     "AnlageNr", "VerteilerNr",
                      "StromkreisNr", "Datum",       "Uhrzeit",     "KundeID",  "AnlageID",
                      "PrüfungID",    "VerteilerID", "StromkreisID"};
    QVector<QVariant> werte{0, 1, "", "", "", "", "", "", 0, 0, 0, 0, 0};
    for (const QString& feld : felder.split(", ")) {
        const qsizetype gleich = feld.indexOf('=');
        const qsizetype i = namen.indexOf(feld.left(gleich));
        ASSERT_GE(i, 0) << feld.toStdString();
        werte[i] = feld.mid(gleich + 1);
    }
    ausführen("INSERT INTO 0100_EinleseDaten (" + namen.join(", ") + ") VALUES (?" +
                  QString(", ?").repeated(12) + ")",
              werte);
}

QString GridUmgebung::feld(int messungID, const QString& name) const {
    return wert("SELECT " + name + " FROM 0100_EinleseDaten WHERE MessungID = ?", {messungID});
}

QString GridUmgebung::schlüssel(int messungID) const {
    return zeile(
        "SELECT KundeID, AnlageID, PrüfungID, VerteilerID, StromkreisID FROM 0100_EinleseDaten WHERE "
        "MessungID = ?",
        {messungID});
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

QString GridUmgebung::reihe(const EinleseDatenController& f, int zeile, int von, int bis) {
    QStringList texte;
    for (int spalte = von; spalte <= bis; ++spalte)
        texte << text(f, zeile, spalte);
    return texte.join('|');
}

QString GridUmgebung::zustände(const EinleseDatenController& f, int zeile) {
    // A letter for each Zellzustand, in the order they are declared.
    QString buchstaben;
    for (int spalte = 1; spalte <= 5; ++spalte)
        buchstaben += QString("-ano").at(int(zustand(f, zeile, spalte)));
    return buchstaben;
}

} // namespace vemo::test
