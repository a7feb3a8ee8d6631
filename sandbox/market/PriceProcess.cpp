#include "market/PriceProcess.h"

#include "market/Random.h"
#include "market/VolumeProfile.h"

#include <algorithm>

namespace sandbox {

namespace {

enum Purpose { Day = 100, Open, Close, Deviation, Event, Middle, DayVolume, Taker, Quarter };

constexpr std::int64_t kFine = 1000; // thousandths of a cent

std::int64_t deviate(std::uint64_t bits, std::int64_t deviation)
{
    return bell(bits) * deviation / 1000;
}

/** Half the way down the path's halving, chance is smaller by the square root of two: 181 / 256. */
std::int64_t halved(std::int64_t deviation)
{
    return deviation * 181 / 256;
}

/** Whole cents, downwards. */
Cents cents(std::int64_t value)
{
    return value >= 0 ? value / kFine : -((-value + kFine - 1) / kFine);
}

bool buyerTook(std::uint64_t daySeed, int moment)
{
    return (draw(daySeed, Taker, moment) & 1) != 0;
}

} // namespace

Candle candleOf(int date, const std::vector<Trade> &trades)
{
    Candle candle;
    candle.day = date;
    if (trades.empty())
        return candle;
    candle.open = trades.front().price;
    candle.close = trades.back().price;
    candle.high = candle.low = candle.open;
    for (const Trade &trade : trades) {
        candle.high = std::max(candle.high, trade.price);
        candle.low = std::min(candle.low, trade.price);
        candle.volume += trade.volume;
        candle.turnover += trade.price * trade.volume;
    }
    return candle;
}

PriceProcess::PriceProcess(std::uint64_t seed, const Calendar &calendar) : m_seed(seed), m_calendar(calendar)
{
}

DayFrame PriceProcess::frame(const Stock &stock, int day)
{
    return frameAfter(stock, day, previousClose(stock, day));
}

DayFrame PriceProcess::frameAfter(const Stock &stock, int day, Cents previousClose) const
{
    const int percent = dailyLimitPercent(stock.board, stock.specialTreatment, m_calendar.dateOf(day));
    return {day, previousClose, priceLimits(previousClose, percent)};
}

Spot PriceProcess::spotAt(const Stock &stock, int day, int moment)
{
    const DayFrame today = frame(stock, day);
    if (moment < 0 || stock.suspended)
        return {today.previousClose, today.previousClose};
    const Path walk = path(stock, day, today.previousClose);
    return spotOf(stock, today, walk, moment, valueAt(walk, moment));
}

Shares PriceProcess::volumeAt(const Stock &stock, int day, int moment)
{
    if (moment < 0 || stock.suspended)
        return 0;
    const Path walk = path(stock, day, previousClose(stock, day));
    return VolumeProfile(walk.seed, m_calendar, walk.volume).at(moment);
}

std::vector<Trade> PriceProcess::tradesUntil(const Stock &stock, int day, int moment)
{
    std::vector<Trade> trades;
    if (moment < 0 || stock.suspended)
        return trades;
    const DayFrame today = frame(stock, day);
    const Path walk = path(stock, day, today.previousClose);
    const int last = m_calendar.momentCount() - 1;
    std::vector<std::int64_t> values(static_cast<std::size_t>(last) + 1);
    values.front() = walk.open;
    values.back() = walk.close;
    fill(walk, values, 0, last, walk.deviation / 2);
    const std::vector<Shares> volumes = VolumeProfile(walk.seed, m_calendar, walk.volume).all();
    for (int i = 0; i <= moment; ++i) {
        const auto at = static_cast<std::size_t>(i);
        trades.push_back({spotOf(stock, today, walk, i, values[at]).price, volumes[at]});
    }
    return trades;
}

Shares PriceProcess::openToUsers(const Stock &stock, int day, int moment)
{
    const Shares quarter = volumeAt(stock, day, moment) / 4;
    return (quarter + between(draw(m_seed, Quarter, std::stoi(stock.code), day, moment), 0, 99)) / 100 * 100;
}

Candle PriceProcess::candle(const Stock &stock, int day)
{
    const int last = m_calendar.momentCount() - 1;
    Candle candle = moved(stock, day) ? candleOf(m_calendar.dateOf(day), tradesUntil(stock, day, last))
                                      : drawnCandle(stock, day);
    candle.turnover = candle.volume * (candle.open + candle.high + candle.low + candle.close) / 4;
    return candle;
}

Candle PriceProcess::drawnCandle(const Stock &stock, int day)
{
    const int last = m_calendar.momentCount() - 1;
    const DayFrame today = frame(stock, day);
    const Path walk = path(stock, day, today.previousClose);
    Candle candle;
    candle.day = m_calendar.dateOf(day);
    candle.open = spotOf(stock, today, walk, 0, walk.open).price;
    candle.close = spotOf(stock, today, walk, last, walk.close).price;
    candle.high = std::max(candle.open, candle.close);
    candle.low = std::min(candle.open, candle.close);
    widen(stock, today, walk, 0, walk.open, last, walk.close, walk.deviation / 2, candle);
    candle.volume = VolumeProfile(walk.seed, m_calendar, walk.volume).wholeDay();
    return candle;
}

void PriceProcess::add(const PriceMove &move)
{
    m_moves[move.stockCode].push_back(move);
    const auto closes = m_closes.find(move.stockCode);
    if (closes != m_closes.end() && closes->second.size() > static_cast<std::size_t>(move.day))
        closes->second.resize(static_cast<std::size_t>(move.day));
}

Cents PriceProcess::unmovedPrice(const Stock &stock, int day, int moment)
{
    const Path walk = path(stock, day, previousClose(stock, day));
    return cents(valueAt(walk, moment)) + (buyerTook(walk.seed, moment) ? 1 : 0);
}

Cents PriceProcess::previousClose(const Stock &stock, int day)
{
    std::vector<Cents> &closes = m_closes[stock.code];
    for (int missing = static_cast<int>(closes.size()); missing < day; ++missing) {
        const Cents before = closes.empty() ? stock.basePrice : closes.back();
        Cents close = before;
        if (!stock.suspended) {
            const DayFrame past = frameAfter(stock, missing, before);
            const Path walk = path(stock, missing, before);
            close = spotOf(stock, past, walk, m_calendar.momentCount() - 1, walk.close).price;
        }
        closes.push_back(close);
    }
    return day == 0 ? stock.basePrice : closes[static_cast<std::size_t>(day) - 1];
}

PriceProcess::Path PriceProcess::path(const Stock &stock, int day, Cents previousClose) const
{
    Path walk;
    walk.seed = draw(m_seed, Day, std::stoi(stock.code), day);
    const std::int64_t from = previousClose * kFine;
    // A usual day moves 1 to 2.5 percent; about one in eighty has news and moves four times as far.
    const std::int64_t basisPoints = between(draw(walk.seed, Deviation), 100, 250);
    walk.deviation = from * basisPoints / 10'000;
    const bool news = between(draw(walk.seed, Event), 1, 80) == 1;
    const std::int64_t pull = (stock.basePrice * kFine - from) / 200;
    walk.open = from + deviate(draw(walk.seed, Open), walk.deviation / 4);
    walk.close = from + pull + deviate(draw(walk.seed, Close), news ? 4 * walk.deviation : walk.deviation);
    walk.open = std::max(walk.open, kFine);
    walk.close = std::max(walk.close, kFine);
    const Shares usualShares = stock.typicalTurnover / previousClose;
    walk.volume = usualShares * between(draw(walk.seed, DayVolume), 50, 180) / 100;
    return walk;
}

std::int64_t PriceProcess::valueAt(const Path &path, int moment) const
{
    int low = 0;
    int high = m_calendar.momentCount() - 1;
    std::int64_t lowValue = path.open;
    std::int64_t highValue = path.close;
    std::int64_t deviation = path.deviation / 2;
    while (moment != low && moment != high) {
        const int middle = (low + high) / 2;
        const std::int64_t value =
            (lowValue + highValue) / 2 + deviate(draw(path.seed, Middle, middle), deviation);
        if (moment < middle) {
            high = middle;
            highValue = value;
        } else {
            low = middle;
            lowValue = value;
        }
        deviation = halved(deviation);
    }
    return moment == low ? lowValue : highValue;
}

void PriceProcess::fill(const Path &path, std::vector<std::int64_t> &values, int low, int high,
                        std::int64_t deviation) const
{
    if (high - low < 2)
        return;
    const int middle = (low + high) / 2;
    const auto value = [&values](int moment) -> std::int64_t & {
        return values[static_cast<std::size_t>(moment)];
    };
    value(middle) = (value(low) + value(high)) / 2 + deviate(draw(path.seed, Middle, middle), deviation);
    fill(path, values, low, middle, halved(deviation));
    fill(path, values, middle, high, halved(deviation));
}

void PriceProcess::widen(const Stock &stock, const DayFrame &frame, const Path &path, int low,
                         std::int64_t lowValue, int high, std::int64_t highValue, std::int64_t deviation,
                         Candle &candle) const
{
    if (high - low < 2)
        return;
    // All displacements below this stretch together: 3.464 / (1 - 181 / 256) deviations at most.
    const std::int64_t reach = 12 * deviation;
    const Cents highest = std::min(frame.limits.upper, cents(std::max(lowValue, highValue) + reach) + 1);
    const Cents lowest = std::max(frame.limits.lower, cents(std::min(lowValue, highValue) - reach));
    if (highest <= candle.high && lowest >= candle.low)
        return;
    const int middle = (low + high) / 2;
    const std::int64_t value =
        (lowValue + highValue) / 2 + deviate(draw(path.seed, Middle, middle), deviation);
    const Cents price = spotOf(stock, frame, path, middle, value).price;
    candle.high = std::max(candle.high, price);
    candle.low = std::min(candle.low, price);
    widen(stock, frame, path, low, lowValue, middle, value, halved(deviation), candle);
    widen(stock, frame, path, middle, value, high, highValue, halved(deviation), candle);
}

bool PriceProcess::moved(const Stock &stock, int day) const
{
    return moveAt(stock, day, m_calendar.momentCount()) != nullptr;
}

const PriceMove *PriceProcess::moveAt(const Stock &stock, int day, int moment) const
{
    const auto moves = m_moves.find(stock.code);
    if (moves == m_moves.end())
        return nullptr;
    const auto holds = [&](const PriceMove &move) { return move.day == day && move.moment <= moment; };
    const auto latest = std::find_if(moves->second.rbegin(), moves->second.rend(), holds);
    return latest == moves->second.rend() ? nullptr : &*latest;
}

Spot PriceProcess::spotOf(const Stock &stock, const DayFrame &frame, const Path &path, int moment,
                          std::int64_t value) const
{
    const PriceLimits &limits = frame.limits;
    Cents bid = cents(value);
    if (const PriceMove *move = moveAt(stock, frame.day, moment)) {
        switch (move->kind) {
        case PriceMove::Kind::Shift:
            bid += move->shift;
            break;
        case PriceMove::Kind::SealUp:
            bid = limits.upper;
            break;
        case PriceMove::Kind::SealDown:
            bid = limits.lower - 1;
            break;
        case PriceMove::Kind::Release:
            break;
        }
    }
    bid = std::clamp(bid, limits.lower - 1, limits.upper);
    const Cents price = std::clamp(bid + (buyerTook(path.seed, moment) ? 1 : 0), limits.lower, limits.upper);
    return {price, bid};
}

} // namespace sandbox
