#include "platform/Fehlertexte.h"

#include <optional>
#include <vector>

namespace vemo::fehlertexte {
namespace {

Sprache inKraft = Sprache::Deutsch;

// A description with "%1" where a detail stands; without "%1" the detail, if any, follows the
// text. Several entries may share a number: the first whose frame fits is taken.
struct Text {
    int nummer;
    const char* deutsch;
    const char* englisch;
};

const std::vector<Text>& englischeTexte() {
    static const std::vector<Text> t{
        {5, "Ungültiger Prozeduraufruf oder ungültiges Argument", "Invalid procedure call or argument"},
        {6, "Überlauf", "Overflow"},
        {9, "Index außerhalb des gültigen Bereichs", "Subscript out of range"},
        {11, "Division durch Null", "Division by zero"},
        {13, "Typen unverträglich", "Type mismatch"},
        {51, "Interner Fehler", "Internal error"},
        {53, "Datei nicht gefunden", "File not found"},
        {55, "Datei bereits geöffnet", "File already open"},
        {62, "Einlesen hinter Dateiende", "Input past end of file"},
        {75, "Fehler beim Zugriff auf Pfad/Datei", "Path/File access error"},
        {76, "Pfad nicht gefunden", "Path not found"},
        {91, "Objektvariable oder With-Blockvariable nicht festgelegt",
         "Object variable or With block variable not set"},
        {91, "Keine Oberfläche zugewiesen", "No user interface assigned"},
        {91, "Kein Einstellungsspeicher zugewiesen", "No settings store assigned"},
        {94, "Unzulässige Verwendung von Null", "Invalid use of Null"},
        {380, "Ungültiger Eigenschaftswert", "Invalid property value"},
        {381, "Ungültiger Index für Zeilen/Spaltenwert", "Invalid row/column index"},
        {3004, "Die Änderungen wurden nach einem Fehler des Speichers verworfen",
         "The changes were rolled back after an error of the store"},
        {3020, "Aktualisieren oder Abbrechen ohne AddNew oder Edit.",
         "Update or CancelUpdate without AddNew or Edit."},
        {3021, "Kein aktueller Datensatz.", "No current record."},
        {3022, "Doppelter Wert im Schlüssel; die Änderung wurde nicht gespeichert.",
         "Duplicate value in the key; the change was not saved."},
        {3024, "Die Datenbankdatei wurde nicht gefunden.", "Could not find the database file."},
        {3024, "Datei '%1' nicht gefunden.", "Could not find file '%1'."},
        {3027, "Aktualisieren nicht möglich; Datenbank oder Objekt ist schreibgeschützt.",
         "Cannot update; database or object is read-only."},
        {3043, "Datenträger- oder Netzwerkfehler", "Disk or network error"},
        {3044, "'%1' ist kein zulässiger Pfad.", "'%1' is not a valid path."},
        {3055, "'%1' ist kein zulässiger Dateiname.", "'%1' is not a valid file name."},
        {3061, "Zu wenige Parameter.", "Too few parameters."},
        {3075, "Syntaxfehler in Abfrageausdruck.", "Syntax error in query expression."},
        {3078, "Die Tabelle oder Abfrage wurde nicht gefunden.", "Could not find the table or query."},
        {3078, "Die Eingabetabelle oder -abfrage '%1' wurde nicht gefunden.",
         "Could not find the input table or query '%1'."},
        {3159, "Kein gültiges Lesezeichen.", "Not a valid bookmark."},
        {3164, "Das Feld kann nicht aktualisiert werden: ", "Cannot update the field: "},
        {3167, "Datensatz ist gelöscht.", "Record is deleted."},
        {3260, "Die Daten sind gesperrt.", "The data are locked."},
        {3265, "Element in dieser Auflistung nicht gefunden.", "Item not found in this collection."},
        {3343, "Unbekanntes Datenbankformat '%1'.", "Unrecognised database format '%1'."},
        {3343, "Unbekanntes Datenbankformat", "Unrecognised database format"},
        {3420, "Objekt ungültig oder nicht mehr festgelegt.", "Object invalid or no longer set."},
        {8002, "Ungültige Anschlussnummer", "Invalid port number"},
        {8005, "Anschluss bereits geöffnet", "Port already open"},
        {8006, "Die Gerätekennung ist ungültig oder wird nicht unterstützt",
         "The device identifier is invalid or not supported"},
        {8010, "Die Hardware ist nicht verfügbar", "The hardware is not available"},
        {8012, "Der Anschluss ist nicht geöffnet", "The port is not open"},
        {8015, "Die Anschlussparameter konnten nicht gesetzt werden", "Could not set the port parameters"},
    };
    return t;
}

constexpr const char* Unbekannt = "Anwendungs- oder objektdefinierter Fehler";

// The English of one entry, when the German description has the entry's frame.
std::optional<QString> einsetzen(const Text& t, const QString& deutsch) {
    const QString muster = QString::fromUtf8(t.deutsch);
    const qsizetype stelle = muster.indexOf("%1");
    const QString vorne = stelle < 0 ? muster : muster.left(stelle);
    const QString hinten = stelle < 0 ? QString() : muster.mid(stelle + 2);
    if (!deutsch.startsWith(vorne) || !deutsch.endsWith(hinten) ||
        deutsch.size() < vorne.size() + hinten.size())
        return std::nullopt;
    const QString detail = deutsch.mid(vorne.size(), deutsch.size() - vorne.size() - hinten.size());
    const QString englisch = QString::fromUtf8(t.englisch);
    return stelle < 0 ? englisch + detail : englisch.arg(detail);
}

} // namespace

void wählen(Sprache sprache) {
    inKraft = sprache;
}

Sprache gewählt() {
    return inKraft;
}

QString inGewählterSprache(int nummer, const QString& deutsch) {
    if (inKraft == Sprache::Deutsch)
        return deutsch;
    for (const Text& t : englischeTexte())
        if (t.nummer == nummer)
            if (const auto englisch = einsetzen(t, deutsch))
                return *englisch;
    if (deutsch.startsWith(Unbekannt))
        return "Application-defined or object-defined error" + deutsch.mid(QString(Unbekannt).size());
    return deutsch;
}

} // namespace vemo::fehlertexte
