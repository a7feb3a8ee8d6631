#include "market/Units.h"

#include "exchange/Brokerage.h"
#include "store/Database.h"
#include "store/Schema.h"

#include <gtest/gtest.h>

namespace sandbox {
namespace {

TEST(Units, ReadsWhatPeopleTypeAndNothingElse)
{
    struct Case {
        const char *text;
        std::optional<Cents> cents;
    };
    const Case cases[] = {
        {"12", 1200},
        {"12.3", 1230},
        {"12.34", 1234},
        {"12.340", 1234},
        {"0.01", 1},
        {"0", 0},
        {"12.345", std::nullopt},
        {"", std::nullopt},
        {".", std::nullopt},
        {"12.", std::nullopt},
        {".5", std::nullopt},
        {"-1", std::nullopt},
        {"1e3", std::nullopt},
        {"１２", std::nullopt},
        {" 12", std::nullopt},
        {"99999999999999999999", std::nullopt},
    };
    for (const Case &c : cases)
        EXPECT_EQ(parseYuan(c.text), c.cents) << c.text;
    EXPECT_EQ(parseYuanTenThousandths("12.345"), 123450);
    EXPECT_EQ(parseYuanTenThousandths("12.34567"), std::nullopt);
    EXPECT_EQ(parseShares("200"), 200);
    EXPECT_EQ(parseShares("200.0"), std::nullopt);
}

TEST(Units, WritesRatiosRoundedHalfAwayFromZero)
{
    EXPECT_EQ(yuanText(-5), "-0.05");
    EXPECT_EQ(yuanText(123450), "1234.50");
    EXPECT_EQ(ratioText(1, 8, 2), "0.13");
    EXPECT_EQ(ratioText(-1, 8, 2), "-0.13");
    EXPECT_EQ(ratioText(525 * 100, 10'000, 2), "5.25");
    EXPECT_EQ(ratioText(1, 0, 3), "0.000");
    EXPECT_EQ(ratioText(-1, 1000, 2), "0.00");
}

} // namespace
} // namespace sandbox
