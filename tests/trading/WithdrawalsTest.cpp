#include "tests/trading/TradingFixture.h"
#include "trading/screens/TZWithdrawalsController.h"

namespace {
QVariantMap entrust(const QString &id, const QString &entrustNo, const QVariant &type = "1")
{
    return {
        {"id", id},           {"entrustNo", entrustNo}, {"stockCode", "600001"},  {"stockName", "海天传媒"},
        {"type", type},       {"status", "2"},          {"entrustPrice", "9.99"}, {"entrustShares", "300"},
        {"businessShares", 0}};
}
} // namespace

class WithdrawalsTest : public TradingFixture {
protected:
    WithdrawalsTest()
    {
        screen = push<TZWithdrawalsController>();
        list({entrust("11", "E11"), entrust("12", "E12", "2")});
    }
    void list(const QVariantList &entrusts) { http.answer("callBackPage", succeeded(entrusts)); }
    void cancel(int row)
    {
        screen->withdrawalsBtnDidClick(row);
        runLoop.advance(500ms);
    }
    int reads() const { return http.countOf("callBackPage"); }
    static inline const QString cancelPath = "entrust/createCancel";
    static inline const QString statusPath = "entrust/queryWithDrawStatus";
    TZWithdrawalsController *screen = nullptr;
};

TEST_F(WithdrawalsTest, TwoTapsSendOneCancellationOfTheLastTapped)
{
    EXPECT_EQ(screen->title(), "撤单");
    EXPECT_EQ(screen->rows()->at(1).side, "卖出");
    screen->withdrawalsBtnDidClick(0);
    runLoop.advance(499ms);
    screen->withdrawalsBtnDidClick(1);
    screen->withdrawalsBtnDidClick(2);
    EXPECT_EQ(banners(), QStringList{"上一笔撤单没有提交：海天传媒(600001)"});
    runLoop.advance(10s);
    EXPECT_EQ(http.countOf(cancelPath), 1);
    EXPECT_EQ(http.pending(cancelPath).fields(), (QVariantMap{{"tradeEntrustNo", "E12"}}));
}

TEST_F(WithdrawalsTest, WhatWasTappedIsCancelledAlsoWhenTheListChangesMeanwhile)
{
    screen->withdrawalsBtnDidClick(0);
    screen->beginRefreshing();
    list({entrust("12", "E12", "2"), entrust("11", "E11")});
    screen->withdrawalsBtnDidClick(1);
    runLoop.advance(500ms);
    EXPECT_EQ(http.pending(cancelPath).fields(), (QVariantMap{{"tradeEntrustNo", "E11"}}));
    EXPECT_TRUE(banners().isEmpty()) << "the same one was tapped again";
}

TEST_F(WithdrawalsTest, WhatHasNoNumberCannotBeCancelled)
{
    screen->beginRefreshing();
    list({entrust("11", ""), QVariant::fromValue(nullptr)});
    ASSERT_EQ(screen->rows()->count(), 1);
    EXPECT_FALSE(screen->rows()->at(0).cancellable);
    screen->withdrawalsBtnDidClick(0);
    runLoop.advance(10s);
    EXPECT_EQ(http.countOf(cancelPath), 0);
}

TEST_F(WithdrawalsTest, LeavingWithinTheHalfSecondSendsAtOnce)
{
    screen->withdrawalsBtnDidClick(0);
    KRNavigationController *const covering = cover();
    EXPECT_EQ(http.countOf(cancelPath), 1);
    EXPECT_FALSE(overlays.isWaiting());
    http.answer(cancelPath, succeeded());
    EXPECT_EQ(http.countOf(statusPath), 0);
    const int before = reads();
    covering->dismiss();
    EXPECT_EQ(reads(), before + 1) << "it may be through by now";

    screen->withdrawalsBtnDidClick(1);
    screen->backButtonClicked();
    screen->withdrawalsBtnDidClick(0);
    settle();
    runLoop.advance(1s);
    EXPECT_EQ(http.countOf(cancelPath), 2);
    http.fail(cancelPath, HttpFailure::Connection);
    EXPECT_EQ(banners(), QStringList{"加载失败"});
}

