#include "grid/Anzeigetext.h"

#include "store/Variant.h"

namespace vemo {

QString codeNrName(const QVariant& code, const QVariant& nr, const QVariant& name) {
    return ohneRandblanks(text(code) + " " + text(nr) + " " + text(name));
}

} // namespace vemo
