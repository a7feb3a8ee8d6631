#include "market/Calendar.h"

#include "Shanghai.h"
#include "market/Clock.h"

#include <gtest/gtest.h>

namespace sandbox {
namespace {

TEST(Calendar, MarketHoursKnowWeekendsAndHolidays)
{
    const Calendar calendar(true);
    const auto dayOf = [&](int daysSince1970) { return calendar.dayOf(shanghai(daysSince1970, 12, 0)); };
    EXPECT_EQ(calendar.dateOf(dayOf(20'361)), 20250930);
    EXPECT_EQ(dayOf(20'365), dayOf(20'361)) << "the week of the October holiday belongs to the day before it";
    EXPECT_EQ(dayOf(20'370), dayOf(20'361) + 1) << "9 October 2025 is the next trading day";
    EXPECT_EQ(dayOf(20'777 + 1), dayOf(20'777)) << "a Saturday belongs to its Friday";
    EXPECT_EQ(calendar.phase(shanghai(20'778, 10, 0)), Phase::Closed);
}

TEST(Calendar, EveryMomentIsFoundAgainByItsTime)
{
    for (const bool marketHours : {false, true}) {
        const Calendar calendar(marketHours);
        const int day = calendar.dayOf(shanghai(kTuesday, 12, 0));
        for (int moment = 0; moment < calendar.momentCount(); ++moment) {
            const Millis time = calendar.timeOf(day, moment);
            ASSERT_EQ(calendar.momentOf(day, time), moment);
            ASSERT_EQ(calendar.momentOf(day, time - 1), moment - 1);
            ASSERT_EQ(calendar.dayOf(time), day);
            ASSERT_LE(time, calendar.close(day));
        }
    }
}

TEST(Clock, RunsFreezesAndJumpsButNeverBack)
{
    Millis real = 1000;
    Clock clock([&real] { return real; });
    real += 500;
    EXPECT_EQ(clock.now(), 1500);
    clock.setSpeedPercent(6000);
    real += 1000;
    EXPECT_EQ(clock.now(), 61'500);
    clock.setSpeedPercent(0);
    real += 1000;
    EXPECT_EQ(clock.now(), 61'500);
    EXPECT_TRUE(clock.jumpTo(70'000));
    EXPECT_FALSE(clock.jumpTo(69'999));
    EXPECT_EQ(clock.now(), 70'000);
    clock.setSpeedPercent(100);
    real -= 5000; // the machine's clock is set back
    EXPECT_EQ(clock.now(), 70'000);
}

} // namespace
} // namespace sandbox
