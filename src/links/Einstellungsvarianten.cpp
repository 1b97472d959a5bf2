#include "links/Einstellungsvarianten.h"

#include <array>

namespace vemo {
namespace {

constexpr int QuentavoirTyp = 106;

const std::array<Einstellungsvariante, 2>& varianten() {
    static const std::array<Einstellungsvariante, 2> tabelle{{
        {"frmSettingZEMAK3710", "ZEMAK 37xx", "ZEMAK", "CodeSplitting3720"},
        {"frmSettingQuentavoir", "Quentavoir", "HELVARD", "CodeSplitting"},
    }};
    return tabelle;
}

} // namespace

const Einstellungsvariante& einstellungsvariante(const QVariant& prüfgeräteTyp) {
    bool ok = false;
    const int typ = prüfgeräteTyp.toInt(&ok);
    return varianten()[ok && typ == QuentavoirTyp ? 1 : 0];
}

} // namespace vemo
