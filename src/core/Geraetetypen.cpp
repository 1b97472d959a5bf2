#include "core/Geraetetypen.h"

#include "core/Arbeitsdateien.h"

namespace vemo {

const std::vector<Gerätetyp>& gerätetypen() {
    static const std::vector<Gerätetyp> tabelle{
        {100, selektor::Deutsch, datei::Ruvo},     {101, selektor::Kontalex, datei::Rs232Txt},
        {102, selektor::Sorelin, datei::Rs232Sep}, {103, selektor::Zemak, datei::Ruvo},
        {104, selektor::Zemak3710B, datei::Ruvo},  {105, selektor::Zemak3720, datei::Ruvo},
        {106, selektor::Quentavoir, datei::Ruvo},  {107, selektor::Zemak3740, datei::Ruvo},
    };
    return tabelle;
}

std::optional<QString> selektorFür(int code) {
    for (const auto& t : gerätetypen())
        if (t.code == code)
            return t.selektor;
    return std::nullopt;
}

QString rohdateiFür(const QString& s) {
    if (s == selektor::Kontalex)
        return datei::Rs232Txt;
    if (s == selektor::Sorelin)
        return datei::Rs232Sep;
    return datei::Ruvo;
}

} // namespace vemo
