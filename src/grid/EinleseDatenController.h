#pragma once

#include "platform/Dialog.h"

// The meta-object compiler reads no umlauts; it needs nothing of these headers.
#ifndef Q_MOC_RUN
#include "grid/EinleseGrid.h"
#include "grid/Formularzustand.h"
#endif

namespace vemo {

// The form frmEinleseDaten: the read-in grid, where the user sees which customer, plant,
// inspection, board and circuit each measurement will land on, assigns them, deletes rows, and
// starts the take-over. Grid rows count from 1 below the header row 0; columns 0 to 6.
class EinleseDatenController : public DialogController {
    Q_OBJECT
public:
    // Loads the form: captions, column widths, and the grid filled from the read-in table.
    explicit EinleseDatenController(QObject* eltern = nullptr);

    static void datenübernahmeEinsetzen(Datenübernahme übernahme);

    const EinleseGrid& grid() const { return m_grid; }
    const Schaltflächen& schaltflächen() const { return m_knöpfe; }
    const Fortschritt& fortschritt() const { return m_fortschritt; }
    const Beschriftungen& beschriftungen() const { return m_texte; }
    const ComboEdit& combo() const { return m_combo; }
    QString anzahlZeilen() const { return m_anzahlZeilen; }
    int editRow() const { return m_editRow; }
    int editCol() const { return m_editCol; }
    bool tasteGesehen() const { return m_tasteGesehen; }
    bool übernahmeMerker() const { return m_übernehmen; }
    long zeilenAnzahl() const { return m_grid.datenzeilen(); }

    // Fills the grid rows ersteZeile to letzteZeile from the read-in table, resolving the typed
    // numbers to keys and writing those back, until the keys have settled.
    void EinleseGridRefresh(long ersteZeile, long letzteZeile);

    // What the take-over drives while it runs.
    void setFortschritt(const Fortschritt& f);
    void setAnzahlZeilen(const QString& text);
    void setSchaltflächen(const Schaltflächen& s);

    // Events of the grid.
    void gridAuswahl(const Auswahl& auswahl); // the user changed the selection
    void gridDoppelklick();
    void gridTaste(int keyAscii);
    void gridMausRunter(int zeile, int spalte, bool rechts);
    void gridMausHoch(int zeile, int spalte, bool rechts);
    void gridFokus(); // the grid got the focus, scrolled, or left a cell
    void gridFokusVerloren();
    void setColWidth(int spalte, int twips); // the user dragged a column edge

    // Events of the combo box; keys by their key codes (13 Enter, 27 Escape, 38 Up, 40 Down).
    void comboFokus();
    void comboTaste(int keyCode);
    void comboText(const QString& text);
    void comboKlick(int index);
    void comboFokusVerloren();

    // Menu, buttons and the form's keys.
    void mnuZuordnungKlick() { MSHFlexGridComboEdit(32); }
    void löschenKlick();
    void übernehmenKlick();
    void editResultsKlick();
    void schließenKlick();
    void formTaste(int keyCode);

    // Opens the combo box on the cell editRow, editCol; keyAscii 32 is a double click.
    void MSHFlexGridComboEdit(int keyAscii);
    // The selection event: the delete controls and the label of selected rows.
    void auswahlEreignis();

signals:
    void gridFocusRequested();
    void cellVisibleRequested(int row, int col);
    void popupRequested();

private:
    void laden();
    void zeilenLöschen();
    void fokusZumGrid();
    bool übernehmenMöglich() const;
    int gespeicherteBreite(int spalte) const;
    void geändert() { emit aktualisiert(); }

    EinleseGrid m_grid;
    Schaltflächen m_knöpfe;
    Fortschritt m_fortschritt;
    Beschriftungen m_texte;
    ComboEdit m_combo;
    QString m_anzahlZeilen;
    int m_editRow = 0;
    int m_editCol = 0;
    int m_mausSpalte = 0;
    bool m_tasteGesehen = false;
    bool m_übernehmen = false;
};

} // namespace vemo
