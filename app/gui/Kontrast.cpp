#include "Kontrast.h"

#include <algorithm>
#include <cmath>

namespace {

double kanal(double wert) {
    return wert <= 0.03928 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4);
}

double leuchtdichte(const QColor& c) {
    return 0.2126 * kanal(c.redF()) + 0.7152 * kanal(c.greenF()) + 0.0722 * kanal(c.blueF());
}

QColor mischung(const QColor& a, const QColor& b, double anteilB) {
    const auto mix = [anteilB](int x, int y) { return int(std::lround(x + (y - x) * anteilB)); };
    return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}

constexpr double Lesbar = 4.5;

} // namespace

double kontrast(const QColor& a, const QColor& b) {
    const double la = leuchtdichte(a);
    const double lb = leuchtdichte(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor gedämpft(const QColor& text, const QColor& grund) {
    for (double anteil = 0.5; anteil > 0; anteil -= 0.05) {
        const QColor c = mischung(text, grund, anteil);
        if (kontrast(c, grund) >= Lesbar)
            return c;
    }
    return text;
}
