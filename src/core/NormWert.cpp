#include "core/NormWert.h"

#include "platform/Zahlformat.h"

#include <QStringList>

namespace vemo {

QString NormWert(const QString& wert, const QString& einheit, const QString& operator_) {
    QString w = wert.trimmed();
    if (w.endsWith('!'))
        w.chop(1);
    if (operator_ == "s4") {
        static const QStringList tausendfach{"kA", "kOhm", "GOhm"};
        if (!tausendfach.contains(einheit))
            return w;
        QString zeichen;
        if (w.startsWith('>') || w.startsWith('<')) {
            zeichen = w.left(1);
            w = w.mid(1);
        }
        const auto zahl = zahlformat::zahl(w.trimmed());
        if (!zahl)
            return zeichen + w;
        return zeichen + zahlformat::text(*zahl * 1000);
    }
    if (operator_ == "s4 & s5")
        return w + einheit;
    return {};
}

} // namespace vemo
