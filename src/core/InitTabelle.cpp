#include "core/InitTabelle.h"

#include "core/ModulState.h"
#include "store/Recordset.h"
#include "store/Variant.h"

namespace vemo {

QString InitLesen(const QString& name, const QString& standard) {
    // The name goes into the statement as it stands: the names are the component's own.
    const Recordset rs = db().OpenRecordset("SELECT * FROM init WHERE name = '" + name.left(50) + "'");
    return rs.Eof() ? standard : text(rs.Field("wert"));
}

} // namespace vemo
