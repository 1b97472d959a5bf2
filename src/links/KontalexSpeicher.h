#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

namespace vemo {

// What a transfer from a command-protocol instrument leaves in the raw file RS232.SEP: the answers
// to "MNU", "MWH" and "MSS", every block as it came (the empty block that ends the memory and what
// was fetched behind it included), and the answer to "MEX", which one model never gives.
struct Kontalexspeicher {
    QByteArray anzahl;
    QByteArray wer;
    QByteArray start;
    QList<QByteArray> blöcke;
    QByteArray ende;

    // The raw file, byte for byte.
    QByteArray rohdatei() const;
    // The blocks one behind the other, as the decoders take them.
    QByteArray dump() const;
    QString modell() const;
    // The blocks before the first empty one, as the transfer counts them in the end.
    int blockzahl() const;
};

// Whether the bytes begin as a raw file does: with the answer to "MNU".
bool istKontalexRohdatei(const QByteArray& anfang);

// The parts of a raw file; nothing when it is none. A block cut short stays as far as it came.
std::optional<Kontalexspeicher> kontalexSpeicherLesen(const QByteArray& rohdatei);

} // namespace vemo
