#pragma once

#include <QDate>
#include <QDateTime>
#include <QLocale>
#include <QString>
#include <optional>

namespace vemo::zahlformat {

// The one number locale of the component. Values become text with it, and texts are read back
// with it; by default it is the system's (LC_ALL, LC_NUMERIC, LANG), on the command line --locale.
// It lives in the module state, so that loading the component anew starts from the system's again:
// the newest Gebietsschema is the one in force while it lives.
class Gebietsschema {
public:
    Gebietsschema();
    ~Gebietsschema();
    Gebietsschema(const Gebietsschema&) = delete;
    Gebietsschema& operator=(const Gebietsschema&) = delete;

    QLocale locale;
};

const QLocale& locale();
void setzen(const QLocale& locale);
void ausUmgebung();

// A number as text the way the system writes numbers: the locale's decimal mark, no group
// separators, no trailing zeros, at most 15 significant digits.
QString text(double wert);

// Reads a number text. Instrument dumps come with a decimal comma or a decimal point, so both
// count as the decimal mark; a text with both, with two marks, or with anything else that is not
// part of a number is not numeric.
std::optional<double> zahl(const QString& text);
inline bool istNumerisch(const QString& t) {
    return zahl(t).has_value();
}

// The numeric prefix of a text, read as far as it goes: blanks are skipped, "." is the only
// decimal mark, "&H" starts a hexadecimal number; nothing numeric reads as 0.
double val(const QString& text);

// Dates as the user reads them in this locale, with a four-digit year.
QString datumText(const QDate& datum);
QString zeitText(const QTime& zeit);
std::optional<QDate> datum(const QString& text);

} // namespace vemo::zahlformat
