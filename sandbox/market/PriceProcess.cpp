#include "market/PriceProcess.h"

#include "market/Random.h"

#include <algorithm>

namespace sandbox {

namespace {

enum Purpose { Day = 100, Open, Close, Deviation, Event, Middle, Volume, DayVolume, Quarter };

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

Shares wholeLots(Shares shares)
{
    return shares / 100 * 100;
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
    DayFrame frame{day, previousClose(stock, day), {}};
    frame.limits = priceLimits(
        frame.previousClose, dailyLimitPercent(stock.board, stock.specialTreatment, m_calendar.dateOf(day)));
    return frame;
}

Trade PriceProcess::tradeAt(const Stock &stock, int day, int moment)
{
    const DayFrame today = frame(stock, day);
    if (moment < 0 || stock.suspended)
        return {today.previousClose, 0};
    const Path walk = path(stock, day, today.previousClose);
    return {priceOf(stock, today, moment, valueAt(walk, moment)),
            wholeLots(volumeThrough(walk, moment)) - wholeLots(volumeThrough(walk, moment - 1))};
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
    const std::vector<Shares> volumes = volumesOf(walk);
    Shares through = 0;
    for (int i = 0; i <= moment; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const Shares before = through;
        through += volumes[at];
        trades.push_back({priceOf(stock, today, i, values[at]), wholeLots(through) - wholeLots(before)});
    }
    return trades;
}

Shares PriceProcess::openToUsers(const Stock &stock, int day, int moment)
{
    const Shares quarter = tradeAt(stock, day, moment).volume / 4;
    return wholeLots(quarter + between(draw(m_seed, Quarter, std::stoi(stock.code), day, moment), 0, 99));
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
    const DayFrame frame = this->frame(stock, day);
    const Path walk = path(stock, day, frame.previousClose);
    std::int64_t lowest = std::min(walk.open, walk.close);
    std::int64_t highest = std::max(walk.open, walk.close);
    widen(walk, 0, walk.open, last, walk.close, walk.deviation / 2, lowest, highest);
    const auto priced = [&](std::int64_t value) { return priceOf(stock, frame, last, value); };
    return {m_calendar.dateOf(day),
            priced(walk.open),
            priced(highest),
            priced(lowest),
            priced(walk.close),
            wholeLots(walk.volume),
            0};
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
    return (valueAt(walk, std::max(0, moment)) + kFine / 2) / kFine;
}

Cents PriceProcess::previousClose(const Stock &stock, int day)
{
    std::vector<Cents> &closes = m_closes[stock.code];
    for (int missing = static_cast<int>(closes.size()); missing < day; ++missing) {
        const Cents before = closes.empty() ? stock.basePrice : closes.back();
        Cents close = before;
        if (!stock.suspended) {
            const DayFrame past{missing, before,
                                priceLimits(before, dailyLimitPercent(stock.board, stock.specialTreatment,
                                                                      m_calendar.dateOf(missing)))};
            close = priceOf(stock, past, m_calendar.momentCount() - 1, path(stock, missing, before).close);
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

void PriceProcess::widen(const Path &path, int low, std::int64_t lowValue, int high, std::int64_t highValue,
                         std::int64_t deviation, std::int64_t &lowest, std::int64_t &highest) const
{
    if (high - low < 2)
        return;
    // All displacements below this stretch together: 3.464 / (1 - 181 / 256) deviations at most.
    const std::int64_t reach = 12 * deviation;
    if (std::max(lowValue, highValue) + reach <= highest && std::min(lowValue, highValue) - reach >= lowest)
        return;
    const int middle = (low + high) / 2;
    const std::int64_t value =
        (lowValue + highValue) / 2 + deviate(draw(path.seed, Middle, middle), deviation);
    lowest = std::min(lowest, value);
    highest = std::max(highest, value);
    widen(path, low, lowValue, middle, value, halved(deviation), lowest, highest);
    widen(path, middle, value, high, highValue, halved(deviation), lowest, highest);
}

Shares PriceProcess::auctionVolume(const Path &path, int moment) const
{
    // An auction gathers about a hundredth of the day's volume.
    return m_calendar.isAuction(moment)
               ? path.volume / 100 * between(draw(path.seed, Volume, moment), 50, 150) / 100
               : 0;
}

Shares PriceProcess::leftPart(const Path &path, int first, int count, Shares volume) const
{
    const Shares even = volume * (count / 2) / count;
    return even * between(draw(path.seed, Volume, first, count), 40, 160) / 100;
}

Shares PriceProcess::volumeThrough(const Path &path, int moment) const
{
    const int last = m_calendar.momentCount() - 1;
    if (moment < 0)
        return 0;
    if (moment == last)
        return path.volume;
    const Shares opening = auctionVolume(path, 0);
    if (m_calendar.isAuction(moment))
        return opening;
    int first = m_calendar.isAuction(0) ? 1 : 0;
    int count = m_calendar.momentCount() - 2 * first;
    Shares volume = path.volume - opening - auctionVolume(path, last);
    Shares through = opening;
    while (count > 1) {
        const Shares left = leftPart(path, first, count, volume);
        const int half = count / 2;
        if (moment < first + half) {
            count = half;
            volume = left;
        } else {
            through += left;
            volume -= left;
            first += half;
            count -= half;
        }
    }
    return through + volume;
}

void PriceProcess::spread(const Path &path, std::vector<Shares> &volumes, int first, int count,
                          Shares volume) const
{
    if (count == 1) {
        volumes[static_cast<std::size_t>(first)] = volume;
        return;
    }
    const Shares left = leftPart(path, first, count, volume);
    spread(path, volumes, first, count / 2, left);
    spread(path, volumes, first + count / 2, count - count / 2, volume - left);
}

std::vector<Shares> PriceProcess::volumesOf(const Path &path) const
{
    std::vector<Shares> volumes(static_cast<std::size_t>(m_calendar.momentCount()));
    volumes.front() = auctionVolume(path, 0);
    volumes.back() = auctionVolume(path, m_calendar.momentCount() - 1);
    const int first = m_calendar.isAuction(0) ? 1 : 0;
    spread(path, volumes, first, m_calendar.momentCount() - 2 * first,
           path.volume - volumes.front() - volumes.back());
    return volumes;
}

bool PriceProcess::moved(const Stock &stock, int day) const
{
    const auto moves = m_moves.find(stock.code);
    return moves != m_moves.end() && std::any_of(moves->second.begin(), moves->second.end(),
                                                 [day](const PriceMove &move) { return move.day == day; });
}

Cents PriceProcess::priceOf(const Stock &stock, const DayFrame &frame, int moment, std::int64_t value) const
{
    Cents price = (value + kFine / 2) / kFine;
    const auto moves = m_moves.find(stock.code);
    if (moves != m_moves.end()) {
        const auto &list = moves->second;
        const auto holds = [&](const PriceMove &move) {
            return move.day == frame.day && move.moment <= moment;
        };
        const auto move = std::find_if(list.rbegin(), list.rend(), holds);
        if (move != list.rend()) {
            switch (move->kind) {
            case PriceMove::Kind::Shift:
                price += move->shift;
                break;
            case PriceMove::Kind::SealUp:
                price = frame.limits.upper;
                break;
            case PriceMove::Kind::SealDown:
                price = frame.limits.lower;
                break;
            case PriceMove::Kind::Release:
                break;
            }
        }
    }
    return std::clamp(price, frame.limits.lower, frame.limits.upper);
}

} // namespace sandbox
