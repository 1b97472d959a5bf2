// The criteria text of FindFirst, over a table of the host data with numbers and texts in it. A
// malformed text is the caller's error 3075, shown by its trap.
#include "Fuzzumgebung.h"

#include "core/ModulState.h"
#include "store/Recordset.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    auto& umgebung = vemo::fuzz::Fuzzumgebung::instanz();
    // FindFirst only reads: the database made once serves every input.
    static const bool bereit = (umgebung.frischerLauf(), true);
    (void)bereit;
    umgebung.ui.meldungen.clear();
    const QString kriterien = QString::fromUtf8(reinterpret_cast<const char*>(daten), qsizetype(größe));
    vemo::mitFalle([&] {
        vemo::Recordset rs = vemo::db().OpenRecordset("0100_Kabeltyp");
        rs.FindFirst(kriterien);
        if (!rs.NoMatch())
            rs.Field(0);
    });
    umgebung.keinInternerFehler();
    return 0;
}
