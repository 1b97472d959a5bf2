#pragma once

#include "core/Laufschluessel.h"
#include "core/Sprachen.h"
#include "platform/Fehler.h"
#include "platform/Fehlertexte.h"
#include "platform/Zahlformat.h"
#include "store/Datenbank.h"
#include "store/Schluessel.h"

#include <QDateTime>
#include <QHash>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>

namespace vemo {

class Ui;
class SettingsStore;
class CommPort;
class EinleseDatenController;
class MyComm;

// What the raw port collects: the bytes received so far, shared by every port wrapper, and the
// handle the next port opened gets.
struct Portpuffer {
    QByteArray bytes;
    qint32 anzahl = 0;
    qint32 letztesHandle = 0;
};

// What the mapping table 0100_TeilFunktion answered for one function name.
struct TeilFunktionsantwort {
    bool fehlt = true; // the table has no such name
    QString spaltenname;
    QString einheit;
};

// The module variables: the state that the dialogs and parsers of the component share. There is
// one such state per loaded component; a second instance of the public class shares it.
// The highest report number an import run has seen, and the database's data version it was read at.
struct Protokollstand {
    double höchste = 0;
    QString datenversion;
};

struct ModulState {
    Datenbank db; // the host's database, opened by vemotrixDBName
    QString datenbankName;
    QString Datenbankverzeichnis; // where all working files lie: the workplace's work folder
    QString Arbeitsverzeichnis;   // the work folder the host chose; empty: beside a database file

    QStringList selektorTabelle = QStringList(51); // index 4 the Selektor, 19 and 22 "LastFile" lines
    QString& Selektor() { return selektorTabelle[4]; }

    double aktuellesPrüfgerät = 0; // the Prüfgerät record of this read-in
    qint16 Abbruchmerker = 0;      // 1: the run failed or the user aborted
    int Empfangsende = 0;          // 1: leave the reception loops
    QString dateinameGewählt;      // the source file of a file read; empty for a serial transfer
    QString arbeitsquelle;         // the file being worked on
    QString backupPfad;
    QString backupNummer;
    bool DatenloggerMode = false;
    QString datenpoolModus;
    // What the data pool's logger branch keeps between its two commands: the new inspection and
    // the head of its series.
    qint32 loggerPrüfungID = 0;
    qint32 loggerIDDATLOG = 0;
    // The command line answers the data pool itself: with a start moment the logger series is
    // stored without asking, without one the dialog closes and nothing is stored.
    bool datenpoolOhneDialog = false;
    QDateTime loggerStart;

    QStringList mnuTexte; // \Ruvo.MNU, up to 500 entries from index 1
    QStringList mulTexte; // \Ruvo.MUL, up to 30 entries from index 1

    // Properties of the public class held as module values.
    QVariant vmxReplicaID;
    QVariant BackupVerzeichnis;
    qint32 hWndAccess = 0;
    QVariant ListeKundeID;
    QVariant ListePrüfungID;
    QVariant ListeAnlageID;
    qint32 CommPort = 0;
    QVariant PrüfgerätID;
    QVariant EinlesedatenID;
    QVariant EinlesedatenIDRow;
    QVariant PrüfgeräteTypID;
    QString anwendungstitel = "vemotrix professional"; // the title of every message box
    QVariant applicationNameWert; // what reading ApplicationName yields; nothing ever sets it
    // A device path given directly (command line), in place of the port number's mapping.
    QString portPfad;
    // Makes the serial control of the links; tests hand out an in-memory end. Empty: the real port.
    std::function<std::unique_ptr<vemo::CommPort>()> commPortFabrik;

    Sprachen sprachen;
    // Errors shown by the standard trap since the component was loaded; the command line's exit
    // status tells a failed run by it.
    int gezeigteFehler = 0;

    // The state of a run that outlives one call: the number locale, the key allocator's counter,
    // the language of error descriptions, the keys the take-over has reached, what the take-over button runs,
    // the raw port's buffers, and whether the dump read last was a Multitester's.
    zahlformat::Gebietsschema zahlen;
    fehlertexte::Auswahl fehlertexte;
    Schlüsselvergabe schlüsselvergabe;
    std::optional<Protokollstand> protokollstand; // set while a run counts report numbers on
    Laufschlüssel laufschlüssel;
    std::function<void(EinleseDatenController&)> datenübernahme;
    Portpuffer portpuffer;
    std::shared_ptr<MyComm> gemeinsamerMyComm;
    bool multitesterGefunden = false;
    // The mapping table's answers while a take-over runs, by function name: every read-in row asks
    // for the same few names, and the host does not change the table under a run.
    bool teilFunktionenMerken = false;
    QHash<QString, TeilFunktionsantwort> teilFunktionen;
    // The serial number of the last Sorelin image read; the read-in rows do not carry it.
    QString sorelinSeriennummer;

    Ui* ui = nullptr;
    SettingsStore* settings = nullptr;
};

ModulState& modul();
// A fresh module state, as when the component is loaded anew: every run state starts again, the
// seams stay.
void modulNeuLaden();

// Shortcuts the whole component uses.
Ui& ui();
SettingsStore& settings();
Datenbank& db();
QString xText(const QString& text);

// The standard trap: number, one blank and description in a message box titled with the
// application's title.
void fehlerZeigen(const Fehler& f);

// Runs a routine under the standard trap; false when it ended in an error that was shown.
bool mitFalle(const std::function<void()>& routine);
// The standard trap of a step inside a larger unit (a read-in, a take-over row): it shows the
// step's own faults, while a failure of the store itself goes on to the unit's trap, which ends
// the unit instead of letting it go on with half its writes.
bool mitSchrittfalle(const std::function<void()>& routine);

} // namespace vemo
