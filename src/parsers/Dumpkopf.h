#pragma once

#include <QString>

namespace vemo {

class Textdatei;

// The head that the text dumps of the Multitester family share: title lines up to the first line
// beginning with "---", then the device line, whose first four characters tell the format and whose
// last eleven are the instrument's serial number.
QString geräteZeileLesen(Textdatei& datei);

// The older Multitester table format: a device line beginning "5830" or "5831".
bool istMultitesterTabelle(const QString& geräteZeile);

// The report format names its instrument with four characters that read as a number of four.
bool istCorvexBericht(const QString& geräteZeile);

QString seriennummerDerGeräteZeile(const QString& geräteZeile);

// The dump has no head that can be read: "Messdaten Kopf fehlt", and the run is aborted.
void kopfFehlt();

} // namespace vemo
