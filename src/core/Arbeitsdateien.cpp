#include "core/Arbeitsdateien.h"

#include "core/ModulState.h"

#include <QDir>
#include <QFileInfo>

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

} // namespace vemo
