#include "Shanghai.h"
#include "TemporaryFolder.h"
#include "exchange/Brokerage.h"

#include <gtest/gtest.h>

namespace sandbox {
namespace {

/// A brokerage around the clock, whose time moves only by pass().
class Matching : public ::testing::Test {
protected:
    static constexpr UserId kUser = 1;

    Matching()
    {
        openAccount(kUser, 1'000'000'000);
        for (const Stock &stock : brokerage.stocks().all())
            if (code.empty() && !stock.suspended && !stock.specialTreatment && stock.code > "600000")
                code = stock.code;
    }
    void pass(Millis duration)
    {
        now += duration;
        brokerage.tick();
    }
    void openAccount(UserId user, Cents cash)
    {
        brokerage.createAccount(user);
        brokerage.deposit(user, cash, "test");
    }
    Quote quote(const std::string &stock) { return brokerage.quote(stock).value(); }
    Order place(Side side, const std::string &stock, Cents price, Shares shares, UserId user = kUser)
    {
        return std::get<Order>(
            brokerage.placeOrder({user, side, stock, yuanText(price), std::to_string(shares)}));
    }
    Order orderNow(const Order &order) { return brokerage.order(order.user, order.id).value(); }

    test::TemporaryFolder folder;
    Millis now = shanghai(kTuesday, 10, 0);
    Clock clock{[this] { return now; }};
    Brokerage brokerage{{(folder.path() / "sandbox.db").string(), 11, false}, clock};
    std::string code;
};

TEST_F(Matching, TheMarketsOwnMovesFillRestingOrders)
{
    const Quote before = quote(code);
    const Order buy = place(Side::Buy, code, before.bids[2].price, 100);
    brokerage.grantShares(kUser, code, 100, 1);
    const Order sell = place(Side::Sell, code, before.asks[2].price, 100);
    pass(6 * 60 * kMinute);
    EXPECT_TRUE(orderNow(buy).status == OrderStatus::Filled || orderNow(sell).status == OrderStatus::Filled);
}

TEST_F(Matching, OnASealedBoardBuysWaitTheirTurnAndShareWhatIsTraded)
{
    openAccount(2, 1'000'000'000);
    brokerage.sealBoard(code, Brokerage::Seal::LimitUp);
    const Quote sealed = quote(code);
    const Order first = place(Side::Buy, code, sealed.upperLimit, 100'000);
    const Order second = place(Side::Buy, code, sealed.upperLimit, 100'000, 2);
    EXPECT_EQ(first.filled, 0);
    EXPECT_EQ(first.queueAhead, sealed.bids[0].volume);

    const Shares atStart = brokerage.stockDetail(code)->today.volume;
    const auto traded = [&] { return brokerage.stockDetail(code)->today.volume - atStart; };
    while (orderNow(first).filled == 0 && traded() < 3 * sealed.bids[0].volume)
        pass(kMinute);
    EXPECT_GE(traded(), sealed.bids[0].volume) << "nobody is served before the queue";
    EXPECT_LE(orderNow(second).filled, orderNow(first).filled);
    const auto filled = [&] { return orderNow(first).filled + orderNow(second).filled; };
    const Shares before = filled();
    const Shares tradedBefore = traded();
    pass(60 * kMinute);
    EXPECT_GT(filled(), 0);
    EXPECT_LE(filled() - before, (traded() - tradedBefore) / 3) << "about a quarter between them";
}

TEST_F(Matching, AnOrderLivesForItsDay)
{
    const Order order = place(Side::Buy, code, quote(code).lowerLimit, 300);
    pass(brokerage.nextTradingDay() - 1 - now);
    EXPECT_EQ(orderNow(order).status, OrderStatus::Accepted);
    pass(1);
    EXPECT_EQ(orderNow(order).status, OrderStatus::Cancelled);
    EXPECT_EQ(brokerage.usableMoney(kUser), 1'000'000'000);
}

TEST_F(Matching, ATinySaleMayCostMoreThanItBrings)
{
    for (const Stock &cheap : brokerage.stocks().all()) {
        const Quote shown = quote(cheap.code);
        if (cheap.suspended || shown.bids[0].price == 0 || shown.bids[0].price > 400)
            continue;
        openAccount(2, 250);
        brokerage.grantShares(2, cheap.code, 1, 300);
        EXPECT_EQ(place(Side::Sell, cheap.code, shown.bids[0].price, 1, 2).status, OrderStatus::Filled);
        EXPECT_EQ(brokerage.usableMoney(2), 250 + shown.bids[0].price - 500);
        return;
    }
    FAIL() << "no company is that cheap";
}

} // namespace
} // namespace sandbox
