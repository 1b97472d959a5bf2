#include "logger/Diagramm.h"

namespace vemo {

bool Diagramm::hinzufügen(int reihe, const Messpunkt& punkt) {
    Q_ASSERT(reihe >= 0 && reihe < Reihen);
    QList<Messpunkt>& r = m_reihen[reihe];
    if (r.size() >= HöchstePunkte)
        return false;
    r << punkt;
    return true;
}

void Diagramm::leeren() {
    for (QList<Messpunkt>& r : m_reihen)
        r.clear();
}

} // namespace vemo
