#include "import/Adresse.h"

namespace vemo {

namespace {

bool gehörtZurPlz(QChar c) {
    return c >= QChar('(') && c <= QChar('>');
}

struct Teilung {
    QString plz;
    qsizetype ende = 0; // where the town begins
};

Teilung teilen(const QString& adresse3) {
    const QString text = adresse3.trimmed();
    Teilung t;
    qsizetype i = 0;
    while (i < text.size() && !gehörtZurPlz(text[i]))
        ++i;
    if (i == text.size())
        return t; // no postcode: the whole line is the town
    while (i < text.size() && gehörtZurPlz(text[i]))
        t.plz += text[i++];
    t.ende = i;
    return t;
}

} // namespace

QString sPLZ(const QString& adresse3) {
    return teilen(adresse3).plz;
}

QString sStadt(const QString& adresse3) {
    return adresse3.trimmed().mid(teilen(adresse3).ende).trimmed();
}

} // namespace vemo
