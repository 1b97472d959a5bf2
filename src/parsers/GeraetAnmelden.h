#pragma once

#include <QString>
#include <optional>

namespace vemo {

// What sets the instrument families apart in the header step of their parsers. The step itself is
// the same for all: a row of 0100_EinleseGeräteDaten for the read-in, and the instrument looked up
// in the register Prüfgerät by its serial number.
struct Gerätefamilie {
    QString name;                      // PrüfgerätName of the read-in; empty: the name the instrument gives
    QString bezeichnung;               // Bezeichnung of a new register row, translated when the row is made;
                                       // empty: the PrüfgerätName of the read-in, untranslated
    qint16 typ = 0;                    // typ of a new register row
    bool mitAktuellemPrüfgerät = true; // the read-in starts with the current instrument as PrüfgerätID
    bool ohneSeriennummerKopfFehlt = false; // a serial transfer without serial number is a missing head
    bool einstellungMerken = false;         // the instrument is remembered as setting "PrüfgeräteID"
};

namespace familie {
inline const Gerätefamilie Corvex{"0100-Corvex", "0100-Corvex", 100, true, true, false};
inline const Gerätefamilie Multitester{"0100-Varitron", "0100-Varitron", 100, true, false, true};
// The Kontalex parser names a new register row after the model; it sets bezeichnung per model.
inline const Gerätefamilie Kontalex{{}, {}, 101, false, false, true};
// The query-protocol families (typ 103 to 106) name the instrument in their identification line.
inline Gerätefamilie abfrageprotokoll(qint16 typ) {
    return {{}, {}, typ, true, false, false};
}
} // namespace familie

// What an instrument tells of itself. A family whose head names no version leaves the column
// Null; a version the instrument left empty is an empty text.
struct Kennung {
    QString name;
    std::optional<QString> version;
    QString seriennummer;
};

// The identification line "name,version,serial": the name before the first comma, the serial number
// behind the last, the version between. A line with fewer than two commas raises error 5.
Kennung kennzeileZerlegen(const QString& zeile);
// Its parts one at a time, for a parser that goes on behind a failed part. The name needs a comma
// behind it, the version a comma on either side (error 5 otherwise); a line without comma is the
// serial number as a whole.
QString kennungName(const QString& zeile);
QString kennungVersion(const QString& zeile);
QString kennungSeriennummer(const QString& zeile);

// The header step of a parser: adds the read-in's row to 0100_EinleseGeräteDaten and looks the
// serial number up in the register. A known instrument becomes the current one
// (modul().aktuellesPrüfgerät); an unknown one is registered only on a serial transfer
// (modul().dateinameGewählt empty), and read from a file it stays unregistered. Returns the
// GeräteID of the new row, or nothing when the head was refused ("Messdaten Kopf fehlt" shown,
// Abbruchmerker set, nothing written). Store errors are raised to the parser's trap; the row is
// then not written.
std::optional<qint32> GerätAnmelden(const Gerätefamilie& familie, const Kennung& kennung);

} // namespace vemo