TEST_F(WithdrawalsTest, AnAnswerThatIsLostOrComesWhileCoveredReadsTheList)
{
    int known = reads();
    cancel(0);
    http.fail(cancelPath, HttpFailure::Offline);
    EXPECT_EQ(reads(), known);
    cancel(0);
    http.fail(cancelPath, HttpFailure::TimedOut);
    EXPECT_EQ(reads(), ++known);
    EXPECT_FALSE(overlays.isWaiting()) << "quietly";

    list({entrust("11", "E11"), entrust("", "E13")});
    for (const int row : {0, 1}) {
        cancel(row);
        KRNavigationController *const covering = cover();
        http.answer(cancelPath, succeeded());
        EXPECT_EQ(reads(), known) << "not over another screen";
        covering->dismiss();
        EXPECT_EQ(reads(), ++known);
    }
    cancel(1);
    http.answer(cancelPath, succeeded());
    EXPECT_EQ(reads(), ++known) << "without an identifier there is nothing to ask for";
    list({});
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_EQ(http.countOf(statusPath), 0);
}

TEST_F(WithdrawalsTest, ACancellationIsAskedForUntilItIsConfirmed)
{
    cancel(0);
    http.answer(cancelPath, succeeded());
    EXPECT_TRUE(overlays.isWaiting());
    for (int asked = 1; asked <= 1200; ++asked) {
        ASSERT_EQ(http.countOf(statusPath), asked);
        EXPECT_EQ(http.pending(statusPath).fields(), (QVariantMap{{"id", "11"}}));
        http.answer(statusPath, succeeded(asked % 2 ? QVariant(false) : QVariant()));
        runLoop.advance(3s);
    }
    EXPECT_TRUE(overlays.isWaiting());
    EXPECT_EQ(screen->outcome(), "");
    http.fail(statusPath, HttpFailure::TimedOut);
    EXPECT_EQ(banners(), QStringList{"加载失败"});
    overlays.hideBanners();
    runLoop.advance(3s);
    http.answer(statusPath, refused("系统繁忙"));
    EXPECT_TRUE(banners().isEmpty()) << "one failure is told";
    EXPECT_TRUE(overlays.isWaiting());
    runLoop.advance(3s);
    http.answer(statusPath, succeeded(true));
    list({});
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_TRUE(screen->noData());
    EXPECT_EQ(screen->outcome(), "撤单成功，还有0笔可撤委托");
    const int asked = http.countOf(statusPath);
    runLoop.advance(1min);
    EXPECT_EQ(http.countOf(statusPath), asked);
}

TEST_F(WithdrawalsTest, ASecondCancellationIsWatchedInPlaceOfTheFirst)
{
    cancel(0);
    http.answer(cancelPath, succeeded());
    FakeTransport::Sent &ofTheFirst = http.pending(statusPath);
    runLoop.advance(1s);
    cancel(1);
    http.answer(cancelPath, succeeded());
    EXPECT_EQ(screen->orderId(), "12");
    const int asked = http.countOf(statusPath);
    http.answer(ofTheFirst, succeeded(true));
    runLoop.advance(1500ms);
    EXPECT_EQ(http.countOf(statusPath), asked + 1);
    EXPECT_EQ(http.last().fields().value("id"), "12");
}

TEST_F(WithdrawalsTest, ARefusedCancellationIsNotWatchedAndTheListTellsWhy)
{
    cancel(0);
    http.answer(cancelPath, refused("该委托已成交"));
    EXPECT_EQ(banners(), QStringList{"该委托已成交"});
    EXPECT_FALSE(overlays.isWaiting());
    list({entrust("12", "E12", "2")});
    EXPECT_EQ(screen->rows()->count(), 1);
    EXPECT_EQ(banners(), QStringList{"该委托已成交"});
    runLoop.advance(1min);
    EXPECT_EQ(http.countOf(statusPath), 0);
    EXPECT_FALSE(overlays.isWaiting());
}

TEST_F(WithdrawalsTest, LeavingEndsTheWatchAndComingBackReadsTheListAgain)
{
    cancel(0);
    http.answer(cancelPath, succeeded());
    KRNavigationController *const covering = cover();
    const int asked = http.countOf(statusPath);
    const int before = reads();
    runLoop.advance(1min);
    EXPECT_FALSE(overlays.isWaiting());
    covering->dismiss();
    EXPECT_EQ(reads(), before + 1);
    runLoop.advance(1min);
    EXPECT_EQ(http.countOf(statusPath), asked);
}
