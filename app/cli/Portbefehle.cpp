#include "Portbefehle.h"

#include "core/CommPortAuswahl.h"
#include "core/ModulState.h"
#include "links/Geraetesuche.h"
#include "platform/Schnittstellen.h"
#include "platform/SettingsStore.h"

#include <memory>

using namespace vemo;

namespace {

// The ports to ask: those named, a number mapped to its device; else every port of the computer.
QStringList zuFragen(const Optionen& o) {
    QStringList angaben = o.optionen("--port");
    if (!o.port.isEmpty())
        angaben.prepend(o.port);
    QStringList geräte;
    for (const QString& angabe : angaben) {
        bool istNummer = false;
        const int nummer = angabe.toInt(&istNummer);
        geräte << (istNummer ? portGerät(nummer) : angabe);
    }
    if (angaben.isEmpty())
        for (const Schnittstelle& s : schnittstellen())
            geräte << s.gerät;
    return geräte;
}

} // namespace

int portsBefehl(QTextStream& aus) {
    for (const Schnittstelle& s : schnittstellen())
        aus << s.zeile() << Qt::endl;
    return 0;
}

int detectBefehl(const Optionen& o, QTextStream& aus) {
    const std::unique_ptr<SettingsStore> einstellungen =
        o.settings.isEmpty() ? std::unique_ptr<SettingsStore>(QtSettingsStore::proBenutzer("vemotrix"))
                             : std::unique_ptr<SettingsStore>(QtSettingsStore::inDatei(o.settings));
    modul().settings = einstellungen.get();
    const QStringList geräte = zuFragen(o);
    modul().settings = nullptr;
    bool gefunden = false;
    for (const QString& gerät : geräte) {
        const Gerätefund fund = gerätSuchen(gerät);
        aus << fund.zeile() << Qt::endl;
        gefunden = gefunden || fund.gefunden();
    }
    return gefunden ? 0 : 1;
}
