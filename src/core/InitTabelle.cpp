#include "core/InitTabelle.h"

#include "core/ModulState.h"
#include "store/Recordset.h"
#include "store/Variant.h"

namespace vemo {

namespace {

// The name goes into the statement as it stands: the names are the component's own.
Recordset initZeile(const QString& name) {
    return db().OpenRecordset("SELECT * FROM init WHERE name = '" + name.left(50) + "'");
}

} // namespace

QString InitLesen(const QString& name, const QString& standard) {
    const Recordset rs = initZeile(name);
    return rs.Eof() ? standard : text(rs.Field("wert"));
}

void InitSchreiben(const QString& name, const QString& wert) {
    Recordset rs = initZeile(name);
    if (rs.Eof()) {
        rs.AddNew();
        rs.setField("name", name.left(50));
    } else {
        rs.Edit();
    }
    rs.setField("wert", wert);
    rs.Update();
}

} // namespace vemo
