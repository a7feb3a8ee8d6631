#include "market/Market.h"

#include "Shanghai.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace sandbox {
namespace {

constexpr std::uint64_t kSeed = 3;

TEST(Market, PricesStayWithinTheLimitsAndDaysAreChained)
{
    Market market(kSeed, true);
    const int last = market.calendar().momentCount() - 1;
    int locked = 0;
    for (std::size_t i = 0; i < market.stocks().all().size(); i += 250) {
        const Stock &stock = market.stocks().all()[i];
        for (int day = 0; day < 40; ++day) {
            const DayFrame frame = market.prices().frame(stock, day);
            const auto trades = market.prices().tradesUntil(stock, day, last);
            if (trades.empty())
                continue;
            Cents high = 0;
            Cents low = trades.front().price;
            Shares volume = 0;
            for (const Trade &trade : trades) {
                high = std::max(high, trade.price);
                low = std::min(low, trade.price);
                volume += trade.volume;
                ASSERT_EQ(trade.volume % 100, 0);
            }
            EXPECT_GE(low, frame.limits.lower);
            EXPECT_LE(high, frame.limits.upper);
            EXPECT_EQ(market.prices().frame(stock, day + 1).previousClose, trades.back().price);
            locked += frame.locked(trades.back().price);
            const Candle candle = market.prices().candle(stock, day);
            EXPECT_EQ(candle.open, trades.front().price);
            EXPECT_EQ(candle.high, high);
            EXPECT_EQ(candle.low, low);
            EXPECT_EQ(candle.close, trades.back().price);
            EXPECT_EQ(candle.volume, volume);
        }
    }
    EXPECT_LT(locked, 40) << "a locked close is an exception";
}

TEST(Market, OneMomentAskedAloneIsTheSameAsInTheWholeDay)
{
    Market market(kSeed, false);
    Market other(kSeed, false);
    const Stock &stock = market.stocks().all()[1234];
    const auto trades = market.prices().tradesUntil(stock, 300, 28'799);
    Cents previous = trades.front().price;
    int changes = 0;
    for (int moment = 0; moment < 28'800; moment += 7) {
        const Cents alone = other.prices().spotAt(stock, 300, moment).price;
        ASSERT_EQ(alone, trades[static_cast<std::size_t>(moment)].price);
        ASSERT_EQ(other.prices().volumeAt(stock, 300, moment),
                  trades[static_cast<std::size_t>(moment)].volume);
        changes += alone != previous;
        previous = alone;
    }
    EXPECT_GT(changes, 400) << "the price moves";
}

TEST(Market, BooksAreOrderedWithinTheLimitsAndNeverCross)
{
    Market market(kSeed, false);
    for (std::size_t i = 3; i < market.stocks().all().size(); i += 97) {
        const Stock &stock = market.stocks().all()[i];
        const Quote quote = market.quote(stock, shanghai(kTuesday, 10, 0) + static_cast<Millis>(i) * 977, {});
        std::vector<Cents> prices; ///< of all levels, dearest first
        for (const auto &side : {quote.asks, quote.bids}) {
            std::reverse(prices.begin(), prices.end());
            for (const Level &level : side) {
                EXPECT_EQ(level.price == 0, level.volume == 0);
                EXPECT_EQ(level.volume % 100, 0);
                if (level.price != 0)
                    prices.push_back(level.price);
            }
        }
        EXPECT_EQ(prices.empty(), stock.suspended);
        EXPECT_EQ(std::adjacent_find(prices.begin(), prices.end(), std::less_equal()), prices.end())
            << stock.code;
        EXPECT_TRUE(prices.empty() ||
                    (prices.front() <= quote.upperLimit && prices.back() >= quote.lowerLimit));
        EXPECT_TRUE(quote.last == quote.bids[0].price || quote.last == quote.asks[0].price) << stock.code;
    }
}

TEST(Market, DetailAddsUp)
{
    Market market(kSeed, true);
    const Stock &stock = market.stocks().all()[2500];
    const StockDetail detail = market.detail(stock, shanghai(kTuesday, 13, 30), {}, 60);
    Shares volume = 0;
    for (const MinutePoint &minute : detail.minutes)
        volume += minute.volume;
    EXPECT_EQ(volume, detail.today.volume);
    EXPECT_EQ(detail.minutes.size(), 1u + 120u + 31u)
        << "opening print, the morning, half an hour and a moment";
    EXPECT_EQ(detail.minutes.back().price, detail.quote.last);
    EXPECT_EQ(detail.minutes.back().average, (detail.today.turnover + volume / 2) / volume);
    ASSERT_EQ(detail.candles.size(), 61u);
    EXPECT_EQ(detail.candles.back(), detail.today);
    EXPECT_EQ(detail.candles[59].close, detail.quote.previousClose);
    EXPECT_LT(detail.candles[59].day, detail.today.day);
}

} // namespace
} // namespace sandbox
