#pragma once

#include <QVariant>

namespace vemo {

// The keys a take-over run has found or created for the read-in row in hand. The run sets them
// row by row; the value mapping reads them, so that every new measurement row lands on the
// circuit being taken over.
struct Laufschlüssel {
    QVariant anlageID = 0;
    QVariant prüfungID = 0;
    QVariant verteilerID = 0;
    QVariant stromkreisID = 0;
};

// The run keys of the module state.
Laufschlüssel& laufschlüssel();

} // namespace vemo
