#include "core/Arbeitsordner.h"

#include "platform/Fehler.h"
#include "platform/SettingsStore.h"
#include "store/Schema.h"

#include <QDir>
#include <QFileInfo>

namespace vemo {

bool istServeradresse(const QString& datenbankName) {
    return datenbankName.startsWith("postgresql://", Qt::CaseInsensitive) ||
           datenbankName.startsWith("postgres://", Qt::CaseInsensitive);
}

QString arbeitsordner(const QString& datenbankName, const QString& gewählt, const SettingsStore& settings) {
    QString ordner = gewählt;
    if (ordner.isEmpty())
        ordner =
            istServeradresse(datenbankName) ? settings.ordner() : QFileInfo(datenbankName).absolutePath();
    if (!QDir().mkpath(ordner))
        throw fehler::mit(fehler::PfadNichtGefunden, ordner);
    worttabellenAnlegen(ordner, false);
    return QDir::toNativeSeparators(QFileInfo(ordner).absoluteFilePath());
}

} // namespace vemo
