#include "language/SprachDatenbank.h"

#include "core/ModulState.h"
#include "platform/Fehlertexte.h"
#include "platform/Version.h"
#include "store/Datenbank.h"
#include "store/Schema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vemo {

void spracheDatenbankAnlegen(const QString& verzeichnis) {
    const QString pfad = QDir(verzeichnis).filePath(sprachdatenbank::DateiName);
    for (const QString& rest : {QString(), QString("-wal"), QString("-shm")})
        QFile::remove(pfad + rest);
    const Datenbank db = Datenbank::anlegen(pfad);
    skripteAusführen(db, "language-*.sql");
}

void spracheEinstellen(const QString& sprache) {
    Sprachen& sprachen = modul().sprachen;
    // The language table is the office's: in a server's database itself, beside a database file.
    const QString& db = modul().datenbankName;
    const bool server = Datenbank::istServer(db);
    sprachen.setVerzeichnisDatenbank(server ? QString() : QFileInfo(db).absolutePath());
    sprachen.setNameDatenbank(server ? db : sprachdatenbank::DateiName);
    sprachen.setPasswort(sprachdatenbank::Passwort);
    sprachen.setVersion(komponentenVersion);
    if (mitFalle([&] { sprachen.DatenbankZuweisen(); }))
        sprachen.spracheWählen(sprache);
    else
        sprachen.setSprache(sprache);
    const bool englisch = sprachen.Sprache().startsWith("English");
    fehlertexte::wählen(englisch ? fehlertexte::Sprache::Englisch : fehlertexte::Sprache::Deutsch);
}

} // namespace vemo
