#pragma once

#include <QDate>
#include <QDateTime>
#include <optional>

namespace vemo {

// The clock of the 37xx instruments: a 32-bit count of seconds since 1 January 2000, 00:00:00.
// It is set from the computer's local time and knows neither time zone nor daylight saving time:
// it shows wall time, and every day of its calendar has 86400 seconds. So a count names a date and
// time of the Gregorian calendar from 01.01.2000 00:00:00 (0) to 07.02.2136 06:28:15 (4294967295).
namespace instrumentenuhr {
inline const QDate Epoche{2000, 1, 1};
} // namespace instrumentenuhr

// The count of a calendar date and time; nothing when the date or time does not exist or lies
// outside the count's range.
std::optional<quint32> ZEMAKsecTime(int tag, int monat, int jahr, int stunde, int minute, int sekunde);

// The calendar date and time of a count, the inverse of ZEMAKsecTime.
void ZEMAKgetTime(quint32 sekunden, int& tag, int& monat, int& jahr, int& stunde, int& minute, int& sekunde);

// The count of a moment as the computer's clock shows it in local time.
std::optional<quint32> instrumentenzeit(const QDateTime& zeitpunkt);

// The date and time of a count, in local time. A wall time that the computer's clock skips (the
// hour at the start of daylight saving time) comes out as the clock shows that moment, an hour
// later.
QDateTime ZeitAusSekunden(quint32 sekunden);

} // namespace vemo
