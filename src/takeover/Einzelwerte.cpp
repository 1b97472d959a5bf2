#include "core/ModulState.h"
#include "takeover/Handler.h"
#include "takeover/Messzeilen.h"

#include <QStringList>

// Values that stand alone or in pairs: the phase rotation, the phase and kind of an RCD test,
// continuity and loop impedance with the short-circuit current behind it.
namespace vemo::handler {

// The rotation as the instrument writes the sequence of the phases. A bare "3" says only that
// three phases were there, and is no direction.
void drehfeld(Wertlauf& w) {
    static const QStringList rechts{"1.2.3", "123"};
    static const QStringList links{"2.1.3", "3.2.1", "321"};
    const QString folge = w.wertText();
    if (folge == "3")
        return;
    QVariant richtung = w.wert();
    if (rechts.contains(folge))
        richtung = xText("Rechts");
    else if (links.contains(folge))
        richtung = xText("Links");
    feldSchreiben(w.rsMessung, "DREH", richtung);
}

// The phase of an RCD test stands in the unit column of its row.
void fiPhase(Wertlauf& w) {
    feldSchreiben(w.rsMessung, "FGRAD", w.zeileneinheit());
}

void fiTyp(Wertlauf& w) {
    if (w.zeileneinheit() == "Selective")
        feldSchreiben(w.rsMessung, "FIFaktor", "S " + w.rsMessung.Text("FIFaktor"));
}

// The continuity value whose two single measurements with either polarity follow; they are
// dropped.
void niederohmMitSprung(Wertlauf& w) {
    niederohm(w);
    w.rsMess.Move(2);
}

void niederohm(Wertlauf& w) {
    feldSchreiben(w.rsMessung, "LOW", w.umgerechnet());
}

namespace {
// An impedance and the short-circuit current on the row behind it, each in its own unit.
void schleifeMitStrom(Wertlauf& w, const QString& impedanz, const QString& strom) {
    w.rsMessung.Edit();
    w.rsMessung.setField(impedanz, w.umgerechnet());
    w.weiter();
    w.nachschlagen();
    w.rsMessung.setField(strom, w.umgerechnet());
    w.rsMessung.Update();
}
} // namespace

void schleifeRi(Wertlauf& w) {
    schleifeMitStrom(w, "LOOPRI", "LoopIKRI");
}

void schleifeZs(Wertlauf& w) {
    schleifeMitStrom(w, "LOOPRS", "LoopIKRS");
}

// The short-circuit current of the N-PE loop has no column: it is kept as a line of its own kind.
void kurzschlussNPE(Wertlauf& w) {
    w.rsMessung.Edit();
    w.rsMessung.setField("Funktion", "IK (N-PE)");
    w.rsMessung.setField("Messwert", w.umgerechnet());
    w.rsMessung.setField("Einheit", w.einheit);
    w.rsMessung.Update();
}

} // namespace vemo::handler
