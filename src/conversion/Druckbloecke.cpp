#include "conversion/Druckbloecke.h"

namespace vemo {
namespace {

// Names alone: the function's own name heads the block, and its values go by the general labels.
Druckblock allgemein(const QString& funktion) {
    return {{funktion}, " " + funktion, {}, {}};
}

const QList<Druckblock>& druckblöcke() {
    static const QList<Druckblock> tabelle{
        {{"R ISO", "R ISO GEORTEST"},
         " Riso  MOhm  ",
         {{"M R", " Riso  "}, {"G R", "...GW:"}, {"G Riso", "...GW:"}},
         {}},
        {{"R +/-200mA", "R +/-200mA GEORTEST"},
         " LOW Ohm    =",
         {{"M R", " LOW Ohm    ="},
          {"M R+", "=R+200mA....."},
          {"M R-", "...R-200mA..."},
          {"G R", "...GW:"},
          {"G R-", "=R-200mA....."}},
         {}},
        {{"Z LOOP", "R LOOP PRAVITONIX"},
         " Zs   =",
         {{"M Z", " Zs   ="},
          {"M R", " Zs Rs="},
          {"M Isc", " Ik   ="},
          {"M Ik", " Ik   ="},
          {"M Xl", "...Xl="}},
         {}},
        {{"Z LINE", "R LINE PRAVITONIX"},
         " Ri   =",
         {{"M Z", " Ri   ="},
          {"M R", " Ri   ="},
          {"M Isc", " Ik   ="},
          {"M Ik", " Ik   ="},
          {"M Xl", "...Xl="}},
         {}},
        {{"R LOOP N-PE"}, " Zs Rs=", {{"M R", " Zs Rs="}, {"M Isc", "Ik="}}, {}},
        {{"PHASE ROTATION", "PHASE ROTATION PRAVITONIX"},
         " Drehfeld   =",
         {{"M P.R.", " Drehfeld   ="}, {"M Drehfeld", " Drehfeld   ="}},
         {}},
        {{"RCD Uc", "RCD Uc PRAVITONIX"},
         "  UbFI",
         {{"M Uci", "  Ub  ="},
          {"M U", "  Ub  ="},
          {"M Re", "  Re  ="},
          {"G Uci", "  Ub max = "},
          {"E phase:", "...Phase:"}},
         {}},
        {{"RCD t", "RCD t PRAVITONIX"},
         " tFI AC",
         {{"M t", "  t   ="},
          {"M Uci", "  Ub  ="},
          {"M U", "  Ub  ="},
          {"G Uci", "  Ub max = "},
          {"E phase:", "...Phase:"}},
         {}},
        {{"RCD I", "RCD I PRAVITONIX"},
         " IdFI AC",
         {{"M Id", "  Id  ="},
          {"M t", "  t   ="},
          {"M Uci", "  Ub  ="},
          {"M U", "  Ub  ="},
          {"E phase:", "...Phase:"}},
         {}},
        // The automatic series: six times by multiplier and phase, the touch voltage and its limit.
        {{"RCD AUTO"},
         " tFI AC",
         {{"M t1", "  t1  ="},
          {"M t2", "  t2  ="},
          {"M t3", "  t3  ="},
          {"M t4", "  t4  ="},
          {"M t5", "  t5  ="},
          {"M t6", "  t6  ="},
          {"M x1/2    0", " x1/2    0° ="},
          {"M x1/2  180", " x1/2  180° ="},
          {"M x1      0", " x1      0° ="},
          {"M x1    180", " x1    180° ="},
          {"M x5      0", " x5      0° ="},
          {"M x5    180", " x5    180° ="},
          {"M U", "  Ub  ="},
          {"G U", "  Ub max = "},
          {"E phase:", "...Phase:"}},
         {{"<50", "50.0 V"}, {"<25", "25.0 V"}}},
        {{"R EARTH", "R EARTH GEORTEST", "R EARTH CLAMP 1 GEORTEST", "R EARTH CLAMP 2 GEORTEST",
          "R EARTH CLAMP 1", "R EARTH CLAMP 2"},
         " Re         =",
         {{"M Re", " Re         ="}, {"M R", " Re         ="}, {"G Re", "...GW:Re"}, {"G R", "...GW:Re"}},
         {}},
        allgemein("ro EARTH"),
        allgemein("ro EARTH GEORTEST"),
        allgemein("TEST"),
        allgemein("POWER"),
        allgemein("ENERGY"),
        allgemein("HARMONICS CURRENT CLAMP"),
        allgemein("HARMONICS VOLTAGE"),
        allgemein("CURRENT CLAMP"),
        allgemein("PEAK CURRENT CLAMP"),
        allgemein("UL-UN LOGGER"),
    };
    return tabelle;
}

} // namespace

QString Druckblock::marke(const QString& art, const QString& wertname) const {
    const QString schlüssel = art + " " + wertname;
    for (const auto& [name, text] : marken)
        if (name == schlüssel)
            return text;
    return {};
}

QString Druckblock::wert(const QString& zahl, const QString& einheit) const {
    for (const auto& [wie, als] : werte)
        if (wie == zahl)
            return als;
    return (zahl + " " + einheit).trimmed();
}

const Druckblock* druckblockFür(const QString& funktion) {
    const QString name = funktion.trimmed();
    for (const Druckblock& b : druckblöcke())
        if (b.funktionen.contains(name))
            return &b;
    return nullptr;
}

} // namespace vemo
