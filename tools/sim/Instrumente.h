#pragma once

#include "Instrument.h"
#include "MultitesterGeraet.h"

#include <QByteArray>
#include <QList>
#include <memory>

namespace vemo::sim {

// The instrument types the simulator knows, by their device type code: how a memory of N records
// looks for the type, and the behaviour that sends it.
struct Instrumenttyp {
    int code;
    QByteArray (*speicherErzeugen)(int datensätze);
    std::unique_ptr<Instrument> (*erstellen)(QByteArray speicher, Takt takt);
};

// The type of that code, or none.
const Instrumenttyp* instrumenttyp(int code);
QList<int> simulierteTypen();

} // namespace vemo::sim
