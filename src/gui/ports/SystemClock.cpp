#include "gui/ports/SystemClock.h"

#include <QDateTime>

namespace purrlodge {

std::int64_t SystemClock::now() const
{
    return QDateTime::currentSecsSinceEpoch();
}

CivilTime SystemClock::toLocal(std::int64_t secondsSince1970) const
{
    const QDateTime local = QDateTime::fromSecsSinceEpoch(secondsSince1970, Qt::LocalTime);
    const QDate date = local.date();
    const QTime time = local.time();
    CivilTime civil;
    civil.year = date.year();
    civil.month = date.month();
    civil.day = date.day();
    civil.hour = time.hour();
    civil.minute = time.minute();
    civil.second = time.second();
    civil.weekday = date.dayOfWeek() % 7; // Qt counts Monday 1 .. Sunday 7
    return civil;
}

} // namespace purrlodge
