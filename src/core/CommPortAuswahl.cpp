#include "core/CommPortAuswahl.h"

#include "core/ModulState.h"
#include "platform/CommPortSeriell.h"
#include "platform/SettingsStore.h"

namespace vemo {

QString portGerät(int nummer) {
    if (nummer < 1)
        return {};
    const QString name = "COM" + QString::number(nummer);
#ifdef Q_OS_WIN
    return name;
#else
    const QString eingestellt = modul().settings ? modul().settings->GetSetting("Ports", name) : QString();
    if (!eingestellt.trimmed().isEmpty())
        return eingestellt.trimmed();
    return "/dev/ttyS" + QString::number(nummer - 1);
#endif
}

QString modulPortGerät() {
    return modul().portPfad.isEmpty() ? portGerät(modul().CommPort) : modul().portPfad;
}

std::unique_ptr<CommPort> neuerCommPort() {
    if (modul().commPortFabrik)
        return modul().commPortFabrik();
    return std::make_unique<SeriellerCommPort>();
}

} // namespace vemo
