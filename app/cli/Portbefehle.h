#pragma once

#include "Optionen.h"

#include <QTextStream>

// "ports": the serial ports of this computer, one a line; 0, also when there are none.
int portsBefehl(QTextStream& aus);

// "detect": asks the ports named by --port (before or behind the command, as often as wanted), or
// every port of the computer, and prints one line a port, what answered or that nothing did. A
// port number maps as for the other commands (the settings' section "Ports" of --settings). 1 when
// no instrument answered on any of them.
int detectBefehl(const Optionen& o, QTextStream& aus);
