#include "grid/EinleseGrid.h"

#include "platform/Fehler.h"

namespace vemo {

namespace {

struct Darstellung {
    bool fett;
    int farbe;
};

Darstellung darstellung(Zellzustand z) {
    switch (z) {
    case Zellzustand::Anzulegen:
        return {true, farbe::Blaugrün};
    case Zellzustand::Offen:
        return {true, farbe::Rot};
    default:
        return {false, farbe::Systemtext};
    }
}

} // namespace

bool Auswahl::enthält(int zeile, int spalte) const {
    return zeile >= ersteZeile() && zeile <= letzteZeile() && spalte >= std::min(Col, ColSel) &&
           spalte <= std::max(Col, ColSel);
}

void EinleseGrid::setRows(int anzahl) {
    m_zeilen.resize(size_t(std::max(0, anzahl - 1)));
}

const Zelle& EinleseGrid::zelle(int zeile, int spalte) const {
    return const_cast<EinleseGrid*>(this)->veränderlich(zeile, spalte);
}

Zelle& EinleseGrid::veränderlich(int zeile, int spalte) {
    if (zeile < 0 || zeile >= Rows() || spalte < 0 || spalte >= Cols)
        throw Fehler(381, "Ungültiger Index für Zeilen/Spaltenwert");
    return zeile == 0 ? m_kopf[size_t(spalte)] : m_zeilen[size_t(zeile - 1)][size_t(spalte)];
}

void EinleseGrid::setTextMatrix(int zeile, int spalte, const QString& text) {
    veränderlich(zeile, spalte).text = text;
}

void EinleseGrid::setzen(int zeile, int spalte, const QString& text, Zellzustand zustand) {
    Zelle& z = veränderlich(zeile, spalte);
    const Darstellung d = darstellung(zustand);
    z.text = text;
    z.zustand = zustand;
    z.fett = d.fett;
    z.farbe = d.farbe;
}

bool EinleseGrid::hatMesszeitpunkt() const {
    return std::any_of(m_zeilen.begin(), m_zeilen.end(), [](const auto& z) { return !z[6].text.isEmpty(); });
}

void EinleseGrid::setFesterHintergrund(int zeile, int spalte) {
    veränderlich(zeile, spalte).festerHintergrund = true;
}

int EinleseGrid::ColWidth(int spalte) const {
    return m_breiten.at(size_t(spalte));
}

void EinleseGrid::setColWidth(int spalte, int twips) {
    m_breiten.at(size_t(spalte)) = std::max(0, twips);
}

} // namespace vemo
