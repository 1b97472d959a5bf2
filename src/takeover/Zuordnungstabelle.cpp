#include "takeover/Zuordnungstabelle.h"

#include <QHash>

namespace vemo {
namespace {

using namespace handler;

struct Zuordnung {
    QStringList namen;
    Handler handler;
};

// One line a routine, with the function names of every instrument family that mean that test.
const QList<Zuordnung>& zuordnungen() {
    static const QList<Zuordnung> tabelle{
        {{"PHASE ROTATION, M, P.R.", "PHASE ROTATION PRAVITONIX, M, Drehfeld", "Drehfeld", "Phase", "3"},
         drehfeld},
        {{"RCD I, E, phase:", "RCD t, E, phase:", "RCD I PRAVITONIX, E, phase:",
          "RCD t PRAVITONIX, E, phase:"},
         fiPhase},
        {{"RCD I, E, type :", "RCD t, E, type :", "RCD I PRAVITONIX, E, type :",
          "RCD t PRAVITONIX, E, type :", "RCD Uc, E, type :", "RCD Uc PRAVITONIX, E, type :"},
         fiTyp},
        {{"RCD AUTO, M, x1/2    0"}, rcdAutoHalbZuerst},
        {{"RCD AUTO, M, t1"}, rcdAutoZeitenZuerst},
        {{"R +/-200mA, M, R"}, niederohmMitSprung},
        {{"R +/-200mA, M, R+"}, niederohm},
        {{"R ISO, G, R", "R ISO GEORTEST, G, Riso"}, isolationsGrenzwert},
        {{"R +/-200mA, G, R", "R +/-200mA GEORTEST, G, R-"}, niederohmGrenzwert},
        {{"R ISO, E, Un", "R ISO GEORTEST, E, Un"}, isolationNachPrüfspannung},
        {{"RCD Uc, G, Ub", "IdRCD Vc max", "RCD AUTO, G, Ub", "RCD I PRAVITONIX, G, Ub", "RCD I, G, Ub",
          "RCD I, G, Uc", "RCD t PRAVITONIX, G, Ub", "RCD t, G, Ub", "RCD Uc PRAVITONIX, G, Ub", "tFI Ub max",
          "tRCD Vc max", "Ub max", "UbFI Ub max", "Vc max", "VcRCD Vc max", "IdFI Ub max"},
         einstellungenUndGrenzwert},
        {{"FI UL"}, fiUl},
        {{"R EARTH, G, R", "R EARTH CLAMP 1 GEORTEST, G, Re", "R EARTH CLAMP 1, G, R",
          "R EARTH CLAMP 2 GEORTEST, G, Re"},
         erdGrenzwert},
        {{"Ri", "Ri Ohm", "RI", "Schleife RI"}, schleifeRi},
        {{"Zs", "Zl", "ZS", "RS", "Schleife RS"}, schleifeZs},
        {{"tFI", "tFI S", "tRCD", "tRCD S", "RCD", "RCD S"}, fünfZeilenBlock},
        {{"IdFI", "IdFI S", "IdRCD", "IdRCD S"}, blockMitAuslösestrom},
        {{"Id"}, blockNachVorgänger},
        {{"t"}, zeitNachVorgänger},
        {{"T0", "T180"}, zeitUndNennstrom},
        {{"UbFI mA", "VcRCD mA", "UbFI S mA", "VcRCD S mA"}, berührungsspannungsBlock},
        {{"Ub", "Vc"}, berührungsspannung},
        {{"FI UB mA"}, nennstromUndBerührungsspannung},
        {{"FI Halbwelle"}, halbwelle},
        {{"R LOOP N-PE, M, Isc"}, kurzschlussNPE},
    };
    return tabelle;
}

// Names compare exactly, case included, as the instruments write them.
const QHash<QString, Handler>& nachName() {
    static const QHash<QString, Handler> index = [] {
        QHash<QString, Handler> h;
        for (const Zuordnung& z : zuordnungen())
            for (const QString& name : z.namen)
                h.insert(name, z.handler);
        return h;
    }();
    return index;
}

} // namespace

Handler handlerFür(const QString& funktion) {
    return nachName().value(funktion, nullptr);
}

QStringList namenMitHandler() {
    QStringList namen;
    for (const Zuordnung& z : zuordnungen())
        namen += z.namen;
    return namen;
}

} // namespace vemo
