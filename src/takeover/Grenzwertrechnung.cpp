#include "takeover/Grenzwertrechnung.h"

#include "platform/Zahlformat.h"

#include <cmath>

namespace vemo {
namespace {

// The nominal voltage of the installations the loop limit is worked out for.
constexpr double Nennspannung = 230;

// Int() of the system: the greatest integer not above the value.
double ganzerTeil(double x) {
    return std::floor(x);
}

bool gehörtZurZahl(QChar c) {
    return c.unicode() >= 40 && c.unicode() <= 62;
}

} // namespace

QString LoopGrenzwert(const QString& abschaltstrom) {
    if (abschaltstrom.isEmpty())
        return {};
    const auto strom = zahlformat::zahl(abschaltstrom.mid(1));
    if (!strom || *strom <= 0)
        return {};
    return "<" + zahlformat::text(ganzerTeil((Nennspannung / *strom) * 100 + 0.5) / 100);
}

QString FaktorZahl(const QString& fiFaktor) {
    // The end of the number is its last character that can end one: ":" and "=" cannot.
    qsizetype ende = fiFaktor.size() - 1;
    while (ende >= 0 && !(gehörtZurZahl(fiFaktor[ende]) && fiFaktor[ende] != ':' && fiFaktor[ende] != '='))
        --ende;
    if (ende < 0)
        return {};
    qsizetype anfang = ende;
    while (anfang > 0 && gehörtZurZahl(fiFaktor[anfang - 1]))
        --anfang;
    return fiFaktor.mid(anfang, ende - anfang + 1);
}

QString GetRCD_RE(const QString& ub, const QString& fiIdn) {
    const auto spannung = zahlformat::zahl(ub.mid(1));
    const auto nennstrom = zahlformat::zahl(fiIdn);
    if (!spannung || !nennstrom || *spannung <= 0 || *nennstrom == 0)
        return {};
    return "<" + zahlformat::text(ganzerTeil((*spannung / (*nennstrom / 1000)) * 10 + 0.5) / 10);
}

} // namespace vemo
