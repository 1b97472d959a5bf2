#pragma once

#include "links/ZemakVarianten.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

namespace vemo::sim {

// What a 37xx instrument holds: its identification and its stored records, kept as the texts
// they travel in.
struct ZemakSpeicher {
    QByteArray kennung;           // the reply to "ID", without its CR
    QByteArray kopf;              // "QD 2,", the count in hexadecimal and a comma; empty: no records
    QList<QByteArray> datensätze; // each ended by its comma, but the last
    QByteArray schluss;           // the two characters between the closing CRs

    bool leer() const { return kopf.isEmpty(); }
    // The reply to "~QD 2.", with its closing CR.
    QByteArray antwort() const;
    // The working file the component saves from it, given the instrument's answers to the clock.
    QByteArray arbeitsdatei(const QByteArray& uhrzeile, const QByteArray& stellantwort) const;

    // The memory a working file holds: the identification line of the variant, and, behind the
    // "QD 2," line, one line a record and the closing line. A file without "QD 2," holds no
    // records. Nothing, and the reason in fehler, when the file is not of the variant.
    static std::optional<ZemakSpeicher> ausArbeitsdatei(const QByteArray& datei,
                                                        const Zemakvariante& variante, QString& fehler);
    // A memory of n records as the variant stores them: six kinds of measurement by turns on the
    // circuits of one board after the other, a minute and a half apart. No records, no memory.
    static ZemakSpeicher erzeugen(const Zemakvariante& variante, int n);
};

// The identification of each variant's instrument as it comes from the factory; its serial number
// has the 8 characters "PS 0," stores.
QByteArray zemakKennung(const Zemakvariante& variante);

} // namespace vemo::sim
