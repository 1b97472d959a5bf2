#include "import/FormImport.h"

#include "core/ModulState.h"
#include "core/Sanduhr.h"
#include "import/Importlauf.h"
#include "import/Quelltabelle.h"
#include "platform/Ui.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <array>

namespace vemo {

namespace {

// The store's failures for a source that cannot be reached: the user corrects the path in the open
// dialog, so the call ends without a further word.
constexpr std::array<int, 5> quelleUnerreichbar{
    quellfehler::DatenbankNichtGefunden, quellfehler::DatenträgerFehler, quellfehler::KeinGültigerPfad,
    quellfehler::KeinGültigerName, quellfehler::TabelleNichtGefunden};

bool unerreichbar(int code) {
    return std::find(quelleUnerreichbar.begin(), quelleUnerreichbar.end(), code) != quelleUnerreichbar.end();
}

} // namespace

FormImport::FormImport(QObject* eltern) : DialogController(eltern) {
    m_texte = {xText("Import von 0100 Corvex-Manager Daten") + " - " + modul().anwendungstitel,
               xText("Datenquelle"),
               xText("Ändern"),
               xText("Konvertieren"),
               xText("Abbrechen"),
               xText("Import Hilfe")};
}

void FormImport::setDatenquelle(const QString& pfad) {
    m_datenquelle = pfad;
    emit aktualisiert();
}

void FormImport::ändernKlick() {
    mitFalle([this] {
        const QString ordner = m_datenquelle.trimmed().isEmpty() ? modul().Datenbankverzeichnis
                                                                 : QFileInfo(m_datenquelle).absolutePath();
        const auto gewählt = ui().dateiÖffnen({xText("Konvertieren"), "Datenbank (*.mdb)|*.mdb",
                                               QDir(ordner).filePath("Pruefcode.mdb"), ".mdb"});
        if (gewählt)
            setDatenquelle(*gewählt);
    });
}

void FormImport::konvertierenKlick() {
    if (m_läuft)
        return;
    const QString pfad = m_datenquelle.trimmed().isEmpty() ? QString(" ") : m_datenquelle.trimmed();
    Importlauf lauf;
    lauf.beiFortschritt = [this](const Importstand& stand) {
        m_anzahlText = QString::number(stand.anzahl) + xText(" Prüfungen werden importiert...");
        m_prozentText = QString::number(stand.prozent) + "%";
        emit aktualisiert();
        emit progressed(stand.prozent);
        ui().DoEvents();
    };
    m_läuft = true;
    {
        const Sanduhr warten;
        m_ergebnisCode = lauf.ausführen(pfad);
    }
    m_läuft = false;
    emit aktualisiert();
    if (unerreichbar(m_ergebnisCode))
        return;
    schließen(m_ergebnisCode);
    ui().MsgBox(m_ergebnisCode == 0 ? xText("Importieren erfolgreich beendet")
                                    : xText("Beim Importieren sind Fehler aufgetreten."),
                modul().anwendungstitel);
}

} // namespace vemo
