#include "core/Worttabelle.h"

#include "core/ModulState.h"

namespace vemo {

QString mnuText(int nummer) {
    const QStringList& t = modul().mnuTexte;
    return nummer >= 0 && nummer < t.size() ? t[nummer] : QString();
}

} // namespace vemo
