#pragma once

#include "market/Calendar.h"
#include "market/Quote.h"
#include "market/Rules.h"
#include "market/StockList.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace sandbox {

/** A stock's frame for one trading day. */
struct DayFrame {
    int day = 0;
    Cents previousClose = 0;
    PriceLimits limits;

    bool locked(Cents price) const { return price == limits.upper || price == limits.lower; }
};

/** Where a stock stands at one moment. */
struct Spot {
    Cents price = 0; ///< of the latest trade: the bid or the ask
    Cents bid = 0;   ///< where the buyers' levels begin; the sellers' begin a cent above
};

/** What is traded at one moment. */
struct Trade {
    Cents price = 0;
    Shares volume = 0;
};

/** A day, or a day so far, out of its trades; all 0 without any. */
Candle candleOf(int date, const std::vector<Trade> &trades);

/** A hand on the price: from a moment on to the end of that day. */
struct PriceMove {
    enum class Kind { Shift, SealUp, SealDown, Release };

    std::string stockCode;
    int day = 0;
    int moment = 0;
    Kind kind = Kind::Shift;
    Cents shift = 0; ///< added to the price the stock would have had
};

/**
 * The price of every stock at every moment: a function of the seed and of the moves made by hand, computed on
 * demand.
 *
 * A day leads from an opening price near the previous close to a closing price drawn for the day, by
 * halving the stretch again and again and displacing each middle by chance; the limits cut it off, so a day
 * that wants to go beyond them is sealed. Closing prices are chained from the stock's base price and pulled
 * softly back to it. Whole numbers only, so every machine gets the same prices.
 *
 * Not for several threads at once (it remembers closing prices).
 */
class PriceProcess {
public:
    PriceProcess(std::uint64_t seed, const Calendar &calendar);

    DayFrame frame(const Stock &stock, int day);
    /** A moment of -1 (before the day's first trade) answers the previous close. */
    Spot spotAt(const Stock &stock, int day, int moment);
    Shares volumeAt(const Stock &stock, int day, int moment);
    /** All trades of the day up to and including the moment. */
    std::vector<Trade> tradesUntil(const Stock &stock, int day, int moment);

    /** Of a moment's volume what our users' resting orders may have had: a quarter, in lots rounded by
     * chance. */
    Shares openToUsers(const Stock &stock, int day, int moment);
    /** A whole day. Its turnover is the volume at the mean of the four prices. */
    Candle candle(const Stock &stock, int day);

    /** Takes a move up; moves of one stock come in order of time. */
    void add(const PriceMove &move);
    /** The price at that moment without moves and limits, which a shift adds to. */
    Cents unmovedPrice(const Stock &stock, int day, int moment);

private:
    /** The day's path without limits and moves, in thousandths of a cent. */
    struct Path {
        std::uint64_t seed = 0;
        std::int64_t open = 0;
        std::int64_t close = 0;
        std::int64_t deviation = 0;
        Shares volume = 0; ///< of the whole day
    };

    DayFrame frameAfter(const Stock &stock, int day, Cents previousClose) const;
    Cents previousClose(const Stock &stock, int day);
    Path path(const Stock &stock, int day, Cents previousClose) const;
    std::int64_t valueAt(const Path &path, int moment) const;
    void fill(const Path &path, std::vector<std::int64_t> &values, int low, int high,
              std::int64_t deviation) const;
    bool moved(const Stock &stock, int day) const;
    Candle drawnCandle(const Stock &stock, int day);
    void widen(const Stock &stock, const DayFrame &frame, const Path &path, int low, std::int64_t lowValue,
               int high, std::int64_t highValue, std::int64_t deviation, Candle &candle) const;
    const PriceMove *moveAt(const Stock &stock, int day, int moment) const;
    /** Price and bid at a moment where the path has this value. */
    Spot spotOf(const Stock &stock, const DayFrame &frame, const Path &path, int moment,
                std::int64_t value) const;

    std::uint64_t m_seed;
    const Calendar &m_calendar;
    std::unordered_map<std::string, std::vector<Cents>> m_closes; ///< from day 0 on
    std::unordered_map<std::string, std::vector<PriceMove>> m_moves;
};

} // namespace sandbox
