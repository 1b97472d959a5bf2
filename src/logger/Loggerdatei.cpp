#include "logger/Loggerdatei.h"

#include "platform/Textdatei.h"
#include "platform/Zahlformat.h"

#include <algorithm>

namespace vemo {
namespace {

// Where the value of a head line begins: behind "=" and its blank, at the 19th character.
constexpr int Wertspalte = 18;

// The value of a head line, without its unit.
QString kopfwert(const QString& zeile) {
    return zeile.mid(Wertspalte).trimmed().section(' ', 0, 0);
}

struct Kopfzeile {
    QString anfang;
    QString Loggerreihe::*feld;
};

// The head lines by their beginning; the two voltage lines are told apart by their word.
const Kopfzeile Kopfzeilen[] = {
    {"ANZAHL", &Loggerreihe::anzahl},
    {"INTERVALL", &Loggerreihe::intervall},
};

bool kopfzeileLesen(const QString& zeile, Loggerreihe& r) {
    for (const Kopfzeile& k : Kopfzeilen)
        if (zeile.startsWith(k.anfang)) {
            r.*(k.feld) = kopfwert(zeile);
            return true;
        }
    const QString name = zeile.left(Wertspalte);
    if (!name.startsWith("U") || (!name.contains("MAX") && !name.contains("MIN")))
        return false;
    (name.contains("MAX") ? r.maximum : r.minimum) = kopfwert(zeile);
    r.leiterPE = zeile.mid(1, 3) == "L-P";
    return true;
}

// A line that carries nothing between the mark, the head lines and the values: blank, or a rule of
// dashes or underscores.
bool istTrennzeile(const QString& zeile) {
    return std::none_of(zeile.begin(), zeile.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

} // namespace

bool istLoggerMarke(const QString& zeile) {
    static const QStringList marken{"DATEN LOGGER", "DATEN LOGGERI", "DATA LOGGERI", "DATA LOGGER"};
    return marken.contains(zeile.trimmed());
}

Loggerreihe loggerreiheLesen(Textdatei& datei) {
    Loggerreihe r;
    bool imKopf = true;
    while (!datei.eof()) {
        const QString zeile = datei.zeileLesen();
        if (imKopf && (istTrennzeile(zeile) || kopfzeileLesen(zeile, r)))
            continue;
        imKopf = false;
        if (!zahlformat::istNumerisch(zeile.trimmed()))
            break;
        r.werte << zeile.trimmed();
    }
    return r;
}

qint64 intervallSekunden(const QString& intervall) {
    return qint64(zahlformat::zahl(intervall).value_or(0));
}

} // namespace vemo
