#include "Sitzung.h"

#include "Empfangskonsole.h"

#include "core/ModulState.h"
#include "platform/Zahlformat.h"

using namespace vemo;

Sitzung::Sitzung(const Optionen& o)
    : m_ui(o.befehl == "receive" ? std::make_unique<Empfangskonsole>(o.ja)
                                 : std::make_unique<KonsolenUi>(o.ja)) {
    m_settings = o.settings.isEmpty()
                     ? std::unique_ptr<SettingsStore>(QtSettingsStore::proBenutzer("vemotrix"))
                     : std::unique_ptr<SettingsStore>(QtSettingsStore::inDatei(o.settings));
    modulNeuLaden();
    // The number locale is part of the module state: the system's unless the user named one.
    if (!o.locale.isEmpty())
        zahlformat::setzen(QLocale(o.locale));
    m_komponente = std::make_unique<vemo0100Modul15a>(*m_ui, *m_settings);
    vemo0100Modul15a& k = *m_komponente;
    k.setArbeitsverzeichnis(o.workdir);
    k.setVemotrixDBName(o.db);
    if (!bereit())
        return;
    k.setSprache(o.sprache.isEmpty() ? QString("Deutsch (&Deutschland)") : o.sprache);
    k.setBackupVerzeichnis(o.backup.isEmpty() ? modul().Datenbankverzeichnis : o.backup);
    if (!o.replica.isEmpty())
        k.setVmxReplicaID(o.replica);
    bool istNummer = false;
    const int port = o.port.toInt(&istNummer);
    if (istNummer)
        k.setCommPort(port);
    else
        modul().portPfad = o.port;
    if (!o.typ.isEmpty())
        k.setPrüfgeräteTypID(o.typ.toInt());
    if (!o.kunde.isEmpty())
        k.setListeKundeID(o.kunde.toInt());
    if (!o.anlage.isEmpty())
        k.setListeAnlageID(o.anlage.toInt());
    if (!o.prüfung.isEmpty())
        k.setListePrüfungID(o.prüfung.toInt());
}

bool Sitzung::bereit() const {
    return m_komponente->vemotrixDB().istOffen();
}

int Sitzung::ergebnis() const {
    return modul().Abbruchmerker == 1 || modul().gezeigteFehler > 0 ? 1 : 0;
}
