#include "store/Schema.h"

#include "platform/Fehler.h"
#include "store/Datenbank.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vemo {

namespace {
void wortTabellenAblegen(const QString& pfad);

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
        wortTabellenAblegen(pfad);
}

namespace {
void wortTabellenAblegen(const QString& pfad) {
    const QDir neben = QFileInfo(pfad).absoluteDir();
    for (const QString& tabelle : {QString("Ruvo.MNU"), QString("Ruvo.MUL")}) {
        QFile::remove(neben.filePath(tabelle));
        if (!QFile::copy(":/data/" + tabelle, neben.filePath(tabelle)))
            throw fehler::mit(fehler::PfadZugriff, neben.filePath(tabelle));
        QFile::setPermissions(neben.filePath(tabelle),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }
}

} // namespace

} // namespace vemo
