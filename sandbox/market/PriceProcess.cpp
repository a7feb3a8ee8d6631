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

} // namespace

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
        return {today.previousClose, 0, 0};
    const Path walk = path(stock, day, today.previousClose);
    return traded(walk, moment, priceOf(stock, today, moment, valueAt(walk, moment)));
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
    trades.reserve(static_cast<std::size_t>(moment) + 1);
    for (int i = 0; i <= moment; ++i)
        trades.push_back(traded(walk, i, priceOf(stock, today, i, values[static_cast<std::size_t>(i)])));
    return trades;
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
    walk.sharesPerMoment =
        usualShares * between(draw(walk.seed, DayVolume), 50, 180) / 100 / m_calendar.momentCount();
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

Trade PriceProcess::traded(const Path &path, int moment, Cents price) const
{
    const std::uint64_t bits = draw(path.seed, Volume, moment);
    // An auction gathers about a hundredth of the day's volume.
    const Shares usual = path.sharesPerMoment;
    const Shares shares = m_calendar.isAuction(moment)
                              ? usual * m_calendar.momentCount() / 100 * between(bits & 0xffff, 50, 150) / 100
                              : usual * between(bits & 0xffff, 0, 200) * between(bits >> 32, 0, 200) / 10'000;
    // Rounded to lots by chance, so that small volumes keep their mean.
    const auto toLots = [](Shares exact, std::uint64_t chance) {
        return (exact + between(chance, 0, 99)) / 100 * 100;
    };
    const Shares volume = toLots(shares, bits >> 16 & 0xffff);
    return {price, volume, toLots(volume / 4, draw(path.seed, Quarter, moment))};
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
