#include "takeover/Wertlauf.h"

#include "parsers/Primitive.h"
#include "takeover/Grenzwerte.h"

namespace vemo {

QString Wertlauf::umgerechnet() const {
    return WertEinheit(wert(), zeileneinheit(), einheit);
}

void Wertlauf::nachschlagen() {
    TeilFunktionSuchen(funktion(), spaltenname, einheit);
}

void Wertlauf::grenzwertHolen() {
    GrenzwertHolen(rsGrenzwert, rsMessung);
}

} // namespace vemo
