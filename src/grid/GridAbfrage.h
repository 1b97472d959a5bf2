#pragma once

#include <QString>

namespace vemo {

// One level of the hierarchy below the customer whose record is found either by its key or by its
// typed number against the Code of its table: plant, board and circuit.
struct Nummernebene {
    int spalte;            // the grid column
    const char* schlüssel; // the key field of the read-in row and of the table
    const char* nummer;    // the typed number of the read-in row
    const char* alias;     // the columns of the table joined by key: alias + "_" + field
    const char* alias1;    // ... and of the table joined by number
    // Without record and without number: the text of a record the take-over creates all the same,
    // or null when the level stays unresolved ("???").
    const char* ohneNummer;
};

// A circuit without number marks a measurement that belongs to no circuit: an RCD analysis series.
inline constexpr Nummernebene Anlagenebene{2, "AnlageID", "AnlageNr", "Anlage", "Anlage_1", nullptr};
inline constexpr Nummernebene Verteilerebene{4,           "VerteilerID", "VerteilerNr",
                                             "Verteiler", "Verteiler_1", nullptr};
inline constexpr Nummernebene Stromkreisebene{
    5, "StromkreisID", "StromkreisNr", "Stromkreis", "Stromkreis_1", "FI-Analyse"};

// The aggregate query that joins every candidate record to every read-in row: the records by key,
// the records by typed number (the "_1" aliases), one group a combination, ordered by MessungID.
// The columns of the two aliases of one table carry the alias in their names, so that they can
// be told apart: Anlage_AnlageID, Anlage_1_Code, Kunde_1_KundeID and so on.
QString gridAbfrage();

} // namespace vemo
