#include "trading/charts/TradingHours.h"

#include <algorithm>

namespace {
constexpr int at(int hour, int minute)
{
    return hour * 60 + minute;
}
constexpr int opening = at(9, 30);
constexpr int lunch = at(11, 30);
constexpr int afternoon = at(13, 0);
constexpr int closing = at(15, 0);
constexpr int morningLength = lunch - opening;
constexpr int dayLength = morningLength + closing - afternoon;
/// Auctions print a little outside the hours.
constexpr int grace = 15;
} // namespace

TradingHours TradingHours::of(const QList<Minute> &minutes)
{
    const auto outside = [](const Minute &point) {
        return point.minute < opening - grace || point.minute > closing + grace ||
               (point.minute > lunch + grace && point.minute < afternoon - grace);
    };
    TradingHours hours;
    hours.wholeDay = std::any_of(minutes.begin(), minutes.end(), outside);
    return hours;
}

double TradingHours::position(int minute) const
{
    if (wholeDay)
        return minute / static_cast<double>(at(24, 0));
    const int morning = std::clamp(minute - opening, 0, morningLength);
    const int later = std::clamp(minute - afternoon, 0, dayLength - morningLength);
    return (morning + later) / static_cast<double>(dayLength);
}

QList<TradingHours::Mark> TradingHours::marks() const
{
    if (wholeDay)
        return {{QStringLiteral("0:00"), 0}, {QStringLiteral("12:00"), 0.5}, {QStringLiteral("24:00"), 1}};
    return {{QStringLiteral("9:30"), 0}, {QStringLiteral("11:30/13:00"), 0.5}, {QStringLiteral("15:00"), 1}};
}
