#pragma once

#include "store/Datenbank.h"

#include <QString>
#include <QVariant>

namespace vemo {
class Ui;
class SettingsStore;
} // namespace vemo

// The one public class of the component. The host creates it, gives it the database, the
// language, the backup directory, the port and the instrument type, and calls one method per user
// command. What the user must know is shown in the component's own dialogs; nothing is thrown out
// of this class. The state behind it is the module state: a second instance shares it.
class vemo0100Modul15a {
public:
    // The window services and the settings store the component shows and keeps things through.
    vemo0100Modul15a(vemo::Ui& ui, vemo::SettingsStore& settings);
    ~vemo0100Modul15a();
    vemo0100Modul15a(const vemo0100Modul15a&) = delete;
    vemo0100Modul15a& operator=(const vemo0100Modul15a&) = delete;

    vemo::Datenbank vemotrixDB() const;
    // Opens the database, a file or a server's URI. The working files lie in the work folder:
    // the one set below, else beside a database file, else in the folder of the settings.
    void setVemotrixDBName(const QString& pfad);
    // The workplace's own folder for working files; set it before the database.
    QString Arbeitsverzeichnis() const;
    void setArbeitsverzeichnis(const QString& ordner);
    QVariant vmxReplicaID() const;
    void setVmxReplicaID(const QVariant& id);
    QString Sprache() const;
    // Loads the word tables and opens the language database; set it after the database.
    void setSprache(const QString& sprache);
    QVariant BackupVerzeichnis() const;
    void setBackupVerzeichnis(const QVariant& verzeichnis);
    qint32 hWndAccess() const;
    void setHWndAccess(qint32 fenster);
    QVariant ListeKundeID() const;
    void setListeKundeID(const QVariant& id);
    QVariant ListePrüfungID() const;
    void setListePrüfungID(const QVariant& id);
    QVariant ListeAnlageID() const;
    void setListeAnlageID(const QVariant& id);
    bool DatenloggerMode() const;
    qint32 CommPort() const;
    void setCommPort(qint32 port);
    QVariant PrüfgerätID() const;
    void setPrüfgerätID(const QVariant& id);
    QVariant EinlesedatenID() const;
    QVariant EinlesedatenIDRow() const;
    void setEinlesedatenIDRow(const QVariant& wert);
    // Writing stores the device type code; reading gives the application's title. The host relies
    // on this cross-wiring.
    QVariant PrüfgeräteTypID() const;
    void setPrüfgeräteTypID(const QVariant& code);
    // Writing replaces the title of all message boxes; reading gives a value nothing ever sets.
    QVariant ApplicationName() const;
    void setApplicationName(const QString& titel);

    void DatenEmpfangen();
    void EinleseDaten();
    void EinlesenAusDateiName(const QString& dateiname);
    void EinlesenAusDatei();
    // Stays available and does nothing: the data logger is reached through the dump.
    void DatenLogger();
    void DatenImportieren();
    void EinstellungZemak3710();
    void vmxTextWidth(const QString& text, qint32& breite);

private:
    QString m_sprache;
    vemo::Ui* m_ui;
    vemo::SettingsStore* m_settings;
};
