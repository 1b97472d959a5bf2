#pragma once

#include <QString>

namespace vemo {

// What answered on a port when it was asked who is there.
struct Gerätefund {
    QString port;
    int typ = 0;    // the device type code; 0 when no instrument answered
    QString name;   // the instrument as it names itself
    QString fehler; // the port could not be opened: why

    bool gefunden() const { return typ != 0; }
    // "PORT: 104 ZEMAK 3710B V3.02", "PORT: nothing answered", "PORT: cannot be opened: ...".
    QString zeile() const;
};

// Asks the instrument on the device who it is, first as one of the 37xx family ("ID" and CR), then
// as one of the Kontalex family ("MWH"): in this order, since a 37xx instrument would take the
// Kontalex command as the start of its next line. The families that send only when their key is
// pressed (the printed dump, the block transfer) cannot be asked: on their port nothing answers.
Gerätefund gerätSuchen(const QString& gerät);

} // namespace vemo
