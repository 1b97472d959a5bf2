#pragma once

#include "Instrument.h"
#include "Verhalten.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <functional>
#include <memory>

namespace vemo::sim {

// The instrument types the simulator knows, by their device type code: the line speed of the
// family, how a memory of N records looks for the type (in the form --memory takes), and the
// behaviour that holds a memory.
struct Instrumenttyp {
    int code;
    int baud;
    std::function<QByteArray(int datensätze)> speicherErzeugen;
    // Nothing, and the reason in fehler, when the memory is not of this type.
    std::function<std::unique_ptr<Instrument>(const QByteArray& speicher, const Verhalten& verhalten,
                                              QString& fehler)>
        erstellen;
    // Types of several models: a memory of N records for the model named, empty for a model the
    // type doesn't know; and what is wrong with a memory given for the model (empty: any model),
    // or an empty text when it fits.
    std::function<QByteArray(int datensätze, const QString& modell)> speicherDesModells = {};
    std::function<QString(const QByteArray& speicher, const QString& modell)> speicherPrüfen = {};
};

// The type of that code, or none.
const Instrumenttyp* instrumenttyp(int code);
QList<int> simulierteTypen();

} // namespace vemo::sim
