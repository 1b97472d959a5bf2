#include "core/ModulState.h"
#include "platform/Fehler.h"
#include "platform/Ui.h"
#include "takeover/Handler.h"
#include "takeover/Messzeilen.h"

#include <array>
#include <optional>

// The automatic RCD test: six trip times at fixed factors and phases, then the touch voltage, the
// rated current and the kind of RCD. Each time gets a measurement row of its own.
namespace vemo::handler {
namespace {

struct AutoEinstellung {
    const char* faktor;
    const char* grad;
};

constexpr std::array<AutoEinstellung, 6> autoReihe{{
    {"x1/2", "0°"},
    {"x1/2", "180°"},
    {"x1", "0°"},
    {"x1", "180°"},
    {"x5", "0°"},
    {"x5", "180°"},
}};

const QString autoUb = "RCD AUTO, M, Ub";

// What the series reports once for all its rows; the order with x1/2 first writes its touch
// voltage to the last row only.
struct Reihenwerte {
    std::optional<QVariant> ub;
    QVariant nennstrom;
    bool selektiv = false;
};

void einstellungSchreiben(Recordset& rsMessung, const AutoEinstellung& e, const Reihenwerte& r) {
    rsMessung.Edit();
    if (r.ub)
        rsMessung.setField("FIUB", *r.ub);
    rsMessung.setField("FIIDN", r.nennstrom);
    rsMessung.setField("FIFaktor", (r.selektiv ? "S " : "") + QString(e.faktor));
    rsMessung.setField("FGRAD", QString(e.grad));
    rsMessung.Update();
}

} // namespace

// The six times in the order of the table. A series that reaches its touch voltage early ends the
// mapping; one that does not reach it at the seventh row is reported.
void rcdAutoHalbZuerst(Wertlauf& w) {
    w.rsMessung.Edit();
    for (int zeilen = 1;; ++zeilen) {
        w.rsMessung.setField("FIT", w.wert());
        w.rsMessung.Update();
        w.weiter();
        if (zeilen == int(autoReihe.size()))
            break;
        if (w.funktion() == autoUb) {
            w.stop = true;
            return;
        }
        weitereZeile(w.rsMessung);
    }
    zurLetztenÄnderung(w.rsMessung);
    if (w.funktion() != autoUb) {
        ui().MsgBox("Fehler bei RCD AUTO", modul().anwendungstitel);
        w.stop = true;
        return;
    }
    feldSchreiben(w.rsMessung, "FIUB", w.wert());
    w.weiter();
    Reihenwerte r;
    r.nennstrom = w.wert();
    w.weiter();
    r.selektiv = w.zeileneinheit() == "Selective";
    w.rsMessung.Move(-long(autoReihe.size()));
    for (const AutoEinstellung& e : autoReihe) {
        w.rsMessung.MoveNext();
        einstellungSchreiben(w.rsMessung, e, r);
    }
}

// The times named t1 to t6, with the settings after them in any order; the kind of RCD comes last
// and completes the rows.
void rcdAutoZeitenZuerst(Wertlauf& w) {
    static const QStringList weitereZeiten{"RCD AUTO, M, t2", "RCD AUTO, M, t3", "RCD AUTO, M, t4",
                                           "RCD AUTO, M, t5", "RCD AUTO, M, t6"};
    constexpr int zeilenDerReihe = 9;
    std::optional<Bookmark> ersteZeit;
    Reihenwerte r;
    r.ub = QVariant();
    for (int i = 0; i < zeilenDerReihe; ++i) {
        const QString f = w.funktion();
        if (f == "RCD AUTO, M, t1" || weitereZeiten.contains(f)) {
            feldSchreiben(w.rsMessung, "FIT", w.wert());
            if (f == "RCD AUTO, M, t1")
                ersteZeit = w.rsMessung.bookmark();
            NewMessung(w.rsMessung);
        } else if (f == autoUb) {
            r.ub = w.wert();
        } else if (f == "RCD AUTO, E, Idn") {
            r.nennstrom = w.wert();
        } else if (f == "RCD AUTO, E, type :") {
            if (!ersteZeit)
                throw fehler::mit(fehler::KeinAktuellerDatensatz);
            w.rsMessung.setBookmark(*ersteZeit);
            r.selektiv = w.zeileneinheit() == "Selective";
            for (const AutoEinstellung& e : autoReihe) {
                einstellungSchreiben(w.rsMessung, e, r);
                w.rsMessung.MoveNext();
            }
        }
        w.weiter();
    }
}

} // namespace vemo::handler
