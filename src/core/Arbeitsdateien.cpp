#include "core/Arbeitsdateien.h"

#include "core/ModulState.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace vemo {

QString ohneGroßKlein(const QString& verzeichnis, const QString& name) {
    const QDir dir(verzeichnis);
    if (dir.exists(name))
        return dir.filePath(name);
    const QStringList treffer = dir.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString& t : treffer)
        if (t.compare(name, Qt::CaseInsensitive) == 0)
            return dir.filePath(t);
    return dir.filePath(name);
}

QString arbeitsdatei(const QString& name) {
    return ohneGroßKlein(modul().Datenbankverzeichnis, name);
}

QByteArray dateiLesen(const QString& pfad) {
    if (!QFileInfo::exists(pfad))
        throw fehler::mit(fehler::DateiNichtGefunden, pfad);
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly))
        throw fehler::mit(fehler::PfadZugriff, pfad);
    return datei.readAll();
}

void dateiKopieren(const QString& von, const QString& nach) {
    if (QFileInfo::exists(von) && QFileInfo(von).canonicalFilePath() == QFileInfo(nach).canonicalFilePath())
        return; // the file already is the destination
    const QByteArray inhalt = dateiLesen(von);
    // The copy replaces the destination at once: a second workplace reading the same working file
    // beside a shared database meanwhile sees the whole old file or the whole new one.
    QSaveFile ziel(nach);
    if (!ziel.open(QIODevice::WriteOnly))
        throw fehler::mit(fehler::PfadZugriff, nach);
    if (ziel.write(inhalt) != inhalt.size() || !ziel.commit())
        throw fehler::mit(fehler::PfadZugriff, nach);
}

} // namespace vemo
