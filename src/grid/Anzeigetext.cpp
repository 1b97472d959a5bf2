#include "grid/Anzeigetext.h"

#include "store/Variant.h"

namespace vemo {

QString ohneRandblanks(const QString& text) {
    qsizetype anfang = 0;
    qsizetype ende = text.size();
    while (anfang < ende && text[anfang] == ' ')
        ++anfang;
    while (ende > anfang && text[ende - 1] == ' ')
        --ende;
    return text.mid(anfang, ende - anfang);
}

QString codeNrName(const QVariant& code, const QVariant& nr, const QVariant& name) {
    return ohneRandblanks(text(code) + " " + text(nr) + " " + text(name));
}

} // namespace vemo
