#include "core/Arbeitsordner.h"

#include "platform/Fehler.h"
#include "platform/SettingsStore.h"
#include "store/Datenbank.h"
#include "store/Schema.h"

#include <QDir>
#include <QFileInfo>

namespace vemo {

QString arbeitsordner(const QString& datenbankName, const QString& gewählt, const SettingsStore& settings) {
    QString ordner = gewählt;
    if (ordner.isEmpty())
        ordner =
            Datenbank::istServer(datenbankName) ? settings.ordner() : QFileInfo(datenbankName).absolutePath();
    if (!QDir().mkpath(ordner))
        throw fehler::mit(fehler::PfadNichtGefunden, ordner);
    worttabellenAnlegen(ordner, false);
    return QDir::toNativeSeparators(QFileInfo(ordner).absoluteFilePath());
}

} // namespace vemo
