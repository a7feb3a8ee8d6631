#include "market/Market.h"

#include "market/Random.h"

#include <algorithm>

namespace sandbox {

namespace {

enum Purpose { Phases = 200, Size, Gap };

/** How long displayed volumes stand before they are drawn anew. Each price has a rhythm of its own. */
constexpr Millis kRhythms[] = {9 * kSecond, 15 * kSecond, 24 * kSecond, 33 * kSecond};

constexpr std::size_t kRememberedHistories = 200;

std::vector<MinutePoint> minutesOf(const Calendar &calendar, int day, const std::vector<Trade> &trades)
{
    std::vector<MinutePoint> minutes;
    Shares volume = 0;
    Cents turnover = 0;
    for (std::size_t i = 0; i < trades.size(); ++i) {
        const Millis time = calendar.timeOf(day, static_cast<int>(i));
        const Millis minute = time - time % kMinute;
        if (minutes.empty() || minutes.back().time != minute)
            minutes.push_back({minute, 0, 0, 0});
        volume += trades[i].volume;
        turnover += trades[i].price * trades[i].volume;
        MinutePoint &point = minutes.back();
        point.price = trades[i].price;
        point.volume += trades[i].volume;
        point.average = volume == 0 ? trades[i].price : (turnover + volume / 2) / volume;
    }
    return minutes;
}

/** What is still displayed: whole lots, so an odd remainder sold into a level takes a lot of it. */
Shares left(const DisplayedLevel &level, Side side, const UsedDepth &used)
{
    const auto taken = used.find({side, level.price, level.epoch});
    return taken == used.end() ? level.volume : (level.volume - taken->second) / 100 * 100;
}

} // namespace

Market::Market(std::uint64_t seed, bool marketHours)
    : m_seed(seed), m_stocks(seed), m_calendar(marketHours), m_prices(seed, m_calendar)
{
}

DayFrame Market::frame(const Stock &stock, Millis time)
{
    return m_prices.frame(stock, m_calendar.dayOf(time));
}

Spot Market::spot(const Stock &stock, Millis time)
{
    const int day = m_calendar.dayOf(time);
    return m_prices.spotAt(stock, day, m_calendar.momentOf(day, time));
}

Shares Market::volume(const Stock &stock, Millis time)
{
    const int day = m_calendar.dayOf(time);
    return m_prices.volumeAt(stock, day, m_calendar.momentOf(day, time));
}

Shares Market::openToUsers(const Stock &stock, Millis time)
{
    const int day = m_calendar.dayOf(time);
    return m_prices.openToUsers(stock, day, m_calendar.momentOf(day, time));
}

DisplayedLevel Market::level(const Stock &stock, const DayFrame &frame, Side side, Cents price,
                             Millis time) const
{
    const int number = std::stoi(stock.code);
    const std::uint64_t place = draw(m_seed, Size, number, static_cast<int>(side), price);
    const Millis rhythm = kRhythms[draw(place, Phases) % std::size(kRhythms)];
    const std::int64_t epoch = (time + between(draw(place, Phases, 1), 0, rhythm - 1)) / rhythm;
    const std::uint64_t bits = draw(place, epoch);
    // A level holds a few thousandths of a day's volume; the queue of a locked board far more.
    const Shares usual = stock.typicalTurnover / frame.previousClose / 3000 * (frame.locked(price) ? 200 : 1);
    const Shares volume = usual * between(bits & 0xffffffff, 10, 200) / 100;
    return {price, volume / 100 * 100 + 100 * between(bits >> 40, 1, 5), epoch};
}

std::vector<DisplayedLevel> Market::displayed(const Stock &stock, Side side, Millis time,
                                              const UsedDepth &used)
{
    std::vector<DisplayedLevel> levels;
    const int day = m_calendar.dayOf(time);
    const int moment = m_calendar.momentOf(day, time);
    if (moment < 0 || stock.suspended)
        return levels;
    const DayFrame today = m_prices.frame(stock, day);
    const Millis shownAt = m_calendar.timeOf(day, moment);
    const int number = std::stoi(stock.code);
    const Cents bid = m_prices.spotAt(stock, day, moment).bid;
    const Cents step = side == Side::Sell ? 1 : -1;
    Cents price = side == Side::Sell ? bid + 1 : bid;
    // Dear stocks have gaps between their levels.
    const std::int64_t oneIn = std::max<std::int64_t>(1, bid / 2000);
    for (bool best = true; levels.size() < static_cast<std::size_t>(kBookDepth) &&
                           price >= today.limits.lower && price <= today.limits.upper;
         price += step, best = false) {
        const bool gap =
            !best && draw(m_seed, Gap, number, day, price) % static_cast<std::uint64_t>(oneIn) != 0;
        if (gap)
            continue;
        DisplayedLevel shown = level(stock, today, side, price, shownAt);
        shown.volume = left(shown, side, used);
        if (shown.volume > 0)
            levels.push_back(shown);
    }
    return levels;
}

Shares Market::queueAt(const Stock &stock, Side side, Cents price, Millis time, const UsedDepth &used)
{
    const auto levels = displayed(stock, side, time, used);
    const bool improves =
        !levels.empty() && (side == Side::Buy ? price > levels.front().price : price < levels.front().price);
    if (levels.empty() || improves)
        return 0;
    const int day = m_calendar.dayOf(time);
    const Millis shownAt = m_calendar.timeOf(day, m_calendar.momentOf(day, time));
    const DisplayedLevel place = level(stock, m_prices.frame(stock, day), side, price, shownAt);
    return std::max<Shares>(0, left(place, side, used));
}

Quote Market::quote(const Stock &stock, Millis time, const UsedDepth &used)
{
    const int day = m_calendar.dayOf(time);
    const int moment = m_calendar.momentOf(day, time);
    const DayFrame today = m_prices.frame(stock, day);
    Quote quote;
    quote.code = stock.code;
    quote.name = stock.name;
    quote.previousClose = today.previousClose;
    quote.upperLimit = today.limits.upper;
    quote.lowerLimit = today.limits.lower;
    quote.suspended = stock.suspended;
    quote.time = time;
    if (moment < 0 || stock.suspended)
        return quote;
    quote.last = m_prices.spotAt(stock, day, moment).price;
    const auto show = [&](Side side, std::array<Level, kBookDepth> &levels) {
        std::size_t line = 0;
        for (const DisplayedLevel &shown : displayed(stock, side, time, used))
            levels[line++] = {shown.price, shown.volume};
    };
    show(Side::Buy, quote.bids);
    show(Side::Sell, quote.asks);
    return quote;
}

StockDetail Market::detail(const Stock &stock, Millis time, const UsedDepth &used, int finishedDays)
{
    const int day = m_calendar.dayOf(time);
    const std::vector<Trade> trades = m_prices.tradesUntil(stock, day, m_calendar.momentOf(day, time));
    StockDetail detail;
    detail.quote = quote(stock, time, used);
    detail.today = candleOf(m_calendar.dateOf(day), trades);
    detail.minutes = minutesOf(m_calendar, day, trades);
    detail.candles = finishedCandles(stock, day, finishedDays);
    if (!trades.empty())
        detail.candles.push_back(detail.today);
    return detail;
}

const std::vector<Candle> &Market::finishedCandles(const Stock &stock, int today, int count)
{
    if (m_history.size() > kRememberedHistories)
        m_history.clear();
    History &history = m_history[stock.code];
    if (history.today == today)
        return history.candles;
    history.today = today;
    history.candles.clear();
    for (int day = std::max(0, today - count); day < today && !stock.suspended; ++day)
        history.candles.push_back(m_prices.candle(stock, day));
    return history.candles;
}

} // namespace sandbox
