#include "takeover/Grenzwertrechnung.h"
#include "takeover/Handler.h"
#include "takeover/Messzeilen.h"

// The touch voltage limit at the head of an RCD test whose settings follow its values in any
// order: the settings are gathered into the measurement row first, so that the limit row, made
// afterwards, finds the factor that decides its trip times.
namespace vemo::handler {
namespace {

void anFgradHängen(Wertlauf& w, const QString& zusatz) {
    feldSchreiben(w.rsMessung, "FGRAD", (w.rsMessung.Text("FGRAD") + " " + zusatz).trimmed());
}

void einstellungÜbernehmen(Wertlauf& w) {
    const QString f = w.funktion();
    const QString einheit = w.zeileneinheit();
    if (f.contains("E, Idn")) {
        feldSchreiben(w.rsMessung, "FIIDN", w.wert());
    } else if (f.contains("E, mult.:") || f == "FI Faktor") {
        feldSchreiben(w.rsMessung, "FIFaktor", w.wert());
    } else if (f.contains("E, type :")) {
        if (einheit == "Selective")
            feldSchreiben(w.rsMessung, "FIFaktor", "S " + w.rsMessung.Text("FIFaktor"));
        else if (einheit != "General")
            feldSchreiben(w.rsMessung, "FGRAD", (einheit + " " + w.rsMessung.Text("FGRAD")).trimmed());
    } else if (f.contains("E, phase:")) {
        if (einheit == "Selective")
            anFgradHängen(w, w.wertText());
        else if (einheit != "General")
            anFgradHängen(w, einheit);
    } else if (f == "FI Halbwelle") {
        anFgradHängen(w, w.wertText());
    }
}

// The rows of a trip time series: each timing pair after the first gets a measurement row of
// its own. True when the row was one of them.
bool zeitreiheÜbernehmen(Wertlauf& w, int& messströme) {
    const QString f = w.funktion();
    if (f == "FI Faktor") {
        feldSchreiben(w.rsMessung, "FIFaktor", w.wert());
    } else if (f == "FI Halbwelle") {
        feldSchreiben(w.rsMessung, "FGRAD", w.wert());
    } else if (f == "FI tmess mA") {
        if (++messströme >= 2)
            NewMessung(w.rsMessung);
    } else if (f == "FI tmess ms") {
        feldSchreiben(w.rsMessung, "FIT", w.wert());
    } else {
        return false;
    }
    return true;
}

// The head row's value is the touch voltage limit; the earth resistance limit follows from it and
// the rated current found in the scan. The run is used up.
void grenzwertAusKopf(Wertlauf& w, Bookmark kopf) {
    w.rsMess.setBookmark(kopf);
    w.grenzwertHolen();
    QString grenze = w.umgerechnet().trimmed();
    if (!grenze.startsWith('<'))
        grenze = "<" + grenze;
    w.rsGrenzwert.Edit();
    w.rsGrenzwert.setField("FIUB", grenze);
    w.rsGrenzwert.setField("FIRE", GetRCD_RE(grenze, w.rsMessung.Text("FIIDN")));
    w.rsGrenzwert.Update();
    w.rsMess.MoveLast();
}

void durchsuchen(Wertlauf& w, bool mitZeitreihe) {
    const Bookmark kopf = w.rsMess.bookmark();
    int messströme = 0;
    for (; !w.rsMess.Eof(); w.rsMess.MoveNext())
        if (!(mitZeitreihe && zeitreiheÜbernehmen(w, messströme)))
            einstellungÜbernehmen(w);
    grenzwertAusKopf(w, kopf);
}

} // namespace

void einstellungenUndGrenzwert(Wertlauf& w) {
    durchsuchen(w, false);
}

void fiUl(Wertlauf& w) {
    durchsuchen(w, true);
}

} // namespace vemo::handler
