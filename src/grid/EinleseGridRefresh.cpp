#include "core/ModulState.h"
#include "core/Sanduhr.h"
#include "grid/EinleseDatenController.h"
#include "grid/GridAbfrage.h"
#include "grid/GridDurchlauf.h"
#include "grid/Sprachregel.h"

namespace vemo {

namespace {

// Keys settle top down, one level a pass; a table whose keys would never settle stops here.
constexpr int HöchstensDurchläufe = 10;

Auswahl begrenzt(Auswahl a, int rows) {
    const auto grenze = [rows](int zeile) { return std::clamp(zeile, 0, std::max(0, rows - 1)); };
    a.Row = grenze(a.Row);
    a.RowSel = grenze(a.RowSel);
    return a;
}

} // namespace

void EinleseDatenController::EinleseGridRefresh(long ersteZeile, long letzteZeile) {
    const Sanduhr sanduhr;
    const Auswahl gemerkt = m_grid.auswahl;
    m_grid.Redraw = false;
    try {
        Recordset einlese = db().OpenRecordset("0100_EinleseDaten");
        Recordset abfrage = db().OpenRecordset(gridAbfrage());
        long anzahl = 0;
        if (!einlese.Eof()) {
            einlese.MoveLast();
            anzahl = einlese.RecordCount();
        }
        m_grid.setRows(int(anzahl) + 1);

        GridDurchlauf durchlauf(m_grid, englischUK());
        if (ersteZeile <= anzahl) {
            for (int n = 1;
                 durchlauf.durchlaufen(einlese, abfrage, ersteZeile, letzteZeile) && n < HöchstensDurchläufe;
                 ++n)
                abfrage.Requery();
        }
        einlese.Close();
        abfrage.Close();

        // Without any date the column of the moment isn't seen at all. The rows outside a refreshed
        // range keep theirs: an assignment to a row without a date does not hide the others'.
        m_grid.setColWidth(6, m_grid.hatMesszeitpunkt() ? gespeicherteBreite(6) : 0);
        m_knöpfe.übernehmen = übernehmenMöglich();
    } catch (const Fehler&) {
        // The refresh ends with the grid as it stands and shows no message of its own.
    }
    m_grid.auswahl = begrenzt(gemerkt, m_grid.Rows());
    m_grid.Redraw = true;
    auswahlEreignis();
    geändert();
}

// A row can be taken over once it has a customer and a plant, or under the certificate rules a
// customer, a plant and an inspection.
bool EinleseDatenController::übernehmenMöglich() const {
    const QString abfrage =
        englischUK()
            ? "SELECT * FROM 0100_EinleseDaten WHERE KundeID <> 0 AND AnlageID <> 0  AND PrüfungID <> 0"
            : "SELECT * FROM 0100_EinleseDaten WHERE KundeID <> 0 AND (AnlageID <> 0 OR AnlageNr <> '')";
    return !db().OpenRecordset(abfrage).Eof();
}

} // namespace vemo
