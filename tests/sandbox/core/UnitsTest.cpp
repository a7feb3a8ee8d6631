#include "market/Units.h"

#include <gtest/gtest.h>
#include <utility>

namespace sandbox {
namespace {

TEST(Units, ReadsWhatPeopleTypeAndNothingElse)
{
    for (const auto &[text, cents] : {std::pair{"12", 1200}, {"12.3", 1230}, {"12.340", 1234}, {"0.01", 1}})
        EXPECT_EQ(parseYuan(text), cents) << text;
    for (const char *text :
         {"12.345", "", ".", "12.", ".5", "-1", "1e3", "１２", " 12", "99999999999999999999"})
        EXPECT_EQ(parseYuan(text), std::nullopt) << text;
    EXPECT_EQ(parseYuanTenThousandths("12.345"), 123450);
    EXPECT_EQ(parseYuanTenThousandths("12.34567"), std::nullopt);
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
