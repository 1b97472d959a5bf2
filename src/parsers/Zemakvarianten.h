#pragma once

#include "parsers/Zemakfelder.h"

#include <QString>
#include <map>
#include <optional>
#include <vector>

// The five 37xx models as tables: where a record keeps what, how the function code is found, and
// what the bits of the mode word mean to each model. One reader and one set of rows serve them all.
namespace vemo {

// A test of the bits of a field read as a number: (field And maske) = wert. So a mask of two
// bits with itself as wert holds only when both are set. Field 0 is the "otherwise" of a table:
// it always holds.
struct Bits {
    int feld = 0;
    quint64 maske = 0;
    quint64 wert = 0;

    bool hält(const Datensatz& satz) const { return feld == 0 || (satz.zahl(feld) & maske) == wert; }
};

// A line of a table of the mode bits: what the record gives when the test holds. No result means
// that the column stays unset although the test held.
template <class T> struct Fall {
    Bits test;
    std::optional<T> ergebnis;
};

// The lines are tested in their order and the first that holds decides; when none holds, the
// column stays unset too.
template <class T> using Wahl = std::vector<Fall<T>>;

template <class T> std::optional<T> wählen(const Wahl<T>& wahl, const Datensatz& satz) {
    for (const Fall<T>& f : wahl)
        if (f.test.hält(satz))
            return f.ergebnis;
    return std::nullopt;
}

// The measurements the models store, each under a function code of its own per model.
enum class Messart {
    Spannung,
    Isolation,
    Durchgang,
    Schleife,
    SchleifeZweiteForm,
    RcdAuslösezeit,
    RcdAuslösestrom,
    Erde,
    Drehfeld,
};

// A loop test gives the rows of the loop or those of the line.
enum class Kreis { Schleife, Leitung };
// Behind the loop impedance stands the resistance N-PE or the short-circuit current.
enum class Schleifenwert { RNpe, Kurzschlussstrom };

// The rated residual current of an RCD test: a fixed text in mA, or the current the instrument
// keeps as a number, in the low ten bits of the test current field or as value C.
struct Nennstrom {
    enum class Quelle { Text, Prüfstrom, WertC };
    Quelle quelle = Quelle::Text;
    QString text;
};

// A value field and the field of its attribute.
struct Wertfeld {
    int wert = 0;
    int attribut = 0;
};

struct Variante {
    QString familienwort;          // the identification line begins with it
    qint16 typ = 0;                // typ of a new Prüfgerät row
    bool umlaufend = false;        // fields are read with GetFeld
    bool weiterNachFehler = false; // a failing statement is shown and the read goes on with the next
    bool speicherprüfung = false;  // board, circuit and memory index are checked record by record
    bool codeaufteilung = false;   // the two codes can be divided into customer, plant, board, circuit

    int anlagefeld = 0; // 0: the plant is not in the record, AnlageNr is anlageOhneFeld
    QString anlageOhneFeld;
    int verteilerfeld = 0;
    int stromkreisfeld = 0;
    int uhrfeld = 0;
    int prüfstromfeld = 0; // rated current in its low ten bits where no fixed code fits
    Wertfeld a, b, c;

    quint64 (*funktionscode)(const Datensatz&) = nullptr;
    std::map<quint64, Messart> funktionen;
    // The fields every record reads as numbers before its function is looked up: a record whose
    // mode word is no number fails, whatever its function.
    std::vector<int> modusfelder;

    std::optional<Wahl<QString>> leiter; // "m_Bemerkung" of a voltage; none: the model writes no such row
    Wahl<QString> isolation;             // Funktion of the insulation resistance
    Wahl<QString> prüfspannung;
    Wahl<QString> durchgang; // Funktion of the continuity
    Wahl<Kreis> kreis;
    Wahl<Schleifenwert> schleifenwert; // behind the loop impedance, first form only
    Wahl<bool> milli;                  // the first value of the second form
    Wahl<QString> stromeinheit;
    Wahl<QString> stromeinheitSchleifeZweiteForm; // of the loop's current in the second form
    Wahl<QString> berührungsgrenze;
    Wahl<Nennstrom> nennstrom;
    Wahl<QString> faktor;
    Wahl<QString> phase;
    Wahl<QString> rcdTyp;
};

namespace variante {
const Variante& zemak();
const Variante& zemak3710B();
const Variante& zemak3720();
const Variante& zemak3740();
const Variante& quentavoir();
} // namespace variante

} // namespace vemo
