#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace vemo {

// A serial port of this computer as the system lists it: the device to open, and what tells the
// user which cable it is.
struct Schnittstelle {
    QString gerät;                     // what the port field takes: a device path, on Windows the port's name
    QString beschreibung;              // the driver's or the adapter's text; may be empty
    std::optional<quint16> hersteller; // the USB vendor and product of an adapter
    std::optional<quint16> produkt;

    // One line: the device, its description and "USB vvvv:pppp", separated by two blanks, what is
    // not known left out.
    QString zeile() const;
};

// The serial ports the system knows, sorted by device. A pseudo-terminal is none of them.
QList<Schnittstelle> schnittstellen();

} // namespace vemo
