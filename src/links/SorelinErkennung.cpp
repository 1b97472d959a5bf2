#include "links/SorelinErkennung.h"

#include "core/SorelinRahmen.h"
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
    return f.readAll().contains(sorelin::Startmarke);
}

} // namespace vemo
