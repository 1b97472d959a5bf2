#include "parsers/ZeitAusSekunden.h"

namespace vemo {

QDateTime ZeitAusSekunden(qint64 sekunden) {
    // The instrument's clock is a wall clock, set to the computer's local time at each transfer and
    // counting on from there: its seconds are counted on a calendar without time zone or summer
    // time, and the date and time they reach are the local ones of the measurement.
    const QDateTime wanduhr = QDateTime(QDate(2000, 1, 1), QTime(0, 0), Qt::UTC).addSecs(sekunden);
    return QDateTime(wanduhr.date(), wanduhr.time());
}

} // namespace vemo
