#pragma once

#include "Instrument.h"
#include "MultitesterGeraet.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>

namespace vemo::sim {

// The instrument types the simulator knows, by their device type code: how a memory of N records
// looks for the type, and the behaviour that sends it.
struct Instrumenttyp {
    int code;
    QByteArray (*speicherErzeugen)(int datensätze);
    std::unique_ptr<Instrument> (*erstellen)(QByteArray speicher, Takt takt);
    // Types of several models: a memory of N records for the model named, empty for a model the
    // type doesn't know; and what is wrong with a memory given for the model (empty: any model),
    // or an empty text when it fits.
    QByteArray (*speicherDesModells)(int datensätze, const QString& modell) = nullptr;
    QString (*speicherPrüfen)(const QByteArray& speicher, const QString& modell) = nullptr;
};

// The type of that code, or none.
const Instrumenttyp* instrumenttyp(int code);
QList<int> simulierteTypen();

} // namespace vemo::sim
