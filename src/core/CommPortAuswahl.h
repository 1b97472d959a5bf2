#pragma once

#include <QString>
#include <memory>

namespace vemo {

class CommPort;

// The device of a port number: "COMn" on Windows; elsewhere the path set for "COM<n>" in the
// settings section "Ports", else /dev/ttyS(n-1). Empty for numbers below 1, which no port has.
QString portGerät(int nummer);

// The device the component's links use: a path given directly (command line) wins over the
// mapping of the CommPort number.
QString modulPortGerät();

// A new, closed serial control: the module's factory when one is set (tests hand out an in-memory
// end), else one over the real device.
std::unique_ptr<CommPort> neuerCommPort();

} // namespace vemo
