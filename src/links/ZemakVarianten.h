#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace vemo {

// What tells the five instruments of the 37xx family apart on the line: they share one query
// protocol and differ only in these constants.
struct Zemakvariante {
    QString selektor;
    QByteArray kennung; // looked for in the reply to "ID"; the comma tells 3710 from 3710B
    int zählerstellen;  // hexadecimal digits of the record count behind "QD 2,"
    int satzlänge;      // r: characters of one record with its closing comma
    int kopf;           // h: "QD 2,", count, comma and the closing part, less the last record's comma
    int kommas;         // c: comma-ended fields of one record
    QString suchtext;   // the state while searching, before the port
    QString hinweis;    // what the user is asked to do meanwhile
};

const std::vector<Zemakvariante>& zemakVarianten();
// The variant of a selector, or none.
const Zemakvariante* zemakVariante(const QString& selektor);

} // namespace vemo
