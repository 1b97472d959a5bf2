#include "takeover/Handler.h"
#include "takeover/Messzeilen.h"

#include <QStringList>
#include <optional>

// RCD tests that the older instruments send as fixed runs of rows: the head row names the test,
// the rows behind it carry its settings and values in an order the instrument keeps.
namespace vemo::handler {
namespace {

// Names of the factor row behind the rated current, in the blocks that may have one.
const QStringList faktorNachAuslösestrom{"IdFI", "IdFI S", "IdRCD", "IdRCD S"};
const QStringList faktorNachNennstrom{"UbFI", "UbFI S", "VcRCD", "VcRCD S"};

// Columns written from consecutive source rows, beginning with the current one.
void reihe(Wertlauf& w, const QStringList& spalten) {
    for (qsizetype i = 0; i < spalten.size(); ++i) {
        if (i > 0)
            w.weiter();
        w.rsMessung.setField(spalten[i], w.wert());
    }
}

// The factor row, where the instrument sends one; without it a selective RCD is still marked.
void faktorOderKennung(Wertlauf& w, const QStringList& faktorNamen, bool selektiv) {
    if (faktorNamen.contains(w.funktion())) {
        w.rsMessung.setField("FIFaktor", faktorText(selektiv, w.wertText()));
        w.weiter();
    } else if (selektiv) {
        w.rsMessung.setField("FIFaktor", "S");
    }
}

// Settings the instrument sent only once, for the test before: they are read from the
// measurement row before the current one, which stays current. Nothing when there is none.
std::optional<QList<QVariant>> vomVorgänger(Recordset& rsMessung, const QStringList& spalten) {
    std::optional<QList<QVariant>> werte;
    rsMessung.MovePrevious();
    if (!rsMessung.Bof()) {
        werte.emplace();
        for (const QString& spalte : spalten)
            werte->append(rsMessung.Field(spalte));
    }
    rsMessung.MoveNext();
    return werte;
}

void vorgängerÜbernehmen(Wertlauf& w, const QStringList& kopiert, const QStringList& folge) {
    const auto vorher = vomVorgänger(w.rsMessung, kopiert);
    w.rsMessung.Edit();
    if (vorher)
        for (qsizetype i = 0; i < kopiert.size(); ++i)
            w.rsMessung.setField(kopiert[i], vorher->at(i));
    reihe(w, folge);
    w.rsMessung.Update();
}

} // namespace

QString faktorText(bool selektiv, const QString& faktor) {
    return (selektiv ? "S x" : "x") + faktor;
}

// Phase, rated current, factor, trip time and touch voltage. A block without its touch voltage
// ends the mapping: it was the last test of the dump.
void fünfZeilenBlock(Wertlauf& w) {
    w.stop = false;
    const bool selektiv = w.funktion().endsWith('S');
    w.rsMessung.Edit();
    reihe(w, {"FGRAD", "FIIDN"});
    w.weiter();
    w.rsMessung.setField("FIFaktor", faktorText(selektiv, w.wertText()));
    w.weiter();
    w.rsMessung.setField("FIT", w.wert());
    w.weiter();
    if (w.rsMess.Eof())
        w.stop = true;
    else
        w.rsMessung.setField("FIUB", w.wert());
    w.rsMessung.Update();
}

void blockMitAuslösestrom(Wertlauf& w) {
    const bool selektiv = w.funktion().endsWith('S');
    w.rsMessung.Edit();
    reihe(w, {"FGRAD", "FIIDN"});
    w.weiter();
    faktorOderKennung(w, faktorNachAuslösestrom, selektiv);
    reihe(w, {"FIIMESS", "FIT", "FIUB"});
    w.rsMessung.Update();
}

void blockNachVorgänger(Wertlauf& w) {
    vorgängerÜbernehmen(w, {"FGRAD", "FIIDN", "FIFaktor"}, {"FIIMESS", "FIT", "FIUB"});
}

void zeitNachVorgänger(Wertlauf& w) {
    vorgängerÜbernehmen(w, {"FGRAD", "FIIDN", "FIFaktor", "FIIMESS"}, {"FIT", "FIUB"});
}

void zeitUndNennstrom(Wertlauf& w) {
    w.rsMessung.Edit();
    w.rsMessung.setField("FIT", w.wert());
    w.weiter();
    w.nachschlagen();
    w.rsMessung.setField("FIIDN", w.umgerechnet());
    w.rsMessung.Update();
}

void berührungsspannungsBlock(Wertlauf& w) {
    const bool selektiv = w.funktion().contains('S', Qt::CaseInsensitive);
    w.rsMessung.Edit();
    w.rsMessung.setField("FIIDN", w.wert());
    w.weiter();
    faktorOderKennung(w, faktorNachNennstrom, selektiv);
    reihe(w, {"FIUB", "FIRE"});
    w.rsMessung.Update();
}

// The touch voltage, and what the row behind it adds: the earth resistance of the same test, with
// the settings of the row before, or the rated current.
void berührungsspannung(Wertlauf& w) {
    feldSchreiben(w.rsMessung, "FIUB", w.wert());
    w.weiter();
    const QString folgend = w.funktion();
    if (folgend == "Re") {
        vorgängerÜbernehmen(w, {"FIIDN", "FIFaktor"}, {"FIRE"});
    } else if (folgend == "Id") {
        w.nachschlagen();
        feldSchreiben(w.rsMessung, "FIIDN", w.umgerechnet());
    }
}

void nennstromUndBerührungsspannung(Wertlauf& w) {
    w.rsMessung.Edit();
    reihe(w, {"FIIDN", "FIUB"});
    w.rsMessung.Update();
}

void halbwelle(Wertlauf& w) {
    feldSchreiben(w.rsMessung, "FGRAD", (w.rsMessung.Text("FGRAD") + " " + w.wertText()).trimmed());
}

} // namespace vemo::handler
