#pragma once

#include "market/Calendar.h"
#include "market/PriceProcess.h"
#include "market/Quote.h"
#include "market/StockList.h"

#include <map>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace sandbox {

/** One displayed level. Its volume stands for a while and is then drawn anew: `epoch` tells the two apart. */
struct DisplayedLevel {
    Cents price = 0;
    Shares volume = 0;
    std::int64_t epoch = 0;
};

/** What our users have taken of a stock's levels since each was drawn: by side, price and epoch. */
using UsedDepth = std::map<std::tuple<Side, Cents, std::int64_t>, Shares>;

/** Companies, calendar and prices together: what the market looks like at any time. Not for several threads
 * at once. */
class Market {
public:
    Market(std::uint64_t seed, bool marketHours);

    const StockList &stocks() const { return m_stocks; }
    const Calendar &calendar() const { return m_calendar; }
    PriceProcess &prices() { return m_prices; }

    DayFrame frame(const Stock &stock, Millis time);
    Spot spot(const Stock &stock, Millis time);
    /** Traded in the moment that the time belongs to. */
    Shares volume(const Stock &stock, Millis time);
    /** Of that volume, what our users' resting orders may have had. */
    Shares openToUsers(const Stock &stock, Millis time);
    /**
     * One side of the book at that time, best first, at most ten levels, without what was used up. On a
     * sealed board the other side is empty; before the day's first trade and for suspended stocks both are.
     */
    std::vector<DisplayedLevel> displayed(const Stock &stock, Side side, Millis time, const UsedDepth &used);
    /** What an order that comes now waits behind at its price: 0 when it is better than the side's best. */
    Shares queueAt(const Stock &stock, Side side, Cents price, Millis time, const UsedDepth &used);

    Quote quote(const Stock &stock, Millis time, const UsedDepth &used);
    /** With so many finished days of candles. */
    StockDetail detail(const Stock &stock, Millis time, const UsedDepth &used, int finishedDays);

private:
    DisplayedLevel level(const Stock &stock, const DayFrame &frame, Side side, Cents price,
                         Millis time) const;
    const std::vector<Candle> &finishedCandles(const Stock &stock, int today, int count);

    std::uint64_t m_seed;
    StockList m_stocks;
    Calendar m_calendar;
    PriceProcess m_prices;

    struct History {
        int today = -1;
        std::vector<Candle> candles;
    };
    std::unordered_map<std::string, History> m_history;
};

} // namespace sandbox
