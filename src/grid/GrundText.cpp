#include "grid/GrundText.h"

#include "core/ModulState.h"
#include "store/Variant.h"

namespace vemo {

QString GrundText(const Recordset& prüfung) {
    const auto gesetzt = [&](const char* feld) {
        const QVariant v = prüfung.Field(feld);
        return !istLeer(v) && zahl(v) == 1;
    };
    for (const char* grund : {"Grund1", "Grund2", "Grund3"})
        if (gesetzt(grund))
            return xText(grund);
    if (gesetzt("Grund4")) {
        const QString frei = prüfung.Text("GrundText");
        return frei == xText("Grund4") ? xText("Grund4") : frei;
    }
    return {};
}

} // namespace vemo
