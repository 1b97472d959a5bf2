#include "import/Altdatum.h"

#include "platform/Fehler.h"
#include "platform/Zahlformat.h"
#include "store/Variant.h"

#include <QDateTime>

namespace vemo {

QVariant altesDatum(const QVariant& wert) {
    if (wert.typeId() == QMetaType::QDateTime)
        return wert.toDateTime().date();
    if (wert.typeId() == QMetaType::QDate)
        return wert;
    const QString t = istLeer(wert) ? QString() : wert.toString().trimmed();
    if (t.isEmpty())
        return nullWert();
    // ISO date-times may join date and time with a "T".
    const auto d = zahlformat::datum(QString(t).replace('T', ' '));
    if (!d)
        throw fehler::mit(fehler::TypenUnverträglich, t);
    return *d;
}

} // namespace vemo
