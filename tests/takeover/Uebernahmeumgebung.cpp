#include "Uebernahmeumgebung.h"

#include "core/Laufschluessel.h"
#include "store/Recordset.h"
#include "takeover/MesswertUebernehmen.h"

namespace vemo::test {

void Uebernahmeumgebung::SetUp() {
    Testumgebung::SetUp();
    sql(R"(INSERT INTO "0100_Prüfung" ("PrüfungID", AnlagenID) VALUES (200, 100);
           INSERT INTO "0100_Verteiler" (VerteilerID, "PrüfungID", Code) VALUES (300, 200, '001');
           INSERT INTO "0100_Stromkreis" (StromkreisID, VerteilerID, Code) VALUES (400, 300, '001');
           INSERT OR IGNORE INTO "0100_TeilFunktion" VALUES ('Ik', 'LoopIKRS', 'A');)");
    laufschlüssel() = {200, 200, 300, 400};
}

void Uebernahmeumgebung::einlesen(const QStringList& zeilen, int messungID) const {
    for (const QString& zeile : zeilen) {
        const QStringList teile = zeile.split('|');
        ausführen(
            "INSERT INTO 0100_EinleseMessDaten (MessungID, Funktion, wert, Einheit) VALUES (?, ?, ?, ?)",
            {messungID, teile.value(0), teile.value(1), teile.value(2)});
    }
}

void Uebernahmeumgebung::übernehmen(int messungID) const {
    MesswertÜbernehmen(messungID, "01.02.2024", "10:11:12");
}

QStringList Uebernahmeumgebung::spalte(const QString& name) const {
    QStringList werte;
    Recordset rs = modul().db.OpenRecordset("SELECT [" + name + "] FROM [0100_Messung] ORDER BY MessID");
    for (; !rs.Eof(); rs.MoveNext())
        werte << rs.Text(name);
    return werte;
}

// "A|B" as the select list "[A], [B]".
static QString auswahl(const QString& spalten) {
    return "[" + spalten.split('|').join("], [") + "]";
}

QStringList Uebernahmeumgebung::reihen(const QString& spalten) const {
    return zeilen("SELECT " + auswahl(spalten) + " FROM [0100_Messung] ORDER BY MessID");
}

QStringList Uebernahmeumgebung::messIDs() const {
    return spalte("MessID");
}

QString Uebernahmeumgebung::grenzwert(const QString& spalte, const QString& messID) const {
    return wert("SELECT [" + spalte + "] FROM [0100_Grenzwert] WHERE MessID = ?", {messID});
}

QString Uebernahmeumgebung::grenzwerte(const QString& spalten, const QString& messID) const {
    return felder("0100_Grenzwert", "MessID = " + messID, spalten);
}

QString Uebernahmeumgebung::felder(const QString& tabelle, const QString& bedingung,
                                   const QString& spalten) const {
    return zeile("SELECT " + auswahl(spalten) + " FROM [" + tabelle + "] WHERE " + bedingung);
}

} // namespace vemo::test
