#pragma once

#include <QString>
#include <QStringList>

namespace vemo {

class Textdatei;

// The logger part of a dump in report form: behind the mark "DATEN LOGGER" the head lines
// "ANZAHL MEßWERTE = ", "INTERVALL       =  " (seconds), "UL-N(L) MAX     =  " and
// "UL-N(L) MIN     =  " (volts), found by their labels whatever blank or separator lines stand
// before or between them, then one value a line to the end of the series.
struct Loggerreihe {
    QString anzahl;
    QString intervall;
    QString maximum;
    QString minimum;
    // The voltage was taken between line and protective earth ("UL-PE MAX"), not line and neutral.
    bool leiterPE = false;
    QStringList werte;
};

// One of the four marks of a logger record, the line trimmed and in full.
bool istLoggerMarke(const QString& zeile);

// Reads the head lines and the values from the line behind the mark on; the series ends with the
// first line behind its values that is no number, or with the file. A head line missing leaves its
// caption empty. Reading errors are raised.
Loggerreihe loggerreiheLesen(Textdatei& datei);

// The seconds of the interval caption ("60"); 0 when it holds no number.
qint64 intervallSekunden(const QString& intervall);

} // namespace vemo
