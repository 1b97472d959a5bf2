#include "language/SprachDatenbank.h"

#include "core/ModulState.h"
#include "platform/Fehlertexte.h"
#include "platform/Version.h"
#include "store/Datenbank.h"
#include "store/Schema.h"

#include <QDir>
#include <QFile>

namespace vemo {

void spracheDatenbankAnlegen(const QString& verzeichnis) {
    const QString pfad = QDir(verzeichnis).filePath(sprachdatenbank::DateiName);
    for (const QString& rest : {QString(), QString("-wal"), QString("-shm")})
        QFile::remove(pfad + rest);
    const Datenbank db = Datenbank::anlegen(pfad);
    skripteAusführen(db, "language-*.sql");
    db.abfrageSpeichern("Suchen", "PARAMETERS paraDeutsch Text;\n"
                                  "SELECT * FROM Sprache WHERE TextID = [paraDeutsch];");
}

void spracheEinstellen(const QString& sprache) {
    Sprachen& sprachen = modul().sprachen;
    sprachen.setVerzeichnisDatenbank(modul().Datenbankverzeichnis);
    sprachen.setNameDatenbank(sprachdatenbank::DateiName);
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
