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

void dateiKopieren(const QString& von, const QString& nach) {
    if (!QFileInfo::exists(von))
        throw fehler::mit(fehler::DateiNichtGefunden, von);
    if (QFileInfo(von).canonicalFilePath() == QFileInfo(nach).canonicalFilePath())
        return; // the file already is the destination
    QFile quelle(von);
    if (!quelle.open(QIODevice::ReadOnly))
        throw fehler::mit(fehler::PfadZugriff, von);
    // The copy replaces the destination at once: a second workplace reading the same working file
    // beside a shared database meanwhile sees the whole old file or the whole new one.
    QSaveFile ziel(nach);
    if (!ziel.open(QIODevice::WriteOnly))
        throw fehler::mit(fehler::PfadZugriff, nach);
    const QByteArray inhalt = quelle.readAll();
    if (ziel.write(inhalt) != inhalt.size() || !ziel.commit())
        throw fehler::mit(fehler::PfadZugriff, nach);
}

} // namespace vemo
