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
};

// The type of that code, or none.
const Instrumenttyp* instrumenttyp(int code);
QList<int> simulierteTypen();

} // namespace vemo::sim
