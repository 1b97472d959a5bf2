#include "platform/Zahlformat.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vemo::zahlformat {
namespace {

QLocale zahlenLocale(const QLocale& l) {
    QLocale x = l;
    x.setNumberOptions(QLocale::OmitGroupSeparator);
    return x;
}

QLocale ausDerUmgebung() {
    for (const char* name : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        const char* wert = std::getenv(name);
        if (wert && *wert) {
            const QString n = QString::fromLocal8Bit(wert).section('.', 0, 0);
            return zahlenLocale(n == "C" || n == "POSIX" ? QLocale::c() : QLocale(n));
        }
    }
    return zahlenLocale(QLocale::system());
}

Gebietsschema* inKraft = nullptr;

// Where no component is loaded (the simulator, a tool), the locale of the environment holds.
QLocale& ohneKomponente() {
    static QLocale l = ausDerUmgebung();
    return l;
}

QLocale& aktuell() {
    return inKraft ? inKraft->locale : ohneKomponente();
}

QString ohneNachnullen(QString s) {
    if (!s.contains('.'))
        return s;
    while (s.endsWith('0'))
        s.chop(1);
    if (s.endsWith('.'))
        s.chop(1);
    return s;
}

} // namespace

const QLocale& locale() {
    return aktuell();
}

Gebietsschema::Gebietsschema() : locale(ausDerUmgebung()) {
    inKraft = this;
}

Gebietsschema::~Gebietsschema() {
    if (inKraft == this)
        inKraft = nullptr;
}

void setzen(const QLocale& l) {
    aktuell() = zahlenLocale(l);
}

void ausUmgebung() {
    aktuell() = ausDerUmgebung();
}

QString text(double wert) {
    if (std::isnan(wert) || std::isinf(wert))
        return QString::number(wert);
    const double betrag = std::fabs(wert);
    QString s;
    if (betrag != 0 && (betrag >= 1e15 || betrag < 1e-4)) {
        s = QString::number(wert, 'E', 14);
        const int e = s.indexOf('E');
        s = ohneNachnullen(s.left(e)) + s.mid(e);
    } else {
        const int ganzStellen = betrag < 1 ? 1 : int(std::floor(std::log10(betrag))) + 1;
        s = ohneNachnullen(QString::number(wert, 'f', std::max(0, 15 - ganzStellen)));
        if (s == "-0")
            s = "0";
    }
    return s.replace('.', aktuell().decimalPoint());
}

std::optional<double> zahl(const QString& eingabe) {
    static const QRegularExpression muster(R"(^[+-]?(\d+[.,]?\d*|[.,]\d+)([eE][+-]?\d+)?$)");
    const QString t = eingabe.trimmed();
    if (!muster.match(t).hasMatch())
        return std::nullopt;
    bool ok = false;
    const double d = QString(t).replace(',', '.').toDouble(&ok);
    return ok ? std::optional<double>(d) : std::nullopt;
}

namespace {
// Only ASCII digits make a number, as in the pattern Val has always read by.
bool istZiffer(QChar c) {
    return c >= u'0' && c <= u'9';
}

// The length of the number at the start of t: a sign, digits with a point or a point with digits,
// then an exponent written with e or d. 0 where t starts with no number.
qsizetype zahlpräfix(const QString& t) {
    const qsizetype n = t.size();
    qsizetype i = 0;
    const auto ziffern = [&] {
        const qsizetype anfang = i;
        while (i < n && istZiffer(t[i]))
            ++i;
        return i > anfang;
    };
    if (i < n && (t[i] == '+' || t[i] == '-'))
        ++i;
    const bool vorDemPunkt = ziffern();
    const bool punkt = i < n && t[i] == '.';
    if (punkt)
        ++i;
    const bool nachDemPunkt = ziffern();
    if (!vorDemPunkt && !(punkt && nachDemPunkt))
        return 0;
    const qsizetype mantisse = i;
    if (i < n && QStringLiteral("eEdD").contains(t[i])) {
        ++i;
        if (i < n && (t[i] == '+' || t[i] == '-'))
            ++i;
        if (!ziffern())
            return mantisse;
    }
    return i;
}
} // namespace

double val(const QString& eingabe) {
    QString t = eingabe; // shared, not copied, unless it has blanks to drop
    if (t.contains(' ') || t.contains('\t'))
        t.remove(' ').remove('\t');
    if (t.startsWith("&H", Qt::CaseInsensitive)) {
        int n = 2;
        while (n < t.size() && std::isxdigit(t[n].toLatin1()))
            ++n;
        return double(t.mid(2, n - 2).toLongLong(nullptr, 16));
    }
    const qsizetype länge = zahlpräfix(t);
    if (länge == 0)
        return 0;
    // Codes and keys are short runs of digits: their value is exact without the general reader.
    const QStringView zahl = QStringView(t).left(länge);
    if (länge <= 15 && std::all_of(zahl.begin(), zahl.end(), istZiffer)) {
        double ganz = 0;
        for (const QChar c : zahl)
            ganz = ganz * 10 + (c.unicode() - u'0');
        return ganz;
    }
    t.truncate(länge);
    return t.replace('d', 'e').replace('D', 'e').toDouble();
}

QString datumText(const QDate& d) {
    QString format = aktuell().dateFormat(QLocale::ShortFormat);
    if (!format.contains("yyyy"))
        format.replace("yy", "yyyy");
    return aktuell().toString(d, format);
}

QString zeitText(const QTime& t) {
    return t.toString("HH:mm:ss");
}

namespace {
// "2022-06-14" and "14.06.2022", the spellings of the store and of the dumps, read by hand: Qt's
// general parser asks the system for its time zone at every date, which the grid does for every
// row. Anything else, an impossible date among it, goes the general way.
std::optional<QDate> häufigesDatum(const QString& tag) {
    const bool iso = tag.contains('-');
    const QStringList teile = tag.split(iso ? '-' : '.');
    if (teile.size() != 3)
        return std::nullopt;
    int zahl[3];
    for (int i = 0; i < 3; ++i) {
        const QString& teil = teile[i];
        if (teil.isEmpty() || teil.size() > 4 || !std::all_of(teil.begin(), teil.end(), istZiffer))
            return std::nullopt;
        zahl[i] = teil.toInt();
    }
    const auto breite = [&](int i) { return teile[i].size(); };
    QDate d;
    if (iso && breite(0) == 4 && breite(1) == 2 && breite(2) == 2)
        d = QDate(zahl[0], zahl[1], zahl[2]);
    else if (!iso && breite(0) <= 2 && breite(1) <= 2 && breite(2) == 4)
        d = QDate(zahl[2], zahl[1], zahl[0]);
    return d.isValid() ? std::optional<QDate>(d) : std::nullopt;
}
} // namespace

std::optional<QDate> datum(const QString& eingabe) {
    const QString tag = eingabe.trimmed().section(' ', 0, 0);
    if (const auto d = häufigesDatum(tag))
        return d;
    for (const char* f : {"yyyy-MM-dd", "d.M.yyyy", "d/M/yyyy", "d.M.yy"}) {
        QDate d = QDate::fromString(tag, f);
        if (d.isValid() && QString(f).endsWith(".yy") && d.year() < 1950)
            d = d.addYears(100);
        if (d.isValid())
            return d;
    }
    const QDate d = aktuell().toDate(tag, QLocale::ShortFormat);
    return d.isValid() ? std::optional<QDate>(d) : std::nullopt;
}

} // namespace vemo::zahlformat
