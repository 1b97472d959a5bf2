#pragma once

#include "grid/EinleseGrid.h"
#include "grid/GridAbfrage.h"
#include "store/Recordset.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QVariant>

namespace vemo {

// One pass of the grid refresh: walks the read-in table from a first to a last row alongside the
// grid query, fills the grid rows and writes back every key that the master data settles. The
// query is searched forward from where it stands, so that it is walked once with the table.
class GridDurchlauf {
public:
    GridDurchlauf(EinleseGrid& grid, bool englischUK);

    // Rows counted from 1. True when a key was written: the query must then be read anew and the
    // pass repeated.
    bool durchlaufen(Recordset& einlese, Recordset& abfrage, long ersteZeile, long letzteZeile);

private:
    // The query row the read-in row is judged against; Null everywhere when the query has none.
    class Abfragezeile {
    public:
        explicit Abfragezeile(const Recordset& abfrage);
        QVariant operator[](const QString& feld) const;
        const Recordset& recordset() const { return m_rs; }

    private:
        const Recordset& m_rs;
        bool m_hatZeile;
        mutable QHash<QString, int> m_index;
    };

    // The keys a row gets written; one update a row, and only where a key differs.
    struct Schlüsseländerungen {
        QList<QPair<QString, QVariant>> felder;
        void setzen(const Recordset& zeile, const QString& feld, const QVariant& wert);
        void nullen(const Recordset& zeile, const QString& feld);
    };

    void zeileFüllen(Recordset& einlese, const Abfragezeile& abfrage, bool mitZähler);
    void gerätMerken(const QVariant& geräteID, bool mitZähler, int gridZeile);
    void kunde(const Recordset& einlese, const Abfragezeile& a, int zeile, Schlüsseländerungen& ä);
    void nummernebene(const Nummernebene& e, const Recordset& einlese, const Abfragezeile& a, int zeile,
                      Schlüsseländerungen& ä);
    void prüfung(const Recordset& einlese, const Abfragezeile& a, int zeile, Schlüsseländerungen& ä);
    void messzeitpunkt(const Recordset& einlese, int zeile);
    QString datumDerNeuenPrüfung(const Recordset& einlese) const;

    EinleseGrid& m_grid;
    const bool m_englischUK;
    QVariant m_geräteID;
    QString m_prüfgerätName;
    int m_geräteZähler = 0;
    int m_messungZähler = 0;
    bool m_geändert = false;
    // Today as a new inspection shows it, taken once a pass: asking the clock for the local date
    // asks the system for its time zone.
    const QString m_heute;
};

} // namespace vemo
