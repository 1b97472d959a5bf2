#include "links/KontalexModelle.h"

namespace vemo {

const QList<Kontalexmodell>& kontalexModelle() {
    static const QList<Kontalexmodell> modelle{
        {"KONTALEX", Blockform::Voll, allgemeineNamen(), true, false},
        {"PRAVITONIX", Blockform::Kurz, allgemeineNamen(), true, true},
        {"Georin-Barrier Analyzer", Blockform::Kurz, allgemeineNamen(), false, true},
        {"VOLTIRA 9KV", Blockform::Block, hochspannungsNamen(), true, false},
    };
    return modelle;
}

const Kontalexmodell& kontalexModell(const QString& name) {
    for (const Kontalexmodell& m : kontalexModelle())
        if (m.name == name)
            return m;
    return kontalexModelle().front();
}

} // namespace vemo
