#include "host/Modul15a.h"

#include "core/Arbeitsordner.h"
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "grid/EinleseDatenController.h"
#include "host/DateiEinlesen.h"
#include "host/Transfer.h"
#include "host/Worttabellen.h"
#include "import/FormImport.h"
#include "language/SprachDatenbank.h"
#include "links/ZemakEinstellung.h"
#include "platform/Ui.h"
#include "takeover/Uebernahme.h"

#include <QDir>
#include <QFileInfo>

using namespace vemo;

vemo0100Modul15a::vemo0100Modul15a(Ui& u, SettingsStore& s) : m_ui(&u), m_settings(&s) {
    modul().ui = &u;
    modul().settings = &s;
    modul().anwendungstitel = "vemotrix professional";
    EinleseDatenController::datenübernahmeEinsetzen(Übernehmen);
}

vemo0100Modul15a::~vemo0100Modul15a() {
    NeueID("", "");
    modul().db.Close();
    // The host's window and settings may go before the component's module state does.
    if (modul().ui == m_ui)
        modul().ui = nullptr;
    if (modul().settings == m_settings)
        modul().settings = nullptr;
}

Datenbank vemo0100Modul15a::vemotrixDB() const {
    return modul().db;
}

void vemo0100Modul15a::setVemotrixDBName(const QString& pfad) {
    ModulState& m = modul();
    NeueID("", "");
    m.db.Close();
    mitFalle([&] {
        const Datenbank neu = Datenbank::OpenDatabase(pfad);
        neu.TableDefs("Kunde"); // a database without customers fails now, not later
        m.Datenbankverzeichnis = arbeitsordner(pfad, m.Arbeitsverzeichnis, settings());
        m.db = neu;
        m.datenbankName = pfad;
    });
}

QString vemo0100Modul15a::Arbeitsverzeichnis() const {
    return modul().Arbeitsverzeichnis;
}

void vemo0100Modul15a::setArbeitsverzeichnis(const QString& ordner) {
    modul().Arbeitsverzeichnis = ordner;
}

QVariant vemo0100Modul15a::vmxReplicaID() const {
    return modul().vmxReplicaID;
}
void vemo0100Modul15a::setVmxReplicaID(const QVariant& id) {
    modul().vmxReplicaID = id;
}
QString vemo0100Modul15a::Sprache() const {
    return m_sprache;
}

void vemo0100Modul15a::setSprache(const QString& sprache) {
    m_sprache = sprache;
    mitFalle([&] {
        worttabellenLaden();
        spracheEinstellen(sprache);
    });
}

QVariant vemo0100Modul15a::BackupVerzeichnis() const {
    return modul().BackupVerzeichnis;
}
void vemo0100Modul15a::setBackupVerzeichnis(const QVariant& v) {
    modul().BackupVerzeichnis = v;
}
qint32 vemo0100Modul15a::hWndAccess() const {
    return modul().hWndAccess;
}
void vemo0100Modul15a::setHWndAccess(qint32 fenster) {
    modul().hWndAccess = fenster;
}
QVariant vemo0100Modul15a::ListeKundeID() const {
    return modul().ListeKundeID;
}
void vemo0100Modul15a::setListeKundeID(const QVariant& id) {
    modul().ListeKundeID = id;
}
QVariant vemo0100Modul15a::ListePrüfungID() const {
    return modul().ListePrüfungID;
}
void vemo0100Modul15a::setListePrüfungID(const QVariant& id) {
    modul().ListePrüfungID = id;
}
QVariant vemo0100Modul15a::ListeAnlageID() const {
    return modul().ListeAnlageID;
}
void vemo0100Modul15a::setListeAnlageID(const QVariant& id) {
    modul().ListeAnlageID = id;
}
bool vemo0100Modul15a::DatenloggerMode() const {
    return modul().DatenloggerMode;
}
qint32 vemo0100Modul15a::CommPort() const {
    return modul().CommPort;
}
void vemo0100Modul15a::setCommPort(qint32 port) {
    modul().CommPort = port;
}
QVariant vemo0100Modul15a::PrüfgerätID() const {
    return modul().PrüfgerätID;
}
void vemo0100Modul15a::setPrüfgerätID(const QVariant& id) {
    modul().PrüfgerätID = id;
}
QVariant vemo0100Modul15a::EinlesedatenID() const {
    return modul().EinlesedatenID;
}
QVariant vemo0100Modul15a::EinlesedatenIDRow() const {
    return modul().EinlesedatenIDRow;
}
void vemo0100Modul15a::setEinlesedatenIDRow(const QVariant& wert) {
    modul().EinlesedatenIDRow = wert;
}
QVariant vemo0100Modul15a::PrüfgeräteTypID() const {
    return modul().anwendungstitel;
}
void vemo0100Modul15a::setPrüfgeräteTypID(const QVariant& code) {
    modul().PrüfgeräteTypID = code;
}
QVariant vemo0100Modul15a::ApplicationName() const {
    return modul().applicationNameWert;
}
void vemo0100Modul15a::setApplicationName(const QString& titel) {
    modul().anwendungstitel = titel;
}

void vemo0100Modul15a::DatenEmpfangen() {
    mitFalle([] { vemo::DatenEmpfangen(); });
}

void vemo0100Modul15a::EinleseDaten() {
    mitFalle([] {
        Recordset rs = db().OpenRecordset("0100_EinleseDaten");
        if (rs.Eof()) {
            ui().MsgBox(xText("Es sind keine Eilnlesedaten vorhanden"), modul().anwendungstitel);
            return;
        }
        EinleseDatenController form;
        ui().zeigeModal(form);
    });
}

void vemo0100Modul15a::EinlesenAusDateiName(const QString& dateiname) {
    mitFalle([&] { vemo::EinlesenAusDateiName(dateiname); });
}

void vemo0100Modul15a::EinlesenAusDatei() {
    mitFalle([] { vemo::EinlesenAusDatei(); });
}
void vemo0100Modul15a::DatenLogger() {}
void vemo0100Modul15a::DatenImportieren() {
    mitFalle([] {
        FormImport form;
        ui().zeigeModal(form);
    });
}
void vemo0100Modul15a::EinstellungZemak3710() {
    mitFalle(einstellungZemak3710);
}

void vemo0100Modul15a::vmxTextWidth(const QString& text, qint32& breite) {
    mitFalle([&] { breite = ui().textBreite(text); });
}
