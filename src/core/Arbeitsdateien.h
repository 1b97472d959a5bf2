#pragma once

#include <QString>

namespace vemo {

// The working files beside the database. Each has one canonical spelling; a file already there is
// found without regard to case, so that a file system that tells case apart behaves like one that
// does not.
namespace datei {
inline const QString Ruvo = "Ruvo.ser";       // the working dump
inline const QString RuvoSav = "Ruvo.SAV";    // copy for the data pool
inline const QString Trans = "Trans.ser";     // intermediate of the dump rewriting
inline const QString Rs232Txt = "RS232.TXT";  // report text of the command protocol
inline const QString Rs232Sep = "Rs232.sep";  // raw block dump
inline const QString Verteil = "Verteil.txt"; // list of boards
inline const QString Mnu = "Ruvo.MNU";        // word tables of the host's installation
inline const QString Mul = "Ruvo.MUL";
inline const QString Sperre = "Arbeitsdateien.lock"; // held by the run that uses the files above
} // namespace datei

// The full path of a working file in Datenbankverzeichnis.
QString arbeitsdatei(const QString& name);

// The file of that name in the folder, whatever its case; the name as given when there is none.
QString ohneGroßKlein(const QString& verzeichnis, const QString& name);

// The whole content of a file; raises 53 or 75 when it cannot be read.
QByteArray dateiLesen(const QString& pfad);

// Copies a file byte for byte over the destination; raises 53 or 75 when that is not possible.
void dateiKopieren(const QString& von, const QString& nach);

} // namespace vemo
