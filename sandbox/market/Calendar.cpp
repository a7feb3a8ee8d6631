#include "market/Calendar.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <iterator>

namespace sandbox {

namespace {

using namespace std::chrono;

constexpr Millis kShanghai = 8 * 60 * kMinute;
constexpr int kFirstDate = static_cast<int>(sys_days{2025y / 1 / 1}.time_since_epoch().count());
constexpr int kLastDate = static_cast<int>(sys_days{2060y / 1 / 1}.time_since_epoch().count());

constexpr Millis at(int hour, int minute)
{
    return (hour * 60 + minute) * kMinute;
}

constexpr Millis kOpeningPrint = at(9, 25);
constexpr Millis kMorning = at(9, 30);
constexpr Millis kLunch = at(11, 30);
constexpr Millis kAfternoon = at(13, 0);
constexpr Millis kClosingAuction = at(14, 57);
constexpr Millis kClosingPrint = at(15, 0);
constexpr int kMorningMoments = static_cast<int>((kLunch - kMorning) / kMomentLength);
constexpr int kAfternoonMoments = static_cast<int>((kClosingAuction - kAfternoon) / kMomentLength);

struct Holiday {
    int from;
    int to;
};

// Closed days of the exchanges besides weekends, from their yearly notices (2025, 2026). Later years
// know only the fixed dates until their notice is added here.
constexpr Holiday kHolidays[] = {
    {20250101, 20250101}, {20250128, 20250204}, {20250404, 20250406}, {20250501, 20250505},
    {20250531, 20250602}, {20251001, 20251008}, {20260101, 20260103}, {20260215, 20260223},
    {20260404, 20260406}, {20260501, 20260505}, {20260619, 20260621}, {20260925, 20260927},
    {20261001, 20261007},
};
constexpr int kLastNoticeYear = 2026;

int dateNumber(int daysSince1970)
{
    const year_month_day date{sys_days{days{daysSince1970}}};
    return int(date.year()) * 10'000 + static_cast<int>(unsigned(date.month()) * 100 + unsigned(date.day()));
}

bool isTradingDate(int daysSince1970)
{
    const weekday weekdayOf{sys_days{days{daysSince1970}}};
    if (weekdayOf == Saturday || weekdayOf == Sunday)
        return false;
    const int date = dateNumber(daysSince1970);
    if (date / 10'000 > kLastNoticeYear) {
        const int monthAndDay = date % 10'000;
        return monthAndDay != 101 && monthAndDay != 501 && !(monthAndDay >= 1001 && monthAndDay <= 1007);
    }
    return std::none_of(std::begin(kHolidays), std::end(kHolidays), [date](const Holiday &holiday) {
        return date >= holiday.from && date <= holiday.to;
    });
}

int shanghaiDays(Millis time)
{
    return static_cast<int>((time + kShanghai) / kDay);
}

} // namespace

Millis timeOfDay(Millis time)
{
    return (time + kShanghai) % kDay;
}

int dateAt(Millis time)
{
    return dateNumber(shanghaiDays(time));
}

Calendar::Calendar(bool marketHours)
    : m_marketHours(marketHours), m_momentCount(marketHours ? kMorningMoments + kAfternoonMoments + 2
                                                            : static_cast<int>(kDay / kMomentLength))
{
    if (!marketHours)
        return;
    for (int date = kFirstDate; date < kLastDate; ++date)
        if (isTradingDate(date))
            m_dates.push_back(date);
}

int Calendar::dayOf(Millis time) const
{
    const int date = shanghaiDays(time);
    if (!m_marketHours)
        return std::max(0, date - kFirstDate);
    const auto after = std::upper_bound(m_dates.begin(), m_dates.end(), date);
    return std::max(0, static_cast<int>(after - m_dates.begin()) - 1);
}

int Calendar::dateOf(int day) const
{
    return dateAt(begin(day));
}

Millis Calendar::begin(int day) const
{
    const int date = m_marketHours ? m_dates.at(static_cast<std::size_t>(day)) : kFirstDate + day;
    return date * kDay - kShanghai;
}

Millis Calendar::close(int day) const
{
    return begin(day) + (m_marketHours ? kClosingPrint : kDay);
}

Millis Calendar::opens(int day) const
{
    return begin(day) + (m_marketHours ? at(9, 15) : 0);
}

Millis Calendar::timeOf(int day, int moment) const
{
    if (!m_marketHours)
        return begin(day) + moment * kMomentLength;
    if (moment == 0)
        return begin(day) + kOpeningPrint;
    if (moment == m_momentCount - 1)
        return begin(day) + kClosingPrint;
    const int continuous = moment - 1;
    if (continuous < kMorningMoments)
        return begin(day) + kMorning + continuous * kMomentLength;
    return begin(day) + kAfternoon + (continuous - kMorningMoments) * kMomentLength;
}

int Calendar::momentOf(int day, Millis time) const
{
    const Millis since = time - begin(day);
    if (since < 0)
        return -1;
    if (!m_marketHours)
        return static_cast<int>(std::min<Millis>(since / kMomentLength, m_momentCount - 1));
    if (since < kOpeningPrint)
        return -1;
    if (since < kMorning)
        return 0;
    if (since < kAfternoon)
        return 1 +
               static_cast<int>(std::min<Millis>((since - kMorning) / kMomentLength, kMorningMoments - 1));
    if (since < kClosingPrint)
        return 1 + kMorningMoments +
               static_cast<int>(
                   std::min<Millis>((since - kAfternoon) / kMomentLength, kAfternoonMoments - 1));
    return m_momentCount - 1;
}

bool Calendar::isAuction(int moment) const
{
    return m_marketHours && (moment == 0 || moment == m_momentCount - 1);
}

Phase Calendar::phase(Millis time) const
{
    if (!m_marketHours)
        return Phase::Continuous;
    const Millis since = time - begin(dayOf(time));
    struct Span {
        Millis until;
        Phase phase;
    };
    constexpr Span spans[] = {
        {at(9, 15), Phase::Closed},
        {at(9, 20), Phase::OpeningAuction},
        {kOpeningPrint, Phase::OpeningLocked},
        {kMorning, Phase::BeforeContinuous},
        {kLunch, Phase::Continuous},
        {kAfternoon, Phase::Lunch},
        {kClosingAuction, Phase::Continuous},
        {kClosingPrint, Phase::ClosingAuction},
    };
    for (const Span &span : spans)
        if (since < span.until)
            return span.phase;
    return Phase::Closed;
}

} // namespace sandbox
