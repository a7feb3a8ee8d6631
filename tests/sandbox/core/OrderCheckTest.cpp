#include "TradingFixture.h"

namespace sandbox {
namespace {

class OrderCheck : public TradingFixture {
protected:
    void SetUp() override
    {
        open(false, shanghai(kTuesday, 10, 0));
        openAccount(10'000'000);
    }
    void expectRefused(Rule rule, Side side, const std::string &code, const std::string &price,
                       const std::string &shares)
    {
        const auto outcome = attempt(side, code, price, shares);
        const auto *refusal = std::get_if<Refusal>(&outcome);
        ASSERT_TRUE(refusal) << price << " x " << shares << " was taken";
        EXPECT_EQ(static_cast<int>(refusal->rule), static_cast<int>(rule))
            << price << " x " << shares << ": " << refusal->message;
        EXPECT_FALSE(refusal->message.empty());
    }
};

TEST_F(OrderCheck, EveryRefusalNamesItsRule)
{
    const Quote main = quote(stock(Board::ShanghaiMain).code);
    const std::string price = yuanText(main.last);
    const auto refusedBuy = [&](Rule rule, const std::string &at, const std::string &shares) {
        expectRefused(rule, Side::Buy, main.code, at, shares);
    };
    expectRefused(Rule::UnknownStock, Side::Buy, "999999", price, "100");
    expectRefused(Rule::UnknownStock, Side::Buy, "", price, "100");
    for (const char *shares : {"", "0", "-100", "1e2", "１００", "100.0", "99999999999999999999"})
        refusedBuy(Rule::Quantity, price, shares);
    refusedBuy(Rule::Quantity, price, "1000100");
    refusedBuy(Rule::Lot, price, "150");
    refusedBuy(Rule::Lot, price, "1");
    for (const char *at : {"", "0", "0.00", "-1", "abc", "1,000"})
        refusedBuy(Rule::Price, at, "100");
    refusedBuy(Rule::Tick, yuanText(main.last) + "5", "100");
    refusedBuy(Rule::Limit, yuanText(main.upperLimit + 1), "100");
    refusedBuy(Rule::Limit, yuanText(main.lowerLimit - 1), "100");
    refusedBuy(Rule::Cash, price, "900000");
    expectRefused(Rule::Position, Side::Sell, main.code, price, "100");
    EXPECT_TRUE(brokerage().ordersToday(kUser, 0).empty()) << "what is refused leaves no trace";
    EXPECT_EQ(brokerage().usableMoney(kUser), 10'000'000);

    const auto stranger = attempt(Side::Buy, main.code, price, "100", 99);
    EXPECT_EQ(static_cast<int>(std::get<Refusal>(stranger).rule), static_cast<int>(Rule::Account));
}

TEST_F(OrderCheck, TheFirstBrokenRuleAnswers)
{
    const Quote main = quote(stock(Board::ShanghaiMain).code);
    expectRefused(Rule::UnknownStock, Side::Buy, "999999", "x", "150");
    expectRefused(Rule::Lot, Side::Buy, main.code, "0.001", "150");
    expectRefused(Rule::Tick, Side::Buy, main.code, "0.001", "100000");
    expectRefused(Rule::Limit, Side::Buy, main.code, "0.01", "900000");
}

TEST_F(OrderCheck, ASuspendedStockIsNotTraded)
{
    for (const Stock &candidate : brokerage().stocks().all()) {
        if (candidate.suspended) {
            expectRefused(Rule::Suspended, Side::Buy, candidate.code, yuanText(candidate.basePrice), "100");
            return;
        }
    }
    FAIL() << "no company is suspended";
}

TEST_F(OrderCheck, StarOrdersBeginAtTwoHundredShares)
{
    const Quote star = quote(stock(Board::Star).code);
    const std::string low = yuanText(star.lowerLimit);
    expectRefused(Rule::Lot, Side::Buy, star.code, low, "100");
    EXPECT_TRUE(std::holds_alternative<Order>(attempt(Side::Buy, star.code, low, "201")));
}

TEST_F(OrderCheck, AnOddRemainderIsSoldWhole)
{
    const Quote main = quote(stock(Board::ShanghaiMain).code);
    const std::string high = yuanText(main.upperLimit); // far enough away to rest
    ASSERT_TRUE(std::holds_alternative<Shares>(brokerage().grantShares(kUser, main.code, 1237, 100)));
    expectRefused(Rule::OddRemainder, Side::Sell, main.code, high, "36");
    expectRefused(Rule::OddRemainder, Side::Sell, main.code, high, "150");
    expectRefused(Rule::Position, Side::Sell, main.code, high, "1300");
    const Order odd = place(Side::Sell, main.code, main.upperLimit, 137);
    EXPECT_EQ(holding(main.code).availableShares, 1100);
    expectRefused(Rule::Lot, Side::Sell, main.code, high, "37");
    brokerage().cancelOrder(kUser, entrustNo(odd.id));
    pass(2 * kSecond);
    place(Side::Sell, main.code, main.upperLimit, 1237);
    EXPECT_EQ(holding(main.code).availableShares, 0);
}

TEST_F(OrderCheck, FeesCountWhenMoneyIsShort)
{
    const Quote main = quote(stock(Board::ShanghaiMain).code);
    const Cents price = main.lowerLimit;
    const Cents needed = price * 1000 + std::max<Cents>(500, (price * 1000 * 30 + 50'000) / 100'000) +
                         (price * 1000 + 50'000) / 100'000;
    ASSERT_TRUE(std::holds_alternative<Cents>(brokerage().withdraw(kUser, 10'000'000 - needed + 1, "test")));
    expectRefused(Rule::Cash, Side::Buy, main.code, yuanText(price), "1000");
    brokerage().deposit(kUser, 1, "test");
    place(Side::Buy, main.code, price, 1000);
    EXPECT_EQ(brokerage().usableMoney(kUser), 0);
}

} // namespace
} // namespace sandbox
