#include "parsers/Zemakmesszeilen.h"

namespace vemo {
namespace {

Spaltenwert fest(const QString& text) {
    return [text] { return std::optional<QString>(text); };
}

// The rows of each measurement, common to all models; what differs stands in the model's tables.
class Zeilen {
public:
    Zeilen(const Variante& variante, const Datensatz& satz) : m_v(variante), m_s(satz) {}

    std::vector<Zemakmesszeile> von(Messart art) const;

private:
    std::vector<Zemakmesszeile> spannung() const;
    std::vector<Zemakmesszeile> isolation() const;
    std::vector<Zemakmesszeile> durchgang() const;
    std::vector<Zemakmesszeile> schleife(bool zweiteForm) const;
    std::vector<Zemakmesszeile> rcd(bool auslösezeit) const;

    Spaltenwert wahl(const Wahl<QString>& w) const {
        return [&w, &s = m_s] { return wählen(w, s); };
    }
    Spaltenwert wert(const Wertfeld& f, bool milli = false) const {
        return [f, milli, &s = m_s] {
            return std::optional<QString>(GetWertTextMilli(s.feld(f.wert), s.feld(f.attribut), milli));
        };
    }
    Spaltenwert nennstrom() const;

    const Variante& m_v;
    const Datensatz& m_s;
};

std::vector<Zemakmesszeile> Zeilen::von(Messart art) const {
    switch (art) {
    case Messart::Spannung:
        return spannung();
    case Messart::Isolation:
        return isolation();
    case Messart::Durchgang:
        return durchgang();
    case Messart::Schleife:
        return schleife(false);
    case Messart::SchleifeZweiteForm:
        return schleife(true);
    case Messart::RcdAuslösezeit:
        return rcd(true);
    case Messart::RcdAuslösestrom:
        return rcd(false);
    case Messart::Erde:
        return {{fest("Re"), wert(m_v.a), fest("Ohm")}};
    case Messart::Drehfeld:
        return {{fest("Phase"), wert(m_v.a), fest("")}};
    }
    return {};
}

std::vector<Zemakmesszeile> Zeilen::spannung() const {
    std::vector<Zemakmesszeile> z{{fest("Spannung Uac"), wert(m_v.a), fest("V")}};
    if (m_v.leiter)
        z.push_back({fest("m_Bemerkung"), wahl(*m_v.leiter), fest("")});
    z.push_back({fest("Spannung f"), wert(m_v.b), fest("Hz")});
    return z;
}

std::vector<Zemakmesszeile> Zeilen::isolation() const {
    return {{wahl(m_v.isolation), wert(m_v.a), fest("Mohm")},
            {fest("R ISO, M, U"), wert(m_v.b), fest("V")},
            {fest("R ISO, E, Un"), wahl(m_v.prüfspannung), fest("V")}};
}

std::vector<Zemakmesszeile> Zeilen::durchgang() const {
    return {{wahl(m_v.durchgang), wert(m_v.a), fest("Ohm")}};
}

// The second form reads its impedance in milliohm where the model says so, and has no N-PE row.
std::vector<Zemakmesszeile> Zeilen::schleife(bool zweiteForm) const {
    const auto kreis = wählen(m_v.kreis, m_s);
    if (!kreis)
        return {};
    const bool milli = zweiteForm && wählen(m_v.milli, m_s).value_or(false);
    if (*kreis == Kreis::Leitung)
        return {{fest("Z LINE, M, Z"), wert(m_v.a, milli), fest("Ohm")},
                {fest("Z LINE, M, Isc"), wert(m_v.b), wahl(m_v.stromeinheit)}};
    std::vector<Zemakmesszeile> z{{fest("Z LOOP, M, Z"), wert(m_v.a, milli), fest("Ohm")}};
    const auto dahinter =
        zweiteForm ? std::optional(Schleifenwert::Kurzschlussstrom) : wählen(m_v.schleifenwert, m_s);
    if (dahinter == Schleifenwert::RNpe)
        z.push_back({fest("R LOOP N-PE, M, R"), wert(m_v.b), fest("Ohm")});
    else if (dahinter == Schleifenwert::Kurzschlussstrom)
        z.push_back({fest("Z LOOP, M, Isc"), wert(m_v.b),
                     wahl(zweiteForm ? m_v.stromeinheitSchleifeZweiteForm : m_v.stromeinheit)});
    return z;
}

// Type and phase stand in the unit column with an empty value: that is where the take-over
// reads them.
std::vector<Zemakmesszeile> Zeilen::rcd(bool auslösezeit) const {
    std::vector<Zemakmesszeile> z;
    if (auslösezeit)
        z.push_back({fest("RCD t, M, t"), wert(m_v.a), fest("ms")});
    else
        z.push_back({fest("RCD I, M, Id"), wert(m_v.a), fest("mA")});
    z.push_back({fest("RCD t, M, Ub"), wert(m_v.b), fest("V")});
    z.push_back({fest("RCD t, G, Ub"), wahl(m_v.berührungsgrenze), fest("V")});
    z.push_back({fest("RCD t, E, Idn"), nennstrom(), fest("mA")});
    if (auslösezeit)
        z.push_back({fest("RCD t, E, mult.:"), wahl(m_v.faktor), fest("")});
    z.push_back({fest("RCD t, E, phase:"), fest(""), wahl(m_v.phase)});
    z.push_back({fest("RCD t, E, type :"), fest(""), wahl(m_v.rcdTyp)});
    return z;
}

Spaltenwert Zeilen::nennstrom() const {
    return [&v = m_v, &s = m_s]() -> std::optional<QString> {
        const auto strom = wählen(v.nennstrom, s);
        if (!strom)
            return std::nullopt;
        switch (strom->quelle) {
        case Nennstrom::Quelle::Prüfstrom:
            return QString::number(s.zahl(v.prüfstromfeld) & 0x3FF);
        case Nennstrom::Quelle::WertC:
            return GetWertTextMilli(s.feld(v.c.wert), s.feld(v.c.attribut), false);
        case Nennstrom::Quelle::Text:
            break;
        }
        return strom->text;
    };
}

} // namespace

std::vector<Zemakmesszeile> messzeilen(const Variante& variante, const Datensatz& satz) {
    for (const int feld : variante.modusfelder)
        static_cast<void>(satz.zahl(feld)); // read for its failure only
    const auto art = variante.funktionen.find(variante.funktionscode(satz));
    if (art == variante.funktionen.end())
        return {};
    return Zeilen(variante, satz).von(art->second);
}

} // namespace vemo
