#pragma once

#include <QSettings>

namespace vemo {

// Where there is no registry, a root key is an ini-style file: a key is a section
// "[Software\vemotrix\Pfade]", its values the lines "Name=Wert" below it, each value the text as it
// stands behind the first "=" to the line end. Paths with backslashes and lists with commas are
// written there by hand as they would be typed into the registry, so nothing in a value is an
// escape or a separator. A value that begins with "@" (as "@ByteArray(...)") is one of another
// type than text. The component only reads the registry: the format writes nothing.
QSettings::Format registryFormat();

} // namespace vemo
