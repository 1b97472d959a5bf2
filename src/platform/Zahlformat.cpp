#include "platform/Zahlformat.h"

#include <QRegularExpression>
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

double val(const QString& eingabe) {
    QString t;
    for (const QChar c : eingabe)
        if (c != ' ' && c != '\t')
            t += c;
    if (t.startsWith("&H", Qt::CaseInsensitive)) {
        int n = 2;
        while (n < t.size() && std::isxdigit(t[n].toLatin1()))
            ++n;
        return double(t.mid(2, n - 2).toLongLong(nullptr, 16));
    }
    static const QRegularExpression präfix(R"(^[+-]?(\d+\.?\d*|\.\d+)([eEdD][+-]?\d+)?)");
    const auto m = präfix.match(t);
    if (!m.hasMatch())
        return 0;
    return m.captured(0).replace('d', 'e').replace('D', 'e').toDouble();
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

std::optional<QDate> datum(const QString& eingabe) {
    const QString tag = eingabe.trimmed().section(' ', 0, 0);
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
