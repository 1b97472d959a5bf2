#include "links/ZemakVarianten.h"

#include "core/Geraetetypen.h"

namespace vemo {

// The 3740's texts name the 3720, as its dialog always has; the Quentavoir's identification has no
// comma, since its instrument answers under another maker's name in front.
const std::vector<Zemakvariante>& zemakVarianten() {
    static const std::vector<Zemakvariante> tabelle{
        {selektor::Zemak, "ZEMAK 3710,", 4, 41, 12, 9, "Suche ZEMAK Prüfgerät an COM-Port",
         "Alle Messleitungen vom 3710 entfernen."},
        {selektor::Zemak3710B, "ZEMAK 3710B,", 4, 46, 12, 10, "Suche ZEMAK 3710B Prüfgerät an COM-Port",
         "Alle Messleitungen vom 3710 B entfernen."},
        {selektor::Zemak3720, "ZEMAK 3720B,", 4, 50, 12, 10, "Suche ZEMAK 3720 Prüfgerät an COM-Port",
         "Alle Messleitungen vom 3720 entfernen."},
        {selektor::Zemak3740, "ZEMAK 3740B,", 8, 83, 16, 19, "Suche ZEMAK 3720 Prüfgerät an COM-Port",
         "Alle Messleitungen vom 3720 entfernen."},
        {selektor::Quentavoir, "Quentavoir", 4, 50, 12, 10, "Suche Prüfgerät an COM-Port",
         "Alle Messleitungen am Prüfgerät entfernen."},
    };
    return tabelle;
}

const Zemakvariante* zemakVariante(const QString& selektor) {
    for (const auto& v : zemakVarianten())
        if (v.selektor == selektor)
            return &v;
    return nullptr;
}

} // namespace vemo
