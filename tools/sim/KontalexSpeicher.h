#pragma once

#include "links/KontalexModelle.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace vemo::sim {

// How a command-protocol instrument stores what it measured: a block for each measurement, laid
// out by the model's block form, behind the instrument's answers to "MNU", "MWH" and "MSS".

// A value of a measurement: kind letter (R reading, P parameter, M limit), value and unit code of
// the model's tables, the value as text.
struct Messfeld {
    char art;
    int wertcode;
    int einheitcode;
    QByteArray wert;
};

struct Messung {
    int funktion;
    QList<Messfeld> felder;
};

// Where and when: object, circuit and place as the instrument counts them.
struct Messort {
    int objekt = 1;
    int stromkreis = 1;
    int platz = 1;
    QByteArray zeit;
    QByteArray datum;
    int satz = 1; // the running number the high-voltage model keeps
};

namespace kontalex {
inline const QByteArray Bestätigt("SER\x01\x01", 5);
inline const QByteArray Abgelehnt("SER\x00\x00", 5); // the fourth byte says no
inline const QByteArray Endblock("SRE\0", 4);
inline const QStringList Seriennummern{"11840217", "11731544", "11900733", "15300412"};
} // namespace kontalex

// One block of the memory; a measurement too long for the length byte is cut at 255 bytes.
QByteArray kontalexBlock(Blockform form, const Messort& ort, const Messung& messung);

// The answer to "MNU" for a number of blocks, and the answer to "MWH" of a model: two fields that
// say nothing, the model's name, its variant, version, hardware, serial number, calibration date,
// and the language where the model names one.
QByteArray anzahlAntwort(int blöcke);
QByteArray werAntwort(const QString& modell, const QString& seriennummer);

// A raw file as the component saves it, of the blocks given: the answers, the blocks, the end
// block, and the answer to "MEX" where the model gives one.
QByteArray kontalexRohdatei(const QString& modell, const QList<QByteArray>& blöcke);

// A plausible memory of that many measurements for the model, as a raw file: the tests each model
// has, place after place, board after board, with values that differ from block to block. Empty for
// a model that isn't simulated.
QByteArray kontalexSpeicher(int messungen, const QString& modell);

} // namespace vemo::sim
