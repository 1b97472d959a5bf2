#include "parsers/Zemakvarianten.h"

namespace vemo::variante {
namespace {

constexpr Bits sonst{};
constexpr quint64 alle = ~quint64(0);

// The older models cut their mode word in field 8 into small numbers a, b, c, d and the bit s.
Bits a(quint64 k) {
    return {8, 0x7, k};
}
Bits b(quint64 k) {
    return {8, 0x18, k << 3};
}
Bits c(quint64 k) {
    return {8, 0x60, k << 5};
}
Bits d(quint64 k) {
    return {8, 0x380, k << 7};
}

// The 3720 tests whether all bits of a mask are set in its mode word.
Bits x(quint64 maske) {
    return {8, maske, maske};
}

// The 3740 keeps the mode word in field 5 and compares its nibbles n, m and h as they stand, not
// shifted down: m and h can only ever equal 0.
Bits n(quint64 k) {
    return {5, 0xF, k};
}
Bits m(quint64 k) {
    return {5, 0xF00, k};
}
Bits h(quint64 k) {
    return {5, 0xF000, k};
}

// Bit 0 of an attribute or status field, which the models also use to tell kA from A.
Bits bit0(int feld) {
    return {feld, 1, 1};
}

Nennstrom mA(const char* text) {
    return {Nennstrom::Quelle::Text, text};
}
const Nennstrom prüfstrom{Nennstrom::Quelle::Prüfstrom, {}};
const Nennstrom wertC{Nennstrom::Quelle::WertC, {}};

quint64 ersteZweiZiffern(const Datensatz& satz) {
    // Only the first two characters of field 8: bits 10 to 13 of a four-digit field, times 4.
    return hexZahl(satz.feld(8).left(2)) & 0x3C;
}
quint64 feld6(const Datensatz& satz) {
    return satz.zahl(6);
}

// What the 3710 and the 3710B share: the fields up to the mode word, and its cut numbers.
Variante älteresModell() {
    Variante v;
    v.familienwort = "ZEMAK";
    v.umlaufend = true;
    v.anlageOhneFeld = "";
    v.verteilerfeld = 1;
    v.stromkreisfeld = 2;
    v.a = {4, 5};
    v.b = {6, 7};
    v.isolation = {{sonst, "R ISO, M, R"}};
    v.prüfspannung = {{d(0), "50"}, {d(1), "100"}, {d(2), "250"}, {d(3), "500"}, {d(4), "1000"}};
    v.durchgang = {{sonst, "LOW Ohm"}};
    v.kreis = {{a(1), Kreis::Schleife}, {a(0), Kreis::Leitung}};
    v.schleifenwert = {{c(1), Schleifenwert::RNpe}, {c(0), Schleifenwert::Kurzschlussstrom}};
    v.stromeinheit = {{{7, alle, 0}, "A"}, {sonst, "KA"}};
    v.stromeinheitSchleifeZweiteForm = v.stromeinheit;
    v.nennstrom = {{a(0), mA("10")},  {a(1), mA("30")},  {a(2), mA("100")},
                   {a(3), mA("300")}, {a(4), mA("500")}, {a(5), mA("1000")}};
    v.faktor = {{b(0), "x1/2"}, {b(1), "x1"}, {b(2), "x5"}};
    v.phase = {{d(1), "180°"}, {d(0), "0°"}};
    v.rcdTyp = {{c(0), "AC"}, {c(1), "PL"}, {c(2), "AC S"}, {c(3), "PL S"}};
    return v;
}

Variante zemakTabelle() {
    Variante v = älteresModell();
    v.typ = 103;
    v.weiterNachFehler = true;
    v.uhrfeld = 9;
    v.funktionscode = GetCode3;
    v.modusfelder = {8};
    v.funktionen = {{0, Messart::Spannung}, {1, Messart::Isolation},      {2, Messart::Durchgang},
                    {3, Messart::Schleife}, {4, Messart::RcdAuslösezeit}, {5, Messart::RcdAuslösestrom},
                    {6, Messart::Erde},     {7, Messart::Drehfeld}};
    // The whole mode word decides, and with a function code above 0 it is never 0.
    v.berührungsgrenze = {{{8, alle, 0}, "<25"}, {sonst, "<50"}};
    return v;
}

Variante zemak3710BTabelle() {
    Variante v = älteresModell();
    v.typ = 104;
    v.speicherprüfung = true;
    v.uhrfeld = 10;
    v.prüfstromfeld = 9;
    v.funktionscode = GetCode4;
    v.modusfelder = {8};
    v.funktionen = {{0, Messart::Spannung},
                    {1, Messart::Isolation},
                    {2, Messart::Durchgang},
                    {3, Messart::Schleife},
                    {4, Messart::SchleifeZweiteForm},
                    {5, Messart::RcdAuslösezeit},
                    {6, Messart::RcdAuslösestrom},
                    {7, Messart::Erde},
                    {8, Messart::Drehfeld}};
    v.leiter = Wahl<QString>{{a(0), "Uac:L-N"}, {a(1), "Uac:L-PE"}, {a(2), "Uac:N-PE"}};
    v.berührungsgrenze = {{x(0x8000), "<50"}, {sonst, "<25"}};
    v.nennstrom.push_back({a(6), prüfstrom});
    return v;
}

Variante zemak3720Tabelle() {
    Variante v;
    v.familienwort = "ZEMAK";
    v.typ = 105;
    v.codeaufteilung = true;
    v.anlageOhneFeld = "???";
    v.verteilerfeld = 1;
    v.stromkreisfeld = 2;
    v.uhrfeld = 10;
    v.prüfstromfeld = 9;
    v.a = {4, 5};
    v.b = {6, 7};
    v.funktionscode = ersteZweiZiffern;
    v.modusfelder = {8, 9};
    v.funktionen = {{0x00, Messart::Spannung},
                    {0x04, Messart::Isolation},
                    {0x08, Messart::Durchgang},
                    {0x0C, Messart::Schleife},
                    {0x10, Messart::SchleifeZweiteForm},
                    {0x14, Messart::RcdAuslösezeit},
                    {0x18, Messart::RcdAuslösestrom},
                    {0x1C, Messart::Erde},
                    {0x20, Messart::Drehfeld}};
    v.leiter = Wahl<QString>{{x(1), "Uac:L-PE"}, {x(2), "Uac:N-PE"}, {sonst, "Uac:L-N"}};
    v.isolation = {
        {x(4), "m_KTS_INSUNE"}, {x(3), "m_KTS_INSUPE"}, {x(2), "m_KTS_INSUPN"}, {sonst, "m_KTS_INSUPP"}};
    // In this order the pattern of 500 V is caught by the mask of 100 V: a 500 V test is stored
    // as "100", and "500" never comes of it.
    v.prüfspannung = {{x(128), "100"}, {x(256), "250"}, {x(384), "500"}, {x(512), "1000"}, {sonst, "50"}};
    v.durchgang = {{x(40), "m_KTS_CONTN"},
                   {x(32), "m_KTS_CONTC"},
                   {x(24), "m_KTS_CONTP"},
                   {x(16), "m_KTS_CONT+"},
                   {sonst, "m_KTS_CONTR"}};
    v.kreis = {{x(1), Kreis::Schleife}, {sonst, Kreis::Leitung}};
    v.schleifenwert = {{x(32), Schleifenwert::RNpe}, {sonst, Schleifenwert::Kurzschlussstrom}};
    v.milli = {{x(8), true}};
    v.stromeinheit = {{bit0(7), "KA"}, {sonst, "A"}};
    v.stromeinheitSchleifeZweiteForm = v.stromeinheit;
    v.berührungsgrenze = {{x(0x8000), "<50"}, {sonst, "<25"}};
    v.nennstrom = {{x(6), prüfstrom}, {x(5), mA("1000")}, {x(4), mA("500")}, {x(3), mA("300")},
                   {x(2), mA("100")}, {x(1), mA("30")},   {sonst, mA("10")}};
    v.faktor = {{x(24), std::nullopt}, {x(16), "x5"}, {x(8), "x1"}, {sonst, "x1/2"}};
    v.phase = {{x(128), "180°"}, {sonst, "0°"}};
    v.rcdTyp = {{x(608), "B S"}, {x(352), "B"}, {x(96), "PL S"},
                {x(64), "AC S"}, {x(32), "PL"}, {sonst, "AC"}};
    return v;
}

Variante zemak3740Tabelle() {
    Variante v;
    v.familienwort = "ZEMAK";
    // The 3740 registers as a 3720: that is how its instruments are told in Prüfgerät.
    v.typ = 105;
    v.codeaufteilung = true;
    v.anlagefeld = 1;
    v.verteilerfeld = 2;
    v.stromkreisfeld = 3;
    v.uhrfeld = 8;
    v.a = {9, 14};
    v.b = {10, 15};
    v.c = {11, 16};
    v.funktionscode = feld6;
    v.modusfelder = {5, 7};
    v.funktionen = {{0, Messart::Spannung},
                    {1, Messart::Isolation},
                    {2, Messart::Durchgang},
                    {3, Messart::Schleife},
                    {4, Messart::SchleifeZweiteForm},
                    {6, Messart::RcdAuslösestrom},
                    {7, Messart::Erde},
                    {8, Messart::Drehfeld}};
    v.leiter = Wahl<QString>{{n(0), "Uac:L-N"}, {n(1), "Uac:L-PE"}, {n(2), "Uac:N-PE"}};
    v.isolation = {{n(2), "m_KTS_INSUNE"}, {n(1), "m_KTS_INSUPE"}, {n(0), "m_KTS_INSUPN"}};
    v.prüfspannung = {{h(0), "50"}, {h(1), "100"}, {h(2), "250"}, {h(3), "500"}, {h(4), "1000"}};
    v.durchgang = {{n(0), ""}, {n(1), ""}, {n(2), ""}};
    v.kreis = {{n(1), Kreis::Schleife}, {sonst, Kreis::Leitung}};
    v.schleifenwert = {{m(1), Schleifenwert::RNpe}, {sonst, Schleifenwert::Kurzschlussstrom}};
    v.milli = {{h(0), false}, {sonst, true}};
    v.stromeinheit = {{bit0(15), "KA"}, {sonst, "A"}};
    v.stromeinheitSchleifeZweiteForm = {{bit0(7), "KA"}, {sonst, "A"}};
    v.berührungsgrenze = {{{7, 64, 64}, "<50"}, {sonst, "<25"}};
    v.nennstrom = {{h(0), mA("10")},  {h(1), mA("30")},   {h(2), mA("100")}, {h(3), mA("300")},
                   {h(4), mA("500")}, {h(5), mA("1000")}, {h(6), wertC}};
    v.phase = {{n(1), "180°"}, {sonst, "0°"}};
    v.rcdTyp = {{m(0), "AC"}, {m(1), "A"}, {m(2), "AC S"}, {m(3), "AC S"}, {m(4), "B"}, {m(6), "B S"}};
    return v;
}

// The Quentavoir is a 3720 that names itself by its maker.
Variante quentavoirTabelle() {
    Variante v = zemak3720Tabelle();
    v.familienwort = "HELVARD";
    v.typ = 106;
    return v;
}

} // namespace

const Variante& zemak() {
    static const Variante v = zemakTabelle();
    return v;
}
const Variante& zemak3710B() {
    static const Variante v = zemak3710BTabelle();
    return v;
}
const Variante& zemak3720() {
    static const Variante v = zemak3720Tabelle();
    return v;
}
const Variante& zemak3740() {
    static const Variante v = zemak3740Tabelle();
    return v;
}
const Variante& quentavoir() {
    static const Variante v = quentavoirTabelle();
    return v;
}

} // namespace vemo::variante
