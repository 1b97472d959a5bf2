#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

namespace vemo {

// The settings dialog of the 37xx family comes in two variants that differ only in three texts:
// the Quentavoir answers under its maker's name, every other instrument as "ZEMAK".
struct Einstellungsvariante {
    QString name;        // the dialog's name, by which the host knows it
    QString titelZusatz; // behind "Einstellungen" in the caption
    QByteArray kennwort; // looked for in the reply to "ID", whatever its case
    QString rahmen;      // the caption of the code splitting frame
};

// The variant for a device type code: the Quentavoir's for 106, the ZEMAK one for any other.
const Einstellungsvariante& einstellungsvariante(const QVariant& prüfgeräteTyp);

} // namespace vemo
