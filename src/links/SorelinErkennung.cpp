#include "links/SorelinErkennung.h"

#include "platform/Fehler.h"

#include <QFile>
#include <QFileInfo>

namespace vemo {

bool CheckSorelinTyp(const QString& pfad) {
    QFile f(pfad);
    if (!QFileInfo::exists(pfad))
        throw fehler::mit(fehler::DateiNichtGefunden, pfad);
    if (!f.open(QIODevice::ReadOnly))
        throw fehler::mit(fehler::PfadZugriff, pfad);
    static const QByteArray startmarke("\xFF\xD5\xD5\xD5", 4);
    return f.readAll().contains(startmarke);
}

} // namespace vemo
