#include "platform/Fehler.h"

#include "platform/Fehlertexte.h"

#include <map>

namespace vemo {

Fehler::Fehler(int nummer, QString beschreibung)
    : m_nummer(nummer), m_beschreibung(std::move(beschreibung)),
      m_what((QString::number(m_nummer) + " " + m_beschreibung).toUtf8()) {}

QString Fehler::beschreibung() const {
    return fehlertexte::inGewählterSprache(m_nummer, m_beschreibung);
}

QString Fehler::meldung() const {
    return QString::number(m_nummer) + " " + beschreibung();
}

namespace fehler {
namespace {
const std::map<int, QString>& beschreibungen() {
    static const std::map<int, QString> tabelle{
        {UngültigerAufruf, "Ungültiger Prozeduraufruf oder ungültiges Argument"},
        {Überlauf, "Überlauf"},
        {IndexAußerhalb, "Index außerhalb des gültigen Bereichs"},
        {DivisionDurchNull, "Division durch Null"},
        {TypenUnverträglich, "Typen unverträglich"},
        {DateiNichtGefunden, "Datei nicht gefunden"},
        {DateiGeöffnet, "Datei bereits geöffnet"},
        {HinterDateiende, "Einlesen hinter Dateiende"},
        {PfadZugriff, "Fehler beim Zugriff auf Pfad/Datei"},
        {PfadNichtGefunden, "Pfad nicht gefunden"},
        {UnzulässigNull, "Unzulässige Verwendung von Null"},
        {OhneAddNewEdit, "Aktualisieren oder Abbrechen ohne AddNew oder Edit."},
        {KeinAktuellerDatensatz, "Kein aktueller Datensatz."},
        {DoppelterSchlüssel, "Doppelter Wert im Schlüssel; die Änderung wurde nicht gespeichert."},
        {DatenbankNichtGefunden, "Die Datenbankdatei wurde nicht gefunden."},
        {Schreibgeschützt, "Aktualisieren nicht möglich; Datenbank oder Objekt ist schreibgeschützt."},
        {ZuWenigeParameter, "Zu wenige Parameter."},
        {SyntaxFehler, "Syntaxfehler in Abfrageausdruck."},
        {TabelleNichtGefunden, "Die Tabelle oder Abfrage wurde nicht gefunden."},
        {DatensatzGelöscht, "Datensatz ist gelöscht."},
        {Gesperrt, "Die Daten sind gesperrt."},
        {ElementNichtGefunden, "Element in dieser Auflistung nicht gefunden."},
        {PortUngültig, "Ungültige Anschlussnummer"},
        {PortBereitsGeöffnet, "Anschluss bereits geöffnet"},
        {PortNichtGeöffnet, "Der Anschluss ist nicht geöffnet"},
    };
    return tabelle;
}
} // namespace

Fehler mit(int nummer) {
    const auto& t = beschreibungen();
    const auto it = t.find(nummer);
    return Fehler(nummer, it != t.end() ? it->second : QString("Anwendungs- oder objektdefinierter Fehler"));
}

Fehler mit(int nummer, const QString& detail) {
    const Fehler basis = mit(nummer);
    return Fehler(nummer, basis.deutscheBeschreibung() + " (" + detail + ")");
}
} // namespace fehler

} // namespace vemo
