#include "core/InitTabelle.h"

#include "core/ModulState.h"
#include "store/Literal.h"
#include "store/Recordset.h"
#include "store/Variant.h"

namespace vemo {

namespace {

Recordset initZeile(const QString& name) {
    return db().OpenRecordset("SELECT * FROM init WHERE name = " + literal(name.left(50)));
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
