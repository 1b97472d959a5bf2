#pragma once

#include "parsers/Zemakvarianten.h"

#include <QString>
#include <functional>
#include <optional>
#include <vector>

namespace vemo {

// A column of a value row, worked out when it is written: a text, or nothing when the model leaves
// the column unset. Reading a field may fail; that failure belongs to the statement that writes it.
using Spaltenwert = std::function<std::optional<QString>()>;

struct Zemakmesszeile {
    Spaltenwert funktion;
    Spaltenwert wert;
    Spaltenwert einheit;
};

// The rows of 0100_EinleseMessDaten that a record gives, in their order: its function code picks
// the measurement, the model's tables fill the rows in. A code the model does not know gives none.
// The rows read the record when they are written, so it must outlive them.
std::vector<Zemakmesszeile> messzeilen(const Variante& variante, const Datensatz& satz);

} // namespace vemo
