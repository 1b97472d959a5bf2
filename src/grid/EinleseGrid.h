#pragma once

#include <QString>
#include <algorithm>
#include <array>
#include <vector>

namespace vemo {

// How a cell of the columns customer to circuit stands towards the master data.
enum class Zellzustand {
    Keiner,    // not yet filled
    Aufgelöst, // the key points to a record
    Anzulegen, // no record, but a typed number: the take-over will create it
    Offen,     // nothing usable
};

// Colours as the system writes them: BGR numbers.
namespace farbe {
constexpr int Systemtext = -1;     // the system colour of button text
constexpr int Blaugrün = 0x808000; // teal
constexpr int Rot = 255;
} // namespace farbe

struct Zelle {
    QString text;
    Zellzustand zustand = Zellzustand::Keiner;
    bool fett = false;
    int farbe = farbe::Systemtext;
    bool festerHintergrund = false; // the background colour of the grid's fixed cells
};

// The cell selection of the grid: Row and Col where it started, RowSel and ColSel where it ends.
struct Auswahl {
    int Row = 0;
    int Col = 0;
    int RowSel = 0;
    int ColSel = 0;

    int ersteZeile() const { return std::min(Row, RowSel); }
    int letzteZeile() const { return std::max(Row, RowSel); }
    bool enthält(int zeile, int spalte) const;
};

// The read-in grid as the form holds it: one fixed header row and one row per read-in row, seven
// columns, each cell with text, font and colour; column widths in twips.
class EinleseGrid {
public:
    static constexpr int Cols = 7;
    static constexpr int Standardbreite = 1740;

    // Rows counts the header row; setting it keeps the cells of the rows that remain.
    int Rows() const { return int(m_zeilen.size()) + 1; }
    void setRows(int anzahl);
    int datenzeilen() const { return int(m_zeilen.size()); }

    const Zelle& zelle(int zeile, int spalte) const;
    QString TextMatrix(int zeile, int spalte) const { return zelle(zeile, spalte).text; }
    void setTextMatrix(int zeile, int spalte, const QString& text);
    // Text, font and colour of one of the three states.
    void setzen(int zeile, int spalte, const QString& text, Zellzustand zustand);
    void setFesterHintergrund(int zeile, int spalte);
    // Whether any read-in row shows its moment of measurement (column 6).
    bool hatMesszeitpunkt() const;

    int ColWidth(int spalte) const;
    void setColWidth(int spalte, int twips);

    Auswahl auswahl;
    bool Redraw = true;

private:
    Zelle& veränderlich(int zeile, int spalte);

    std::array<Zelle, Cols> m_kopf;
    std::vector<std::array<Zelle, Cols>> m_zeilen;
    std::array<int, Cols> m_breiten{Standardbreite, Standardbreite, Standardbreite, Standardbreite,
                                    Standardbreite, Standardbreite, Standardbreite};
};

} // namespace vemo
