#pragma once

#include <QVariant>

namespace vemo {

// Values of fields and of the host's variant properties. An invalid QVariant is Empty (never set);
// a QVariant holding nullptr is Null (a field without a value).
inline QVariant nullWert() {
    return QVariant::fromValue(nullptr);
}
inline bool istEmpty(const QVariant& v) {
    return !v.isValid();
}
inline bool istNull(const QVariant& v) {
    return v.isValid() && v.isNull();
}
inline bool istLeer(const QVariant& v) {
    return !v.isValid() || v.isNull();
}

// Whether the value is held as a number (a truth value counts, as -1 and 0).
bool istZahl(const QVariant& v);

// The value appended to an empty text: Null and Empty give "", numbers and dates are written in
// the one number locale.
QString text(const QVariant& v);

// The value as a number; Null raises 94, a text that is no number 13.
double zahl(const QVariant& v);
qint64 ganzzahl(const QVariant& v);

// Whether two values are equal the way a key comparison sees them: numbers by value, texts
// without regard to case; Null equals nothing.
bool gleich(const QVariant& a, const QVariant& b);

} // namespace vemo
