#pragma once

#include <QtGlobal>

namespace vemo {

// Blanks cut at both ends, and only blanks, as the system's trimming of a text does: tabs, CR and
// LF stay. For QString and QByteArray alike.
template <class Text> Text ohneRandblanks(const Text& text) {
    qsizetype anfang = 0;
    qsizetype ende = text.size();
    while (anfang < ende && text[anfang] == ' ')
        ++anfang;
    while (ende > anfang && text[ende - 1] == ' ')
        --ende;
    return text.mid(anfang, ende - anfang);
}

} // namespace vemo
