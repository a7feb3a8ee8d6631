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

TEST_F(Matching, TheMarketsOwnMovesFillRestingOrders)
{
    const Quote before = quote(m_code);
    const Order buy = place(Side::Buy, m_code, before.bids[2].price, 100);
    brokerage().grantShares(kUser, m_code, 100, 1);
    const Order sell = place(Side::Sell, m_code, before.asks[2].price, 100);
    pass(6 * 60 * kMinute);
    EXPECT_TRUE(orderNow(buy).status == OrderStatus::Filled || orderNow(sell).status == OrderStatus::Filled);
}

TEST_F(Matching, OnASealedBoardBuysWaitTheirTurnAndShareWhatIsTraded)
{
    openAccount(1'000'000'000, 2);
    brokerage().sealBoard(m_code, Brokerage::Seal::LimitUp);
    const Quote sealed = quote(m_code);
    const Order first = place(Side::Buy, m_code, sealed.upperLimit, 100'000);
    const Order second = place(Side::Buy, m_code, sealed.upperLimit, 100'000, 2);
    EXPECT_EQ(first.filled, 0);
    EXPECT_EQ(first.queueAhead, sealed.bids[0].volume);

    const Shares atStart = brokerage().stockDetail(m_code)->today.volume;
    const auto traded = [&] { return brokerage().stockDetail(m_code)->today.volume - atStart; };
    while (orderNow(first).filled == 0 && traded() < 3 * sealed.bids[0].volume)
        pass(kMinute);
    EXPECT_GE(traded(), sealed.bids[0].volume) << "nobody is served before the queue";
    EXPECT_LE(orderNow(second).filled, orderNow(first).filled);
    pass(60 * kMinute);
    const Shares filled = orderNow(first).filled + orderNow(second).filled;
    EXPECT_GT(filled, 0);
    EXPECT_LE(filled, (traded() - sealed.bids[0].volume) / 2)
        << "a quarter of what is traded, give or take the moment in which the queue ended";
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

TEST_F(Matching, ACancelIsAnsweredASecondLaterAndLeavesTheDealsMadeBefore)
{
    const Level ask = quote(m_code).asks[0];
    const Order order = place(Side::Buy, m_code, ask.price, ask.volume + 100'000);
    ASSERT_EQ(order.status, OrderStatus::PartlyFilled);
    brokerage().cancelOrder(kUser, entrustNo(order.id));
    EXPECT_EQ(orderNow(order).status, OrderStatus::CancelRequestedPartlyFilled);
    pass(kSecond - 1);
    EXPECT_EQ(brokerage().cancelProgress(kUser, order.id), CancelProgress::Pending);
    EXPECT_GT(brokerage().accountSummary(kUser).frozen, 0);
    pass(1);
    EXPECT_EQ(brokerage().cancelProgress(kUser, order.id), CancelProgress::Done);
    EXPECT_EQ(orderNow(order).status, OrderStatus::PartlyCancelled);
    EXPECT_EQ(holding(m_code).shares, ask.volume);
    EXPECT_EQ(brokerage().accountSummary(kUser).frozen, 0);
}

TEST_F(Matching, AnOrderLivesForItsDay)
{
    const Order order = place(Side::Buy, m_code, quote(m_code).lowerLimit, 300);
    passUntil(brokerage().nextTradingDay() - 1);
    EXPECT_EQ(orderNow(order).status, OrderStatus::Accepted);
    pass(1);
    EXPECT_EQ(orderNow(order).status, OrderStatus::Cancelled);
    EXPECT_EQ(brokerage().usableMoney(kUser), 1'000'000'000);
}

TEST_F(Matching, ATinySaleMayCostMoreThanItBrings)
{
    for (const Stock &cheap : brokerage().stocks().all()) {
        const Quote shown = quote(cheap.code);
        if (cheap.suspended || shown.bids[0].price == 0 || shown.bids[0].price > 400)
            continue;
        openAccount(250, 2);
        brokerage().grantShares(2, cheap.code, 1, 300);
        EXPECT_EQ(place(Side::Sell, cheap.code, shown.bids[0].price, 1, 2).status, OrderStatus::Filled);
        EXPECT_EQ(brokerage().usableMoney(2), 250 + shown.bids[0].price - 500);
        return;
    }
    FAIL() << "no company is that cheap";
}

} // namespace
} // namespace sandbox
