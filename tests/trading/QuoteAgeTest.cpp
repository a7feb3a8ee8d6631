#include "trading/screens/QuoteAge.h"

#include "tests/support/TestPlatform.h"

using namespace std::chrono_literals;

class QuoteAgeTest : public PlatformTest {
protected:
    QString textAfter(std::chrono::milliseconds further)
    {
        runLoop.advance(further);
        return age.text();
    }
    QuoteAge age;
};

TEST_F(QuoteAgeTest, IsSaidOnceTenSecondsHavePassedAndUntilTheNextQuote)
{
    age.start();
    age.restart();
    EXPECT_EQ(textAfter(9999ms), "");
    EXPECT_FALSE(age.isStale());
    EXPECT_EQ(textAfter(1ms), "行情已 10 秒未更新");
    EXPECT_TRUE(age.isStale());
    EXPECT_EQ(textAfter(2s), "行情已 12 秒未更新");
    EXPECT_EQ(textAfter(48s), "行情已 1 分钟未更新");
    EXPECT_EQ(textAfter(59min), "行情已 1 小时未更新");
    age.restart();
    EXPECT_FALSE(age.isStale());
    EXPECT_EQ(textAfter(10s), "行情已 10 秒未更新");
}

TEST_F(QuoteAgeTest, AFirstQuoteThatNeverComesIsMissedFromWhenItWasAskedFor)
{
    age.start();
    EXPECT_EQ(textAfter(11s), "行情已 11 秒未更新");
    age.forget();
    EXPECT_FALSE(age.isStale());
    EXPECT_EQ(runLoop.activeTimers(), 0);
}

TEST_F(QuoteAgeTest, DoesNotWakeUpWhileCoveredAndKnowsItsAgeAfterwards)
{
    age.start();
    age.restart();
    runLoop.advance(4s);
    age.stop();
    EXPECT_EQ(runLoop.activeTimers(), 0);
    age.restart();
    EXPECT_EQ(runLoop.activeTimers(), 0);
    EXPECT_EQ(textAfter(5min), "");
    age.start();
    EXPECT_EQ(age.text(), "行情已 5 分钟未更新");
}

TEST_F(QuoteAgeTest, AClockThatIsSetBackMakesNoQuoteOld)
{
    age.start();
    age.restart();
    runLoop.time -= 3'600'000;
    EXPECT_EQ(textAfter(5s), "");
}
