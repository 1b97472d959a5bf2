#include "store/Schema.h"

#include "platform/Fehler.h"
#include "store/Datenbank.h"

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
    for (const QString& rest : {QString(), QString("-wal"), QString("-shm")})
        QFile::remove(pfad + rest);
    const Datenbank db = Datenbank::anlegen(pfad);
    db.skriptAusführen(ressource("schema.sql"));
    db.skriptAusführen(ressource("abfragen.sql"));
    skripteAusführen(db, "host-*.sql");
    if (demo)
        skripteAusführen(db, "demo-*.sql");
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

} // namespace vemo
