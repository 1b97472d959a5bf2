#include "store/Variant.h"

#include "platform/Fehler.h"
#include "platform/Zahlformat.h"

#include <QDate>
#include <QDateTime>
#include <cmath>

namespace vemo {

bool istZahl(const QVariant& v) {
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Bool:
        return true;
    default:
        return false;
    }
}

QString text(const QVariant& v) {
    if (istLeer(v))
        return {};
    switch (v.typeId()) {
    case QMetaType::Bool:
        return v.toBool() ? "-1" : "0";
    case QMetaType::Double:
    case QMetaType::Float:
        return zahlformat::text(v.toDouble());
    case QMetaType::QDate:
        return zahlformat::datumText(v.toDate());
    case QMetaType::QDateTime: {
        const QDateTime dt = v.toDateTime();
        if (dt.time() == QTime(0, 0))
            return zahlformat::datumText(dt.date());
        return zahlformat::datumText(dt.date()) + " " + zahlformat::zeitText(dt.time());
    }
    default:
        return v.toString();
    }
}

double zahl(const QVariant& v) {
    if (istNull(v))
        throw fehler::mit(fehler::UnzulässigNull);
    if (istEmpty(v))
        return 0;
    if (v.typeId() == QMetaType::Bool)
        return v.toBool() ? -1 : 0;
    if (istZahl(v))
        return v.toDouble();
    if (const auto d = zahlformat::zahl(v.toString()))
        return *d;
    throw fehler::mit(fehler::TypenUnverträglich);
}

qint64 ganzzahl(const QVariant& v) {
    const double d = zahl(v);
    // Round half to even, as the conversion to a whole number of the system does.
    return qint64(std::nearbyint(d));
}

bool gleich(const QVariant& a, const QVariant& b) {
    if (istNull(a) || istNull(b))
        return false;
    const bool zahlA = istZahl(a) || istEmpty(a);
    const bool zahlB = istZahl(b) || istEmpty(b);
    if (zahlA || zahlB) {
        const auto x = zahlA ? std::optional<double>(zahl(a)) : zahlformat::zahl(a.toString());
        const auto y = zahlB ? std::optional<double>(zahl(b)) : zahlformat::zahl(b.toString());
        return x && y && *x == *y;
    }
    return text(a).compare(text(b), Qt::CaseInsensitive) == 0;
}

} // namespace vemo
