#include "grid/EinleseDatenController.h"

#include "core/ModulState.h"
#include "core/Sanduhr.h"
#include "grid/Sprachregel.h"
#include "grid/Zuordnung.h"
#include "platform/SettingsStore.h"
#include "platform/Ui.h"
#include "store/Variant.h"

#include <array>

namespace vemo {

namespace {

constexpr int TasteEnter = 13;
constexpr int TasteEscape = 27;
constexpr int TasteHoch = 38;
constexpr int TasteRunter = 40;

const char* const Abschnitt = "EinleseGrid";

// The key of a column width: "ColWidth" and the number as Str writes it, with a leading blank.
QString breitenSchlüssel(int spalte) {
    return "ColWidth " + QString::number(spalte);
}

const std::array<const char*, EinleseGrid::Cols> Kopftexte{
    "Nr.", "Kunde", "Anlage", "Prüfung", "Verteiler", "Stromkreis", "Messzeitpunkt"};

Datenübernahme& eingesetzteÜbernahme() {
    return modul().datenübernahme;
}

} // namespace

EinleseDatenController::EinleseDatenController(QObject* eltern) : DialogController(eltern) {
    laden();
}

void EinleseDatenController::datenübernahmeEinsetzen(Datenübernahme übernahme) {
    eingesetzteÜbernahme() = std::move(übernahme);
}

void EinleseDatenController::laden() {
    m_texte = {modul().anwendungstitel + " - " + xText("Einlesedaten"),
               xText("Daten übernehmen"),
               xText("Zeile löschen"),
               xText("Schließen"),
               xText("Edit results"),
               xText("EinlesedatenHilfetext"),
               xText("&Bearbeiten"),
               xText("Zuordnung ändern"),
               xText("Zeile löschen")};
    m_knöpfe.editResultsSichtbar = englischUK();
    for (int spalte = 0; spalte < EinleseGrid::Cols; ++spalte) {
        m_grid.setColWidth(spalte, gespeicherteBreite(spalte));
        m_grid.setTextMatrix(0, spalte, xText(Kopftexte[size_t(spalte)]));
    }
    m_grid.auswahl = {};
    m_fortschritt.sichtbar = false;
    long anzahl = 0;
    mitFalle([&] {
        Recordset einlese = db().OpenRecordset("0100_EinleseDaten");
        if (!einlese.Eof()) {
            m_knöpfe.editResults = true;
            einlese.MoveLast();
            anzahl = einlese.RecordCount();
        }
    });
    EinleseGridRefresh(1, anzahl);
}

int EinleseDatenController::gespeicherteBreite(int spalte) const {
    bool ok = false;
    const int breite =
        settings()
            .GetSetting(Abschnitt, breitenSchlüssel(spalte), QString::number(EinleseGrid::Standardbreite))
            .toInt(&ok);
    return ok ? breite : EinleseGrid::Standardbreite;
}

void EinleseDatenController::setFortschritt(const Fortschritt& f) {
    m_fortschritt = f;
    geändert();
}

void EinleseDatenController::setAnzahlZeilen(const QString& text) {
    m_anzahlZeilen = text;
    geändert();
}

void EinleseDatenController::setSchaltflächen(const Schaltflächen& s) {
    m_knöpfe = s;
    geändert();
}

void EinleseDatenController::auswahlEreignis() {
    const Auswahl& a = m_grid.auswahl;
    const int daten = m_grid.datenzeilen();
    m_knöpfe.löschen = daten > 0 && !(a.Row == 0 && a.RowSel == 0);
    m_anzahlZeilen = daten == 0 ? QString()
                                : xText("Anzahl der Markiertenzeilen") + " " +
                                      QString::number(a.letzteZeile() - a.ersteZeile() + 1) + " " +
                                      xText("von") + " " + QString::number(daten);
}

// ---- the grid

void EinleseDatenController::gridAuswahl(const Auswahl& auswahl) {
    m_grid.auswahl = auswahl;
    m_combo.sichtbar = false;
    auswahlEreignis();
    geändert();
}

void EinleseDatenController::gridDoppelklick() {
    if (!m_grid.auswahl.enthält(m_editRow, m_editCol) && m_mausSpalte >= 1) {
        m_grid.auswahl = {m_editRow, m_mausSpalte, m_editRow, m_mausSpalte};
        auswahlEreignis();
    }
    MSHFlexGridComboEdit(32);
}

void EinleseDatenController::gridTaste(int keyAscii) {
    m_editRow = m_grid.auswahl.Row;
    m_editCol = m_grid.auswahl.Col;
    MSHFlexGridComboEdit(keyAscii);
}

void EinleseDatenController::gridMausRunter(int zeile, int spalte, bool rechts) {
    m_mausSpalte = spalte;
    if (!rechts)
        return;
    if (!m_grid.auswahl.enthält(zeile, spalte) && zeile >= 0 && spalte >= 0)
        m_grid.auswahl = {zeile, spalte, zeile, spalte};
    auswahlEreignis();
    geändert();
}

void EinleseDatenController::gridMausHoch(int zeile, int spalte, bool rechts) {
    m_mausSpalte = spalte;
    m_editRow = zeile;
    m_editCol = spalte;
    if (!rechts)
        return;
    m_combo.sichtbar = false;
    geändert();
    ui().DoEvents(); // the grid finishes its own handling before the popup
    if (m_grid.datenzeilen() == 0)
        return;
    m_knöpfe.zuordnung = zeile >= 1 && zeile < m_grid.Rows() && spalte >= 1 && spalte <= 5;
    geändert();
    emit popupRequested();
}

void EinleseDatenController::gridFokus() {
    if (!m_combo.sichtbar)
        return;
    m_combo.sichtbar = false;
    geändert();
}

// A width of 0 isn't saved: the hidden column of the moment keeps its last width.
void EinleseDatenController::gridFokusVerloren() {
    for (int spalte = 0; spalte < EinleseGrid::Cols; ++spalte)
        if (m_grid.ColWidth(spalte) >= 1)
            settings().SaveSetting(Abschnitt, breitenSchlüssel(spalte),
                                   QString::number(m_grid.ColWidth(spalte)));
}

void EinleseDatenController::setColWidth(int spalte, int twips) {
    if (spalte >= 0 && spalte < EinleseGrid::Cols)
        m_grid.setColWidth(spalte, twips);
}

// ---- the combo box

void EinleseDatenController::MSHFlexGridComboEdit(int keyAscii) {
    if (m_editCol < 1 || m_editRow < 1 || m_editCol == 6)
        return;
    if (m_editCol >= EinleseGrid::Cols || m_editRow >= m_grid.Rows())
        return;
    emit cellVisibleRequested(m_editRow, m_editCol);
    const bool gefüllt = mitFalle([&] {
        Recordset einlese = db().OpenRecordset("0100_EinleseDaten");
        einlese.setAbsolutePosition(m_editRow - 1);
        m_combo.einträge = comboEinträge(m_editCol, einlese);
        m_combo.listIndex = eintragMitSchlüssel(m_combo.einträge, einlese.Field(schlüsselfeld(m_editCol)));
    });
    if (!gefüllt)
        return;
    m_combo.text = m_combo.listIndex >= 0 ? m_combo.einträge[m_combo.listIndex].text : QString();
    m_combo.sichtbar = true;
    m_combo.listeOffen = false;
    comboFokus();
    if (keyAscii >= 0 && keyAscii <= 32) {
        // A choice opened from outside the selection applies to that one row.
        Auswahl& a = m_grid.auswahl;
        if (m_editRow < a.ersteZeile() || m_editRow > a.letzteZeile())
            a.Row = a.RowSel = m_editRow;
        m_combo.listeOffen = true;
    } else {
        comboText(QString(QChar(keyAscii)));
    }
    geändert();
}

void EinleseDatenController::comboFokus() {
    m_tasteGesehen = true;
    m_übernehmen = false;
}

void EinleseDatenController::comboTaste(int keyCode) {
    m_tasteGesehen = true;
    switch (keyCode) {
    case TasteEnter:
        m_übernehmen = true;
        fokusZumGrid();
        break;
    case TasteEscape:
        m_übernehmen = false;
        fokusZumGrid();
        break;
    case TasteHoch:
    case TasteRunter: {
        // Moving through the list and then leaving stores nothing.
        m_tasteGesehen = false;
        const int schritt = keyCode == TasteRunter ? 1 : -1;
        const int ziel = std::clamp(m_combo.listIndex + schritt, 0, int(m_combo.einträge.size()) - 1);
        if (ziel >= 0) {
            m_combo.listIndex = ziel;
            m_combo.text = m_combo.einträge[ziel].text;
        }
        geändert();
        break;
    }
    default:
        break;
    }
}

// A typed text selects the entry it names; anything else selects none, and is not stored.
void EinleseDatenController::comboText(const QString& text) {
    m_combo.text = text;
    m_combo.listIndex = -1;
    for (int i = 0; i < m_combo.einträge.size(); ++i)
        if (m_combo.einträge[i].text.compare(text, Qt::CaseInsensitive) == 0) {
            m_combo.listIndex = i;
            break;
        }
}

void EinleseDatenController::comboKlick(int index) {
    if (index < 0 || index >= m_combo.einträge.size())
        return;
    m_combo.listIndex = index;
    m_combo.text = m_combo.einträge[index].text;
    m_übernehmen = true;
    comboFokusVerloren();
}

void EinleseDatenController::fokusZumGrid() {
    emit gridFocusRequested();
    if (m_combo.sichtbar) // no view took the focus away: the box loses it all the same
        comboFokusVerloren();
}

// The commit: one choice applies to the whole selection, as far as its rows share the parents of
// the first row.
void EinleseDatenController::comboFokusVerloren() {
    m_combo.sichtbar = false;
    m_combo.listeOffen = false;
    const bool speichern = m_tasteGesehen && m_übernehmen && m_combo.listIndex >= 0;
    m_tasteGesehen = false;
    m_übernehmen = false;
    if (!speichern) {
        geändert();
        return;
    }
    const int erste = std::max(1, m_grid.auswahl.ersteZeile());
    const int letzte = std::max(erste, m_grid.auswahl.letzteZeile());
    const ComboEintrag wahl = m_combo.einträge[m_combo.listIndex];
    const int spalte = m_editCol;
    mitFalle([&] {
        zuordnen(erste, letzte, spalte, wahl,
                 [&](long zeile) { m_grid.setTextMatrix(int(zeile), spalte, wahl.text); });
    });
    EinleseGridRefresh(erste, letzte);
}

// ---- buttons and keys

void EinleseDatenController::löschenKlick() {
    const int antwort =
        ui().MsgBox(xText("Sicher Löschen"), modul().anwendungstitel + " - " + xText("Löschen von Datensatz"),
                    MsgStil::ausZahl(260));
    if (antwort != antwort::Ja)
        return;
    const Sanduhr sanduhr;
    mitFalle([&] { zeilenLöschen(); });
    m_knöpfe.löschen = false;
    geändert();
}

void EinleseDatenController::zeilenLöschen() {
    // The header row is no read-in row: a selection reaching into it deletes from the first row.
    const int erste = std::max(1, m_grid.auswahl.ersteZeile());
    const int anzahl = m_grid.auswahl.letzteZeile() - erste + 1;
    Recordset einlese = db().OpenRecordset("0100_EinleseDaten");
    if (!einlese.Eof()) {
        einlese.MoveLast();
        einlese.setAbsolutePosition(erste - 1);
        for (int i = 0; i < anzahl && !einlese.Eof(); ++i) {
            einlese.Delete();
            einlese.MoveNext();
        }
    }
    einlese = db().OpenRecordset("0100_EinleseDaten");
    if (einlese.Eof()) {
        m_grid.setRows(0);
        db().Execute("DELETE * FROM 0100_EinleseGeräteDaten");
        m_knöpfe.übernehmen = false;
        auswahlEreignis();
        return;
    }
    einlese.MoveLast();
    m_grid.auswahl.Row = 0;
    m_grid.auswahl.Col = 0;
    EinleseGridRefresh(1, einlese.RecordCount());
}

void EinleseDatenController::übernehmenKlick() {
    if (!eingesetzteÜbernahme()) {
        ui().MsgBox(xText("Die Datenübernahme ist in diesem Programm nicht eingerichtet."),
                    modul().anwendungstitel);
        return;
    }
    eingesetzteÜbernahme()(*this);
}

// Sends the host on to the results of the certificate.
void EinleseDatenController::editResultsKlick() {
    bool leer = true;
    if (!mitFalle([&] { leer = db().OpenRecordset("0100_EinleseDaten").Eof(); }))
        return;
    if (leer) {
        ui().MsgBox("Read in data is empty, there are no results.", modul().anwendungstitel);
        return;
    }
    modul().EinlesedatenIDRow = 1;
    schließen();
}

void EinleseDatenController::schließenKlick() {
    modul().EinlesedatenID = 0;
    modul().EinlesedatenIDRow = 0;
    schließen();
}

void EinleseDatenController::formTaste(int keyCode) {
    if (keyCode == TasteEscape)
        schließen();
}

} // namespace vemo
