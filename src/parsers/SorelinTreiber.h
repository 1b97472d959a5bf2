#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>
#include <utility>

namespace vemo {

class Datenbank;

// One row of a driver table: column "1" is its key.
struct Treiberzeile {
    QStringList spalten; // spalten[0] is column "1"

    // The text of a column, counted from 1; a column the table does not have reads as empty.
    QString spalte(int nummer) const { return spalten.value(nummer - 1); }
};

// A value of a measurement block: a run of eight columns of its row, the first at column 8.
struct Wertgruppe {
    static constexpr int ErsteSpalte = 8;
    static constexpr int Breite = 8;

    int größe = 0;    // bytes, 1 to 4
    QString maske;    // hexadecimal; empty: all bits
    QString name;     // the name part
    QString einheit;  // the unit
    QString vorname;  // the first name part, the test
    QString skala;    // the key of the scale list; empty: none
    QString überlauf; // the key of the overflow list; empty: none
    QString stellen;  // decimals; empty: none

    static Wertgruppe aus(const Treiberzeile& zeile, int spalte);
};

// The driver table of a Sorelin instrument type: the image has no meaning by itself, the table
// tells what its blocks hold, where their values lie and how they are scaled. It is host data, a
// table of the database named by the type number and "Sorelin" (as "4120Sorelin"), with text columns
// "1", "2", … . Its rows, by their key in column 1 (compared without regard to case):
//
// - "Version": column 2 the highest firmware version the table knows; "NameDE": column 2 the
//   instrument's name.
// - "StartBlock": column 2 the byte that opens the next circuit in the data block. Without it the
//   data block is one circuit.
// - id + "DE", as "129DE": the measurement block with that id. Column 2 a setting text the block
//   always carries ("500 V"; "(s)" marks a selective RCD), column 7 the number of values, then the
//   values from column 8 on (Wertgruppe). The RCD blocks 20 and 5 name in columns 4 to 6 the lists
//   that read their settings.
// - any other key: a list of pairs in columns 2 and 3, 4 and 5, …: a bit pattern in hexadecimal and
//   what it gives (a divisor in a scale list, ">" or "Kein Overflow" in an overflow list, a text in
//   the lists of the RCD settings). The first pair whose bits all stand in the number counts;
//   pattern 0 matches any number. An empty pattern ends the list.
class SorelinTreiber {
public:
    // The table of the type; raises 3078 when the database has none.
    static SorelinTreiber öffnen(const Datenbank& db, int typ);
    static QString tabellenname(int typ);

    // The first row with that key, or none.
    const Treiberzeile* zeile(const QString& schlüssel) const;
    // The row of the measurement block with that id; raises 3021 when the table does not know it.
    const Treiberzeile& messblock(int id) const;
    QString version() const;
    QString name() const;
    std::optional<uchar> startblock() const;
    // The pairs of a list, in order; empty when the table has no such list.
    QList<std::pair<quint32, QString>> liste(const QString& name) const;
    // What the first matching pair of the list gives for the number; none when the list is not
    // there or no pattern matches.
    std::optional<QString> ausListe(const QString& liste, quint32 zahl) const;
    // All rows in the table's order.
    const QList<Treiberzeile>& zeilen() const { return m_zeilen; }

    static QString messblockSchlüssel(int id) { return QString::number(id) + "DE"; }

private:
    QString m_tabelle;
    QList<Treiberzeile> m_zeilen;
    QHash<QString, qsizetype> m_nachSchlüssel; // lower-case key to the first row with it
};

// A hexadecimal text, with or without "&H" in front, as a number; raises 13 when it is none.
quint32 treiberHexZahl(const QString& text);

// The whole number of the bytes at the position, high byte first; raises 9 past the image's end.
quint32 rohzahl(const QByteArray& bild, qsizetype position, int größe);

// The value text of the value group at column spalte of the driver row, whose bytes begin at the
// position: the number masked, divided by what its scale list gives, with the prefix of its
// overflow list, written with its decimals and "." as the decimal mark.
QString GetSorelinWert(const QByteArray& bild, qsizetype position, const SorelinTreiber& treiber,
                       const Treiberzeile& zeile, int spalte);

// Where the values of the block whose id stands at the position begin. An id with bit 7 set stands
// before its values; the RCD blocks have ids below 128 and share the id's byte with their first
// value, whose mask leaves the id out.
qsizetype werteBeginn(const QByteArray& bild, qsizetype position);

// What follows a measurement block: the next measurement block of the circuit, a start block that
// opens the next circuit, or the end of the data.
enum class Blockart { Messblock, StartBlock, Ende };
struct Blockende {
    qsizetype position; // of the byte behind the block
    Blockart art;
};

// What stands at the position of the data block that ends at datenende.
Blockart blockartBei(const QByteArray& bild, qsizetype position, qsizetype datenende,
                     const SorelinTreiber& treiber);

// From the position of a block's id, the end of the measurement block by its row's values, and what
// stands behind it up to the end of the data. An id the table does not know raises 3021.
Blockende GetMessBlockEnd(const QByteArray& bild, qsizetype position, qsizetype datenende,
                          const SorelinTreiber& treiber);

} // namespace vemo
