#include "store/Schema.h"

#include "platform/Fehler.h"
#include "store/Datenbank.h"
#include "store/Transaktion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vemo {

namespace {
QString ressource(const QString& name) {
    QFile f(":/data/" + name);
    if (!f.open(QIODevice::ReadOnly))
        throw fehler::mit(fehler::DateiNichtGefunden, name);
    return QString::fromUtf8(f.readAll());
}
} // namespace

void skripteAusführen(const Datenbank& db, const QString& muster) {
    const QStringList namen = QDir(":/data").entryList({muster}, QDir::Files, QDir::Name);
    for (const QString& n : namen)
        db.skriptAusführen(ressource(n));
}

void datenbankAnlegen(const QString& pfad, bool demo) {
    const bool server = Datenbank::istServer(pfad);
    if (!server)
        for (const QString& rest : {QString(), QString("-wal"), QString("-shm")})
            QFile::remove(pfad + rest);
    const Datenbank db = Datenbank::anlegen(pfad);
    db.skriptAusführen(ressource("schema.sql"));
    db.skriptAusführen(ressource("abfragen.sql"));
    skripteAusführen(db, "host-*.sql");
    if (demo)
        skripteAusführen(db, "demo-*.sql");
    if (server) // the office's language table lives in its database
        skripteAusführen(db, "language-*.sql");
    else
        worttabellenAnlegen(QFileInfo(pfad).absolutePath(), true);
}

void worttabellenAnlegen(const QString& ordner, bool ersetzen) {
    const QDir dir(ordner);
    for (const QString& tabelle : {QString("Ruvo.MNU"), QString("Ruvo.MUL")}) {
        const QString ziel = dir.filePath(tabelle);
        if (QFileInfo::exists(ziel) && !ersetzen)
            continue;
        QFile::remove(ziel);
        if (!QFile::copy(":/data/" + tabelle, ziel))
            throw fehler::mit(fehler::PfadZugriff, ziel);
        QFile::setPermissions(ziel,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }
}

namespace {
void zeilenKopieren(const Datenbank& quelle, const Datenbank& ziel, const QString& tabelle) {
    Recordset von = quelle.OpenRecordset(tabelle);
    Recordset nach = ziel.OpenRecordset(tabelle);
    QVector<int> gemeinsam; // the target's field of each source field, -1 where it has none
    for (int i = 0; i < von.FieldCount(); ++i)
        gemeinsam << nach.FieldIndex(von.FieldName(i));
    for (; !von.Eof(); von.MoveNext()) {
        nach.AddNew();
        for (int i = 0; i < gemeinsam.size(); ++i)
            if (gemeinsam[i] >= 0)
                nach.setField(gemeinsam[i], von.Field(i));
        nach.Update();
    }
}

} // namespace

// One transaction for all rows: a copy stands whole or not at all. The rows of every table go
// first, so that a trigger of one table does not take the copied rows of another.
void datenbankKopieren(const QString& von, const QString& nach) {
    const Datenbank quelle = Datenbank::OpenDatabase(von);
    const QStringList tabellen = quelle.tabellen();
    datenbankAnlegen(nach, false);
    const Datenbank ziel = Datenbank::OpenDatabase(nach);
    for (const QString& t : tabellen)
        if (!ziel.hatTabelle(t))
            ziel.skriptAusführen(quelle.tabellenDefinition(t));
    Transaktion alles(ziel);
    for (const QString& t : tabellen)
        ziel.Execute("DELETE FROM [" + t + "]");
    for (const QString& t : tabellen)
        zeilenKopieren(quelle, ziel, t);
    alles.commit();
    ziel.schlüsselNachziehen();
}

} // namespace vemo
