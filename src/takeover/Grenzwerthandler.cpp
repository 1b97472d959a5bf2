#include "core/ModulState.h"
#include "store/Literal.h"
#include "takeover/Handler.h"

// Limits that the instrument reports itself. They are written over the limit row after it has
// been built from the tables, and so are the strongest.
namespace vemo::handler {
namespace {

void grenzwertSetzen(Wertlauf& w, const QString& spalte, const QVariant& wert) {
    w.rsGrenzwert.Edit();
    w.rsGrenzwert.setField(spalte, wert);
    w.rsGrenzwert.Update();
}

void gemeldeterGrenzwert(Wertlauf& w, const QString& spalte) {
    w.grenzwertHolen();
    grenzwertSetzen(w, spalte, w.umgerechnet());
}

} // namespace

// The insulation limit; the row behind it belongs to it and is passed over.
void isolationsGrenzwert(Wertlauf& w) {
    gemeldeterGrenzwert(w, "RISO");
    w.weiter();
}

void niederohmGrenzwert(Wertlauf& w) {
    gemeldeterGrenzwert(w, "LOW");
}

void erdGrenzwert(Wertlauf& w) {
    gemeldeterGrenzwert(w, "ErdRE");
}

// The test voltage the instrument was set to decides the insulation limit, also when the limit
// row was built before it arrived. An unknown voltage changes nothing.
void isolationNachPrüfspannung(Wertlauf& w) {
    w.grenzwertHolen();
    const Recordset iso =
        db().OpenRecordset("SELECT * FROM 0100_GrenzwertISO WHERE Prüfspannung = " + literal(w.wertText()));
    if (!iso.Eof())
        grenzwertSetzen(w, "RISO", iso.Text("Grenzwert"));
}

} // namespace vemo::handler
