#include "core/Instrumentenuhr.h"

#include <limits>

namespace vemo {
namespace {

constexpr qint64 SekundenJeTag = 86400;

QTime uhrzeit(quint32 sekunden) {
    return QTime(0, 0).addSecs(int(sekunden % SekundenJeTag));
}

QDate datum(quint32 sekunden) {
    return instrumentenuhr::Epoche.addDays(qint64(sekunden / SekundenJeTag));
}

} // namespace

std::optional<quint32> ZEMAKsecTime(int tag, int monat, int jahr, int stunde, int minute, int sekunde) {
    const QDate d(jahr, monat, tag);
    if (!d.isValid() || !QTime::isValid(stunde, minute, sekunde))
        return std::nullopt;
    const qint64 sekunden =
        instrumentenuhr::Epoche.daysTo(d) * SekundenJeTag + stunde * 3600 + minute * 60 + sekunde;
    if (sekunden < 0 || sekunden > std::numeric_limits<quint32>::max())
        return std::nullopt;
    return quint32(sekunden);
}

void ZEMAKgetTime(quint32 sekunden, int& tag, int& monat, int& jahr, int& stunde, int& minute, int& sekunde) {
    const QDate d = datum(sekunden);
    const QTime t = uhrzeit(sekunden);
    tag = d.day();
    monat = d.month();
    jahr = d.year();
    stunde = t.hour();
    minute = t.minute();
    sekunde = t.second();
}

std::optional<quint32> instrumentenzeit(const QDateTime& zeitpunkt) {
    const QDateTime lokal = zeitpunkt.toLocalTime();
    const QDate d = lokal.date();
    const QTime t = lokal.time();
    return ZEMAKsecTime(d.day(), d.month(), d.year(), t.hour(), t.minute(), t.second());
}

QDateTime ZeitAusSekunden(quint32 sekunden) {
    const QDate d = datum(sekunden);
    const QTime t = uhrzeit(sekunden);
    const QDateTime lokal(d, t);
    if (lokal.isValid())
        return lokal;
    // The skipped hour: read the wall time with the offset in force before the skip.
    const QDateTime wandzeit(d, t, Qt::UTC);
    const int versatzVorher = wandzeit.addDays(-1).toLocalTime().offsetFromUtc();
    return wandzeit.addSecs(-versatzVorher).toLocalTime();
}

} // namespace vemo
