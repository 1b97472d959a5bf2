#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <array>

namespace vemo {

// The value columns of 0100_Messung that a record of the old measurement text fills, in the order
// its value fields stand.
inline constexpr std::array<const char*, 14> Messtextwerte{
    "VISO",  "LoopIKRS", "LoopIKRI", "RISO",   "FIIDN", "FIIMESS", "FIUB",
    "FGRAD", "FIT",      "LOOPRS",   "LOOPRI", "ErdRE", "DREH",    "LOW"};

// One circuit of the old measurement text with what was measured on it.
struct Messkreis {
    QString verteilerCode;  // "001"
    QString stromkreisCode; // "012"
    QString name;
    QString kabel;     // the cable type's name, "NYM-J 3x1,5"
    QString sicherung; // the fuse type's name, "B16"
    QString fiStrom;   // the RCD's rated residual current in mA, "30"
    QString fiArt;     // the RCD's kind, "A"
    std::array<QString, Messtextwerte.size()> werte;
};

// What a measurement text holds: its circuits in order, the names its boards were given (by board
// code), and the faults found, each as the message the user sees. A text with faults brings no
// circuit in.
struct Messtext {
    QList<Messkreis> kreise;
    QHash<QString, QString> verteilernamen;
    QStringList fehler;
};

// Reads the measurement text of a source row; the field layout of both forms is written down in the
// README. Messages pass through the translation.
Messtext messtextLesen(const QString& text);

} // namespace vemo
