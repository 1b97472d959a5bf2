#pragma once

#include <QString>
#include <optional>
#include <vector>

namespace vemo {

// The selectors every branch on the instrument type compares, exactly.
namespace selektor {
inline const QString Deutsch = "Multitester = Deutsch";
inline const QString Kontalex = "Multitester = Kontalex";
inline const QString Sorelin = "Multitester = Sorelin";
inline const QString Zemak = "Multitester = ZEMAK";
inline const QString Zemak3710B = "Multitester = ZEMAK 3710B";
inline const QString Zemak3720 = "Multitester = ZEMAK 3720";
inline const QString Quentavoir = "Multitester = Quentavoir";
inline const QString Zemak3740 = "Multitester = ZEMAK 3740";
// Compared in places, assigned nowhere: its branches stay reachable only for a later version.
inline const QString Varitron = "Multitester = 0100-Varitron";
} // namespace selektor

// A device type code of the host and what it stands for.
struct Gerätetyp {
    int code;
    QString selektor;
    QString rohdatei; // the working file its dump lands in
};

const std::vector<Gerätetyp>& gerätetypen();
std::optional<QString> selektorFür(int code);

// The raw file of a selector: the report text, the block dump, or the working dump.
QString rohdateiFür(const QString& selektor);

} // namespace vemo
