#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <utility>

namespace vemo {

// How the report prints the values of one instrument function: the line under the block's head,
// the label of each value it knows by its mode letter and name ("M Isc"), and the value texts it
// prints in a form of its own.
struct Druckblock {
    QStringList funktionen;
    QString kopf;
    QList<std::pair<QString, QString>> marken;
    QList<std::pair<QString, QString>> werte;

    // The label of a value; empty when the block has none of its own.
    QString marke(const QString& art, const QString& wertname) const;
    // The value and its unit as printed.
    QString wert(const QString& zahl, const QString& einheit) const;
};

// The print block of a function the report knows; nothing for any other. The function is compared
// without the blanks around it.
const Druckblock* druckblockFür(const QString& funktion);

} // namespace vemo
