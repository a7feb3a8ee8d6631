#include "TradingFixture.h"

namespace sandbox {
namespace {

/** A trading day with its real sessions, played by hand. */
class Session : public TradingFixture {
protected:
    void begin(int hour, int minute, int second = 0)
    {
        open(true, shanghai(kTuesday, hour, minute, second));
        openAccount(1'000'000'000);
        m_code = stock(Board::ShanghaiMain).code;
    }
    void passTo(int hour, int minute, int second = 0) { passUntil(shanghai(kTuesday, hour, minute, second)); }
    Rule refusedBy(const Outcome<Order> &outcome)
    {
        const auto *refusal = std::get_if<Refusal>(&outcome);
        EXPECT_TRUE(refusal);
        return refusal ? refusal->rule : Rule::Account;
    }
    std::string m_code;
};

TEST_F(Session, NoOrdersBeforeTheAuctionAndAfterTheClose)
{
    begin(9, 14, 59);
    EXPECT_EQ(quote(m_code).last, 0);
    const std::string price = yuanText(quote(m_code).previousClose);
    EXPECT_EQ(refusedBy(attempt(Side::Buy, m_code, price, "100")), Rule::Session);
    passTo(9, 15);
    EXPECT_TRUE(std::holds_alternative<Order>(attempt(Side::Buy, m_code, price, "100")));
    passTo(15, 0);
    EXPECT_EQ(refusedBy(attempt(Side::Buy, m_code, price, "100")), Rule::Session);
}

TEST_F(Session, TheOpeningAuctionTradesAtOnePrice)
{
    begin(9, 16);
    const Quote before = quote(m_code);
    const Shares many = 1'000'000'000 / before.upperLimit / 200 * 100;
    const Order eager = place(Side::Buy, m_code, before.upperLimit, many);
    const Order modest = place(Side::Buy, m_code, before.lowerLimit, 100);
    passTo(9, 24, 59);
    EXPECT_EQ(orderNow(eager).status, OrderStatus::Accepted);
    passTo(9, 25);
    EXPECT_EQ(orderNow(eager).status, OrderStatus::Filled) << "better than the price: served in full";
    EXPECT_EQ(orderNow(eager).filledMoney, many * quote(m_code).last);
    EXPECT_LT(quote(m_code).last, before.upperLimit);
    EXPECT_EQ(orderNow(modest).status, OrderStatus::Accepted);
}

TEST_F(Session, CancelsHaveTheirWindows)
{
    begin(9, 16);
    const Cents low = quote(m_code).lowerLimit;
    const auto cancel = [&](const Order &order) {
        return brokerage().cancelOrder(kUser, entrustNo(order.id));
    };
    const Order early = place(Side::Buy, m_code, low, 100);
    EXPECT_TRUE(std::holds_alternative<Order>(cancel(early)));
    const Order locked = place(Side::Buy, m_code, low, 100);
    passTo(9, 20);
    EXPECT_EQ(orderNow(early).status, OrderStatus::Cancelled);
    EXPECT_EQ(refusedBy(cancel(locked)), Rule::CancelWindow);
    passTo(9, 26);
    EXPECT_TRUE(std::holds_alternative<Order>(cancel(locked)));
    passTo(9, 29, 59);
    EXPECT_EQ(orderNow(locked).status, OrderStatus::CancelRequested)
        << "taken, but not worked on before 9:30";
    passTo(9, 30);
    EXPECT_EQ(orderNow(locked).status, OrderStatus::Cancelled);
}

TEST_F(Session, ClosingAuctionTakesOrdersButNoCancels)
{
    begin(14, 57, 30);
    const Quote shown = quote(m_code);
    const Order eager = place(Side::Buy, m_code, shown.upperLimit, 100);
    const Order modest = place(Side::Buy, m_code, shown.lowerLimit, 100);
    EXPECT_EQ(refusedBy(brokerage().cancelOrder(kUser, entrustNo(modest.id))), Rule::CancelWindow);
    passTo(15, 0);
    EXPECT_EQ(orderNow(eager).status, OrderStatus::Filled);
    EXPECT_EQ(orderNow(eager).filledMoney, 100 * quote(m_code).last) << "the closing price";
    EXPECT_EQ(orderNow(modest).status, OrderStatus::Cancelled) << "it expired";
    EXPECT_EQ(brokerage().accountSummary(kUser).frozen, 0);
    EXPECT_EQ(brokerage().ordersToday(kUser, 0).size(), 2u) << "the day is shown until the next begins";
}

TEST_F(Session, WhatIsOrderedAtLunchGoesToTheExchangeAtOne)
{
    begin(11, 45);
    const Quote shown = quote(m_code);
    const Order order = place(Side::Buy, m_code, shown.asks[4].price, 100);
    EXPECT_EQ(order.status, OrderStatus::Held);
    EXPECT_EQ(quote(m_code), [&] {
        Quote same = shown;
        same.time = now();
        return same;
    }()) << "the book stands still";
    passTo(12, 59, 59);
    EXPECT_EQ(orderNow(order).status, OrderStatus::Held);
    passTo(13, 1);
    EXPECT_NE(orderNow(order).status, OrderStatus::Held);
}

TEST_F(Session, AnOrderFarFromTheMarketIsVoidInContinuousTrading)
{
    begin(10, 0);
    const Quote shown = quote(m_code);
    const Order order = place(Side::Buy, m_code, shown.upperLimit, 100);
    EXPECT_EQ(order.status, OrderStatus::Rejected);
    EXPECT_FALSE(order.note.empty());
    EXPECT_EQ(brokerage().usableMoney(kUser), 1'000'000'000);
    const Order low = place(Side::Buy, m_code, shown.lowerLimit, 100);
    EXPECT_EQ(low.status, OrderStatus::Accepted) << "a buyer may ask for less";
}

TEST_F(Session, AWeekendPassesWithoutATradingDay)
{
    begin(14, 0);
    place(Side::Buy, m_code, quote(m_code).asks[3].price, 100);
    passUntil(shanghai(kTuesday + 3, 14, 0)); // Friday
    EXPECT_EQ(holding(m_code).availableShares, 100);
    place(Side::Buy, m_code, quote(m_code).asks[3].price, 200);
    passUntil(shanghai(kTuesday + 5, 14, 0)); // Sunday
    EXPECT_EQ(brokerage().tradingDay(), 20251121);
    EXPECT_EQ(holding(m_code).availableShares, 100);
    passUntil(shanghai(kTuesday + 6, 0, 0)); // Monday
    EXPECT_EQ(holding(m_code).availableShares, 300);
}

} // namespace
} // namespace sandbox
