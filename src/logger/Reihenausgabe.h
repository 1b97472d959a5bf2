#pragma once

#include "logger/Zuordnen.h"

#include <QJsonObject>
#include <QVariant>
#include <optional>

namespace vemo {

// A series stored for an inspection: the chart with the times of its points, and its head; nothing
// when the inspection holds none. The first series counts when there are several.
struct GespeicherteReihe {
    Diagramm diagramm;
    Reihenkopf kopf;
    QString überschrift;
};
std::optional<GespeicherteReihe> reiheDerPrüfung(const QVariant& prüfungID);

// A stored logger series as the command line prints it: the head row of datlog37 and its points
// from messreihe37 in the order of their times; an empty object when there is no such series.
QJsonObject reiheAlsJson(qint32 iddatlog);

} // namespace vemo
