#include "market/Rules.h"

#include <gtest/gtest.h>

namespace sandbox {
namespace {

TEST(Rules, LimitPricesAreRoundedHalfUp)
{
    struct Case {
        Cents previousClose;
        int percent;
        Cents upper;
        Cents lower;
    };
    for (const Case &c : {Case{335, 10, 369, 302},
                          {1005, 10, 1106, 905},
                          {1234, 20, 1481, 987},
                          {205, 5, 215, 195},
                          {5, 10, 6, 4}}) {
        const PriceLimits limits = priceLimits(c.previousClose, c.percent);
        EXPECT_EQ(limits.upper, c.upper) << c.previousClose;
        EXPECT_EQ(limits.lower, c.lower) << c.previousClose;
    }
}

TEST(Rules, DailyLimitsDependOnBoardTreatmentAndDate)
{
    EXPECT_EQ(dailyLimitPercent(Board::ShanghaiMain, false, 20260105), 10);
    EXPECT_EQ(dailyLimitPercent(Board::ShenzhenMain, true, 20260703), 5);
    EXPECT_EQ(dailyLimitPercent(Board::ShenzhenMain, true, 20260706), 10);
    EXPECT_EQ(dailyLimitPercent(Board::ChiNext, false, 20200821), 10);
    EXPECT_EQ(dailyLimitPercent(Board::ChiNext, false, 20200824), 20);
    EXPECT_EQ(dailyLimitPercent(Board::Star, true, 20260105), 20);
}

TEST(Rules, FeesAreThoseOfTheWholeOrder)
{
    // 1,000 shares at 10.00 sold: 5.00 (the minimum), 5.00 and 0.10, so 9,989.90 remain.
    EXPECT_EQ(feesOf(true, 1'000'000, 20260105), (Fees{500, 500, 10}));
    EXPECT_EQ(feesOf(false, 1'000'000, 20260105), (Fees{500, 0, 10}));
    // Above 16,666.67 yuan the rate is more than the minimum.
    EXPECT_EQ(feesOf(false, 10'000'000, 20260105), (Fees{3000, 0, 100}));
    EXPECT_EQ(feesOf(true, 10'000'000, 20230827), (Fees{3000, 10'000, 100}));
    EXPECT_EQ(feesOf(true, 10'000'000, 20230828), (Fees{3000, 5'000, 100}));
    EXPECT_EQ(feesOf(true, 0, 20260105), Fees{});
}

TEST(Rules, TheCageIsTwoPercentOrTenTicks)
{
    const PriceLimits dear = priceCage(10'000, 9'990, 20260105);
    EXPECT_EQ(dear.upper, 10'200);
    EXPECT_EQ(dear.lower, 9'790);
    const PriceLimits cheap = priceCage(300, 299, 20260105);
    EXPECT_EQ(cheap.upper, 310);
    EXPECT_EQ(cheap.lower, 289);
}

} // namespace
} // namespace sandbox
