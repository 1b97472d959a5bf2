#include "links/KontalexNamen.h"

#include "platform/Fehler.h"

namespace vemo {
namespace {

// Names that repeat over a run of codes.
QStringList mal(int anzahl, const QString& name) {
    return QStringList(anzahl, name);
}

QStringList nummeriert(const QString& stamm, int von, int bis, int schritt = 1) {
    QStringList namen;
    for (int i = von; i <= bis; i += schritt)
        namen << stamm + QString::number(i);
    return namen;
}

} // namespace

Namentabelle::Namentabelle(int obergrenze, std::initializer_list<Namenlauf> läufe) : m_namen(obergrenze + 1) {
    for (const Namenlauf& lauf : läufe)
        for (int i = 0; i < lauf.namen.size(); ++i)
            m_namen[lauf.ab + i] = lauf.namen[i];
}

QString Namentabelle::name(int code) const {
    if (code < 0 || code >= m_namen.size())
        throw fehler::mit(fehler::IndexAußerhalb, QString::number(code));
    return m_namen[code];
}

const Namentabellen& allgemeineNamen() {
    static const Namentabellen tabellen{
        Namentabelle(220, {{2, {"R +/-200mA"}},
                           {6, {"RCD Uc", "RCD t", "RCD I", "RCD AUTO"}},
                           {11, {"R EARTH", "R EARTH CLAMP 1", "R EARTH CLAMP 2", "ro EARTH", "R ISO"}},
                           {20,
                            {" TEST", "CURRENT CLAMP", "PEAK CURRENT CLAMP", "HARMONICS VOLTAGE",
                             "HARMONICS CURRENT CLAMP", "POWER", "ENERGY", "R LOOP N-PE", "Z LOOP", "Z LOOP",
                             "Z LINE"}},
                           {33, {"PHASE ROTATION"}},
                           {36, {"R +/-200mA"}},
                           {40, {"R ISO"}},
                           {101,
                            {"RCD AUTO", "UL-UN LOGGER", "R +/-200mA", " TEST", "R ISO", "R LOOP PRAVITONIX",
                             "R LOOP PRAVITONIX", "R LINE PRAVITONIX", "PHASE ROTATION PRAVITONIX",
                             "RCD Uc PRAVITONIX", "RCD t PRAVITONIX", "RCD I PRAVITONIX"}},
                           {201,
                            {"ro EARTH GEORTEST", "R EARTH GEORTEST", "R EARTH CLAMP 1 GEORTEST",
                             "R EARTH CLAMP 2 GEORTEST", "R ISO GEORTEST", " TEST", "CURRENT CLAMP",
                             "R +/-200mA GEORTEST"}}}),
        Namentabelle(
            220,
            {{1,
              {"R", "R+", "R-", "R", "Um", "U", "It", "I", "I", "P", "S", "Q", "COS FI", "W", "P", "P.R."}},
             {17, {"U12", "U13", "U23"}},
             {20, {"Z", "Isc", "R", "Xl", "Z", "Isc", "R", "Xl", "R", "Isc", "Isc", "Isc", "Rl"}},
             {33, {"t", "t", "t", "Id", "Id", "Uci", "t"}},
             {40, nummeriert("t", 1, 5) + mal(4, "t6")},
             {49, {"Re", "R", "R", "R", "R", "Re", "Re", "Re", "R", "ro", "ro", "ro"}},
             {61, QStringList{"U", "THD"} + nummeriert("U", 1, 21, 2)},
             {74, QStringList{"I", "THD"} + nummeriert("I", 1, 21, 2)},
             {87, {"Idn", "mult.:", "phase:", "Un", "type :", "tm", "Uac"}},
             {100, {"R+", "R-", "R", "U", "U", "U", "Re", "t", "t", "Id", "Id", "t"}},
             // The last of the series is named twice over, as the instrument has it.
             {112,
              {"x1/2    0", "x1/2  180", "x1      0", "x1    180", "x5      0", "x5    180", "x5    180"}},
             {119, {"R", "Ik", "R", "Ik", "Drehfeld", "U"}},
             {128,
              {"Idn", "type :", "Faktor", "phase:", "Un", "U(L-N) MIN", "U(L-N) MAX", "Mittelwert",
               "Intervall ", "Uac"}},
             {200, {"R", "R+", "R-", "I", "U", "U", "Um", "Un", "Re", "Rp", "Rc", "ro", "ro", "Uac"}}}),
        Namentabelle(220, {{0, {"Uac", "V"}},
                           {3, {"A",    "mA",    "Ohm", "mOhm", "MOhm", "s",   "mA",  "ms",   "Ohmm",
                                "m",    "%",     "W",   "kW",   "VA",   "kVA", "VAR", "kVAR", "PF",
                                "kOhm", "kOhmm", "Hz",  "kA",   "mWh",  "Wh",  "kWh", "h",    "min"}},
                           {32, {"0°", "180°", "General", "Selective"}},
                           {100, {"Selective", "V", "mA", "Ohm", "kOhm", "MOhm", "ms", "A", "kA", "Hz", "s"}},
                           {116, {"0°", "180°", "General", "Selective"}},
                           {201,
                            {"mA", "A", "Ohm", "kOhm", "MOhm", "GOhm", "V", "m", "ft", "Ohmm", "Ohmft",
                             "kOhmm", "kOhmft", "MOhmm", "MOhmft"}}}),
    };
    return tabellen;
}

const Namentabellen& hochspannungsNamen() {
    static const Namentabellen tabellen{
        // "DIAGNISTIC" is the instrument's own spelling; the take-over knows its text blocks by it.
        Namentabelle(10, {{1,
                           {"VOLTAGE", "INSULATION RESISTANCE", "INSULATION RESISTANCE", "DIAGNISTIC TEST",
                            "DIAGNISTIC TEST", "STEP VOLTAGE", "WITHSTANDING VOLTAGE DC"}}}),
        Namentabelle(
            100, {{1, {"R", "U", "I", "C", "Rmax", "Rmin", "R(t1)", "R(t2)", "R(t3)", "PI1", "PI2", "DD"}},
                  {17, {"R(Un1)", "R(Un2)", "R(Un3)", "R(Un4)", "R(Un4)"}},
                  {22, nummeriert("U", 1, 5)},
                  {32, {"U", "I", "Umax"}},
                  {48, {"U", "f"}},
                  {64, {"Un"}},
                  {66, QStringList{"timer"} + nummeriert("time", 1, 3) + nummeriert("U", 1, 5)},
                  {80, {"Unstart", "Unstop", "Tmeas", "Ttig", "Tstep", "Tend"}}}),
        Namentabelle(20,
                     {{1, {"V", "kOhm", "MOhm", "GOhm", "TOhm", "mA", "µA", "µF", "nF", "pF", "min", "Ohm"}},
                      {14, {"nA"}},
                      {16, {"Hz"}}}),
    };
    return tabellen;
}

} // namespace vemo
