#pragma once

#include "market/Units.h"

#include <array>
#include <string>
#include <vector>

namespace sandbox {

/** On the wire: 1 buy, 2 sell. As a side of the book: buyers' or sellers' levels. */
enum class Side { Buy = 1, Sell = 2 };

/** One line of the order book. Price 0 stands for no level. */
struct Level {
    Cents price = 0;
    Shares volume = 0;

    bool operator==(const Level &) const = default;
};

constexpr int kBookDepth = 10;

/** What a stock looks like at one moment. bids[0] and asks[0] are the best; levels that do not exist come
 * last. */
struct Quote {
    std::string code;
    std::string name;
    Cents last = 0; ///< latest traded price; 0 before the day's first trade
    Cents previousClose = 0;
    Cents upperLimit = 0;
    Cents lowerLimit = 0;
    std::array<Level, kBookDepth> bids;
    std::array<Level, kBookDepth> asks;
    bool suspended = false;
    Millis time = 0;

    bool operator==(const Quote &) const = default;
};

/** One minute of the day: the price at its end, and what was traded in it. */
struct MinutePoint {
    Millis time = 0; ///< of the minute's begin
    Cents price = 0;
    Cents average = 0; ///< turnover over volume since the day's begin
    Shares volume = 0;

    bool operator==(const MinutePoint &) const = default;
};

/** One trading day. A finished day's turnover is its volume at the mean of the four prices. */
struct Candle {
    int day = 0; ///< 20260105
    Cents open = 0;
    Cents high = 0;
    Cents low = 0;
    Cents close = 0;
    Shares volume = 0;
    Cents turnover = 0;

    bool operator==(const Candle &) const = default;
};

/** All of the detail page. `today` is the candle of the running day, all 0 before its first trade. */
struct StockDetail {
    Quote quote;
    Candle today;
    std::vector<MinutePoint> minutes; ///< of the running day so far, oldest first
    std::vector<Candle> candles;      ///< finished days and then today, oldest first
};

} // namespace sandbox
