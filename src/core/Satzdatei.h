#pragma once

#include "platform/Textdatei.h"

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <array>
#include <initializer_list>

namespace vemo {

// The record file of the command-protocol instruments (RS232.TXT): records of eight values, texts
// in double quotes, numbers bare, separated by commas, lines ended by CR LF.
namespace kontalexsatz {
inline const QString Gerätemarke = "- - - -     Start Gerätedaten      - - - -";
inline const QString Blockmarke = "- - - - Start Verteiler, Stromkreis, Platz, Messungen - - - -";
inline const QString Endemarke = "----Dateiende----";
inline const QString Loggerkopf = "Datenlogger PRAVITONIX";
constexpr int Werte = 8;
} // namespace kontalexsatz

// The eight values a1 to a8 of one record, as text.
struct Satz {
    std::array<QString, kontalexsatz::Werte> a;
    const QString& a1() const { return a[0]; }
};

// Reads a record file one record at a time, across line ends as the values come.
class Satzleser {
public:
    // Raises 53 or 75 when the file cannot be read.
    explicit Satzleser(const QString& pfad) : m_datei(pfad) {}

    bool eof() const { return m_datei.eof(); }
    // Overwrites the values one after the other; a read past the end raises 62, and the values not
    // reached keep what they held.
    void lesen(Satz& satz);

private:
    Textdatei m_datei;
};

// One record as a line of the file, texts quoted and numbers bare, in the Windows code page.
QByteArray satzzeile(std::initializer_list<QVariant> werte);

} // namespace vemo
