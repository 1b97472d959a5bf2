#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace vemo {

struct Kontalexmodell;

// The seven fields of the answer to "MWH": behind two fields that say nothing, the model's name and
// the next field (both trimmed), three more, the eighth; last the language, which the models
// without one get as "No Language". Fields end with byte 0.
QStringList geräteinfoLesen(const QByteArray& antwort);

// Writes the record file RS232.TXT of a memory: the device marker, the seven fields of the device,
// a location group for each block with a line for each value, and the end line. A memory without
// blocks gets the end line alone. Returns whether a logger measurement was among the values.
// A code beyond a name table raises error 9 with the groups before it written and no end line;
// file errors raise 75.
bool kontalexTextSchreiben(const QString& pfad, const QStringList& geräteinfo, const QByteArray& dump);

// Puts the logger head in front of the record file: "Datenlogger PRAVITONIX" and the number of
// logged values, worked out from the number of lines.
void loggerKopfSchreiben(const QString& pfad);

} // namespace vemo
