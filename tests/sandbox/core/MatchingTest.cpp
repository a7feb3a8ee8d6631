#include "TradingFixture.h"
#include "market/Rules.h"

namespace sandbox {
namespace {

class Matching : public TradingFixture {
protected:
    void SetUp() override
    {
        open(false, shanghai(kTuesday, 10, 0));
        openAccount(1'000'000'000);
        m_code = stock(Board::ShanghaiMain).code;
    }
    std::string m_code;
};

TEST_F(Matching, AnArrivingBuyTakesTheLevelsItReachesAtTheirPrices)
{
    const Quote before = quote(m_code);
    const Shares wanted = before.asks[0].volume + before.asks[1].volume + 300;
    const Order order = place(Side::Buy, m_code, before.asks[1].price, wanted);
    EXPECT_EQ(order.status, OrderStatus::PartlyFilled);
    EXPECT_EQ(order.remaining(), 300);
    const auto deals = brokerage().dealsToday(kUser, 0);
    ASSERT_EQ(deals.size(), 2u);
    EXPECT_EQ(deals[1].price, before.asks[0].price);
    EXPECT_EQ(deals[1].shares, before.asks[0].volume);
    EXPECT_EQ(deals[0].price, before.asks[1].price);

    const Cents money = deals[0].money() + deals[1].money();
    const Fees fees = feesOf(false, money, 20251118);
    EXPECT_EQ(order.commission + order.transferFee, fees.total());
    const AccountSummary account = brokerage().accountSummary(kUser);
    EXPECT_EQ(account.totalMoney, 1'000'000'000 - money - fees.total());
    EXPECT_EQ(account.frozen, order.frozenCash);
    EXPECT_GE(account.frozen, 300 * order.price);
    EXPECT_EQ(holding(m_code).cost, money + fees.total());
}

TEST_F(Matching, WhatWasTakenStaysTakenUntilTheLevelIsDrawnAnew)
{
    const Quote before = quote(m_code);
    place(Side::Buy, m_code, before.asks[0].price, before.asks[0].volume);
    const Quote after = quote(m_code);
    EXPECT_EQ(after.asks[0], before.asks[1]);
    const Order second = place(Side::Buy, m_code, before.asks[0].price, 100);
    EXPECT_EQ(second.filled, 0);
    reopen();
    EXPECT_EQ(quote(m_code).asks[0], before.asks[1]) << "a restart remembers it";
}

TEST_F(Matching, ARestingOrderTradesAtItsOwnPriceWhenTheMarketComesThroughIt)
{
    const Quote before = quote(m_code);
    const Cents price = before.bids[9].price - 5;
    const Order order = place(Side::Buy, m_code, price, 200);
    EXPECT_EQ(order.status, OrderStatus::Accepted);
    EXPECT_EQ(order.frozenCash, price * 200 + feesOf(false, price * 200, 20251118).total());
    EXPECT_EQ(brokerage().openOrders(kUser).size(), 1u);

    brokerage().movePrice(m_code, price - 3);
    const Order filled = orderNow(order);
    EXPECT_EQ(filled.status, OrderStatus::Filled);
    EXPECT_EQ(filled.filledMoney, price * 200);
    EXPECT_EQ(brokerage().accountSummary(kUser).frozen, 0);
    EXPECT_TRUE(brokerage().openOrders(kUser).empty());
}

TEST_F(Matching, TheMarketsOwnMovesFillRestingOrdersToo)
{
    const Quote before = quote(m_code);
    const Order buy = place(Side::Buy, m_code, before.bids[2].price, 100);
    brokerage().grantShares(kUser, m_code, 100, 1);
    const Order sell = place(Side::Sell, m_code, before.asks[2].price, 100);
    pass(6 * 60 * kMinute);
    EXPECT_TRUE(orderNow(buy).status == OrderStatus::Filled || orderNow(sell).status == OrderStatus::Filled);
}

TEST_F(Matching, OnASealedBoardABuyWaitsItsTurnAndSharesWhatIsTraded)
{
    brokerage().sealBoard(m_code, Brokerage::Seal::LimitUp);
    const Quote sealed = quote(m_code);
    ASSERT_EQ(sealed.last, sealed.upperLimit);
    ASSERT_EQ(sealed.asks[0], Level{});
    const Order order = place(Side::Buy, m_code, sealed.upperLimit, 100'000);
    EXPECT_EQ(order.filled, 0);
    EXPECT_EQ(order.queueAhead, sealed.bids[0].volume);

    const Shares atStart = brokerage().stockDetail(m_code)->today.volume;
    const auto traded = [&] { return brokerage().stockDetail(m_code)->today.volume - atStart; };
    while (orderNow(order).filled == 0 && traded() < 3 * sealed.bids[0].volume)
        pass(kMinute);
    EXPECT_GE(traded(), sealed.bids[0].volume) << "nobody is served before the queue";
    pass(60 * kMinute);
    EXPECT_GT(orderNow(order).filled, 0);
    EXPECT_LE(orderNow(order).filled, (traded() - sealed.bids[0].volume) / 2)
        << "a quarter of what is traded, give or take the moment in which the queue ended";
}

TEST_F(Matching, ASellOnASealedBoardIsServedAtOnce)
{
    brokerage().sealBoard(m_code, Brokerage::Seal::LimitUp);
    brokerage().grantShares(kUser, m_code, 1000, 100'000);
    const Order order = place(Side::Sell, m_code, quote(m_code).upperLimit, 1000);
    EXPECT_EQ(order.status, OrderStatus::Filled);
    const Fees fees = feesOf(true, order.filledMoney, 20251118);
    EXPECT_EQ(brokerage().usableMoney(kUser), 1'000'000'000 + order.filledMoney - fees.total());
    EXPECT_TRUE(brokerage().holdings(kUser).empty());
    EXPECT_EQ(brokerage().accountSummary(kUser).withdrawable, 1'000'000'000)
        << "what a sale brought buys at once and is withdrawn tomorrow";
}

TEST_F(Matching, AtOnePriceTheEarlierOrderIsServedFirst)
{
    openAccount(1'000'000'000, 2);
    brokerage().sealBoard(m_code, Brokerage::Seal::LimitUp);
    const Cents price = quote(m_code).upperLimit;
    const Order first = place(Side::Buy, m_code, price, 100'000);
    const Order second = place(Side::Buy, m_code, price, 100'000, 2);
    for (int i = 0; i < 24 * 60 && orderNow(first).filled == 0; ++i)
        pass(kMinute);
    EXPECT_GT(orderNow(first).filled, 0);
    EXPECT_LE(orderNow(second).filled, orderNow(first).filled);
}

TEST_F(Matching, UsersTradeWithEachOtherByPriceThenTimeBehindWhatIsDisplayed)
{
    const Quote before = quote(m_code);
    const Level ask = before.asks[0];
    for (const UserId user : {2, 3}) {
        openAccount(10'000, user);
        brokerage().grantShares(user, m_code, 1000, 1'000'000);
    }
    const Order second = place(Side::Sell, m_code, ask.price, 300, 3);
    const Order third = place(Side::Sell, m_code, ask.price, 500, 2);
    const Order dear = place(Side::Sell, m_code, before.asks[1].price, 400, 3);
    EXPECT_EQ(quote(m_code).asks[0], (Level{ask.price, ask.volume + 800})) << "the book shows them";

    const Order buy = place(Side::Buy, m_code, ask.price, ask.volume + 400);
    EXPECT_EQ(buy.status, OrderStatus::Filled);
    EXPECT_EQ(buy.filledMoney, ask.price * (ask.volume + 400));
    EXPECT_EQ(orderNow(second).status, OrderStatus::Filled);
    EXPECT_EQ(orderNow(third).filled, 100);
    EXPECT_EQ(orderNow(dear).filled, 0);
    EXPECT_EQ(quote(m_code).asks[0], (Level{ask.price, 400}));
    EXPECT_EQ(brokerage().usableMoney(3),
              10'000 + ask.price * 300 - feesOf(true, ask.price * 300, 20251118).total());

    const Order last = place(Side::Buy, m_code, before.asks[1].price, 400);
    EXPECT_EQ(last.filledMoney, 400 * ask.price) << "the better price first, and who stood there makes it";
}

TEST_F(Matching, ACancelReleasesTheMoneyASecondLater)
{
    const Order order = place(Side::Buy, m_code, quote(m_code).lowerLimit, 300);
    const auto asked = brokerage().cancelOrder(kUser, entrustNo(order.id));
    ASSERT_TRUE(std::holds_alternative<Order>(asked));
    EXPECT_EQ(std::get<Order>(asked).status, OrderStatus::CancelRequested);
    EXPECT_EQ(brokerage().cancelProgress(kUser, order.id), CancelProgress::Pending);
    const auto again = brokerage().cancelOrder(kUser, entrustNo(order.id));
    EXPECT_TRUE(std::holds_alternative<Refusal>(again));
    pass(kSecond - 1);
    EXPECT_EQ(brokerage().cancelProgress(kUser, order.id), CancelProgress::Pending);
    EXPECT_GT(brokerage().accountSummary(kUser).frozen, 0);
    pass(1);
    EXPECT_EQ(brokerage().cancelProgress(kUser, order.id), CancelProgress::Done);
    EXPECT_EQ(orderNow(order).status, OrderStatus::Cancelled);
    EXPECT_EQ(brokerage().usableMoney(kUser), 1'000'000'000);
    EXPECT_EQ(brokerage().cancelProgress(2, order.id), std::nullopt) << "it is nobody else's";
}

TEST_F(Matching, ACancelCanLoseTheRaceAgainstAFill)
{
    const Quote before = quote(m_code);
    const Order order = place(Side::Buy, m_code, before.bids[9].price, 100);
    brokerage().cancelOrder(kUser, entrustNo(order.id));
    brokerage().movePrice(m_code, before.bids[9].price - 5);
    pass(2 * kSecond);
    EXPECT_EQ(orderNow(order).status, OrderStatus::Filled);
    EXPECT_EQ(brokerage().cancelProgress(kUser, order.id), CancelProgress::TooLate);
    EXPECT_TRUE(std::holds_alternative<Refusal>(brokerage().cancelOrder(kUser, entrustNo(order.id))));
}

TEST_F(Matching, APartlyFilledOrderKeepsItsDealsWhenCancelled)
{
    const Quote before = quote(m_code);
    const Order order = place(Side::Buy, m_code, before.asks[0].price, before.asks[0].volume + 100'000);
    ASSERT_EQ(order.status, OrderStatus::PartlyFilled);
    brokerage().cancelOrder(kUser, entrustNo(order.id));
    pass(kSecond);
    const Order after = orderNow(order);
    EXPECT_EQ(after.status, OrderStatus::PartlyCancelled);
    EXPECT_EQ(holding(m_code).shares, after.filled);
    EXPECT_EQ(brokerage().accountSummary(kUser).frozen, 0);
}

TEST_F(Matching, WhatIsBoughtTodayIsSoldTomorrow)
{
    const Quote before = quote(m_code);
    place(Side::Buy, m_code, before.asks[9].price, 100);
    EXPECT_EQ(holding(m_code).shares, 100);
    EXPECT_EQ(holding(m_code).availableShares, 0);
    const auto today = attempt(Side::Sell, m_code, yuanText(before.bids[0].price), "100");
    ASSERT_TRUE(std::holds_alternative<Refusal>(today));
    EXPECT_NE(std::get<Refusal>(today).message.find("T+1"), std::string::npos);
    passUntil(brokerage().nextTradingDay());
    EXPECT_EQ(holding(m_code).availableShares, 100);
    EXPECT_EQ(place(Side::Sell, m_code, quote(m_code).bids[9].price, 100).status, OrderStatus::Filled);
}

TEST_F(Matching, AnOrderLivesForItsDay)
{
    const Order order = place(Side::Buy, m_code, quote(m_code).lowerLimit, 300);
    passUntil(brokerage().nextTradingDay() - 1);
    EXPECT_EQ(orderNow(order).status, OrderStatus::Accepted);
    pass(1);
    EXPECT_EQ(orderNow(order).status, OrderStatus::Cancelled);
    EXPECT_FALSE(orderNow(order).note.empty());
    EXPECT_EQ(brokerage().usableMoney(kUser), 1'000'000'000);
    EXPECT_TRUE(brokerage().ordersToday(kUser, 0).empty());
}

TEST_F(Matching, ATinySaleMayCostMoreThanItBrings)
{
    for (const Stock &cheap : brokerage().stocks().all()) {
        const Quote shown = quote(cheap.code);
        if (cheap.suspended || shown.bids[0].price == 0 || shown.bids[0].price > 400)
            continue;
        openAccount(250, 2);
        brokerage().grantShares(2, cheap.code, 1, 300);
        const Order order = place(Side::Sell, cheap.code, shown.bids[0].price, 1, 2);
        EXPECT_EQ(order.status, OrderStatus::Filled);
        EXPECT_EQ(brokerage().usableMoney(2), 250 + shown.bids[0].price - 500);
        return;
    }
    FAIL() << "no company is that cheap";
}

TEST_F(Matching, TheExchangeCanTurnAnOrderDown)
{
    const Order order = place(Side::Buy, m_code, quote(m_code).lowerLimit, 300);
    const auto outcome = brokerage().rejectOrder(entrustNo(order.id), "交易所废单");
    EXPECT_EQ(std::get<Order>(outcome).status, OrderStatus::Rejected);
    EXPECT_EQ(std::get<Order>(outcome).note, "交易所废单");
    EXPECT_EQ(brokerage().usableMoney(kUser), 1'000'000'000);
}

} // namespace
} // namespace sandbox
