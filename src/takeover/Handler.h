#pragma once

#include "takeover/Wertlauf.h"

// The routines the value mapping runs for the function names it knows by name. Each works on the
// current source row, may take further rows of its test, and writes the current measurement row
// or the limit row.
namespace vemo::handler {

using Handler = void (*)(Wertlauf&);

// RCD tests as runs of consecutive rows.
void fünfZeilenBlock(Wertlauf& w);
void blockMitAuslösestrom(Wertlauf& w);
void blockNachVorgänger(Wertlauf& w);
void zeitNachVorgänger(Wertlauf& w);
void zeitUndNennstrom(Wertlauf& w);
void berührungsspannungsBlock(Wertlauf& w);
void berührungsspannung(Wertlauf& w);
void nennstromUndBerührungsspannung(Wertlauf& w);
void halbwelle(Wertlauf& w);

// RCD settings that follow their values, and the touch voltage limit at their head.
void einstellungenUndGrenzwert(Wertlauf& w);
void fiUl(Wertlauf& w);

// The automatic RCD series of six trip times.
void rcdAutoHalbZuerst(Wertlauf& w);
void rcdAutoZeitenZuerst(Wertlauf& w);

// Single values and pairs.
void drehfeld(Wertlauf& w);
void fiPhase(Wertlauf& w);
void fiTyp(Wertlauf& w);
void niederohmMitSprung(Wertlauf& w);
void niederohm(Wertlauf& w);
void schleifeRi(Wertlauf& w);
void schleifeZs(Wertlauf& w);
void kurzschlussNPE(Wertlauf& w);

// Limits the instrument reports.
void isolationsGrenzwert(Wertlauf& w);
void niederohmGrenzwert(Wertlauf& w);
void erdGrenzwert(Wertlauf& w);
void isolationNachPrüfspannung(Wertlauf& w);

// The test current factor as the measurement rows hold it: "x" and the factor, "S x" for a
// selective RCD.
QString faktorText(bool selektiv, const QString& faktor);

} // namespace vemo::handler
