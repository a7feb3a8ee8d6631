#include "account/screens/TZCheckCellController.h"
#include "account/screens/TZLoginController.h"
#include "app/AppRouter.h"
#include "core/session/SettingsKeys.h"
#include "core/shell/AppDelegate.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/shell/TZLeftMenuController.h"
#include "core/shell/TZPlainPageController.h"
#include "core/util/Service.h"
#include "home/screens/TZHomeViewController.h"
#include "home/screens/TZMessageDetailController.h"
#include "home/screens/TZMyAccountController.h"
#include "tests/support/TestPlatform.h"
#include "trading/screens/TZDealDetailController.h"
#include "trading/screens/TZRealTradingController.h"

using namespace std::chrono_literals;

/// The real screens behind the real router, past the guide, with home on screen.
class FlowTest : public PlatformTest {
protected:
    FlowTest()
    {
        settings.values.insert(SettingsKeys::bundleVersion, application.version);
        shell.didFinishLaunchingWithOptions({});
    }

    KRSideMenu *frame() const { return window.sideMenu(); }
    void chooseRow(int row)
    {
        frame()->presentLeftMenu();
        qobject_cast<TZLeftMenuController *>(frame()->leftMenu())->didSelectRow(row);
    }
    template <typename Screen> Screen *top() const
    {
        return qobject_cast<Screen *>(window.topStack()->top());
    }

    void signInThere()
    {
        top<TZCheckCellController>()->setCell("13812345678");
        top<TZCheckCellController>()->clickNextStepBtn();
        QVariantMap known = succeeded();
        known.insert("bizCode", "1002");
        http.answer("user/start", known);
        ASSERT_TRUE(top<TZLoginController>());
        top<TZLoginController>()->textFiledEditChanged("123456");
        top<TZLoginController>()->clickNextStepBtn();
        http.answer("user/verify", succeeded(QVariantMap{{"api_token", "fresh"}}));
    }

    KRWindow window;
    AppRouter router{window};
    AppDelegate shell{window, router, [] {}};
};

TEST_F(FlowTest, AnOfflineStartSaysSo)
{
    reachability.status = NetworkStatus::NotReachable;
    KRWindow fresh;
    AppRouter freshRouter(fresh);
    AppDelegate offline(fresh, freshRouter, [] {});
    offline.didFinishLaunchingWithOptions({});
    EXPECT_EQ(banners(), QStringList("网络异常"));
}

TEST_F(FlowTest, MyAccountIsShownOnlyAfterTheSignInItAskedFor)
{
    chooseRow(1);
    ASSERT_TRUE(top<TZCheckCellController>());
    EXPECT_TRUE(qobject_cast<TZHomeViewController *>(frame()->content()->root()));
    signInThere();
    settle();
    EXPECT_EQ(window.presented()->count(), 0);
    EXPECT_TRUE(top<TZMyAccountController>());
    EXPECT_FALSE(frame()->isOpen());
    EXPECT_TRUE(kits.calls.contains("setAlias fresh api_token"));
}

TEST_F(FlowTest, ASignInThatIsClosedLeavesEverythingAsItWas)
{
    chooseRow(2);
    top<TZCheckCellController>()->leftItemClick();
    settle();
    EXPECT_EQ(window.presented()->count(), 0);
    EXPECT_TRUE(top<TZHomeViewController>());
    EXPECT_TRUE(frame()->isOpen());
}

TEST_F(FlowTest, TradingAskedForOnHomeIsOpenedBehindTheSignInAndAppearsOnce)
{
    kits.calls.clear();
    top<TZHomeViewController>()->transactionBtnClick();
    signInThere();
    settle();
    EXPECT_TRUE(top<TZRealTradingController>());
    EXPECT_EQ(frame()->content()->depth(), 2);
    // Entry, login, trading page: home is not shown between the sign-in and the page it led to.
    EXPECT_EQ(kits.calls.filter("beginLogPageView").size(), 3);
}

TEST_F(FlowTest, EveryRowPutsANewStackIntoTheFrame)
{
    signIn();
    KRNavigationController *const first = frame()->content();
    chooseRow(0);
    EXPECT_NE(frame()->content(), first);
    EXPECT_TRUE(top<TZHomeViewController>());
    chooseRow(1);
    EXPECT_TRUE(top<TZMyAccountController>());
    chooseRow(2);
    EXPECT_EQ(window.topStack()->top()->title(), "超级合伙人");
    EXPECT_FALSE(frame()->isOpen());
    window.topStack()->top()->leftItemClick();
    EXPECT_TRUE(frame()->isOpen()) << "a root of the frame opens the menu";
}

TEST_F(FlowTest, APushedMessageOpensOverWhateverIsOnScreen)
{
    chooseRow(1);
    kits.push({{"pageId", 2}, {"data", R"({"id":"9","title":"系统升级","content":"今晚维护"})"}});
    ASSERT_TRUE(top<TZMessageDetailController>());
    EXPECT_EQ(top<TZMessageDetailController>()->content(), "今晚维护");
    EXPECT_EQ(window.presented()->count(), 2) << "over the sign-in";
    EXPECT_FALSE(top<TZMessageDetailController>()->showBackButton());
    top<TZMessageDetailController>()->rightItemClick();
    EXPECT_TRUE(top<TZCheckCellController>());

    kits.push({{"pageId", 3}, {"data", QVariantMap{{"stockName", "平安银行"}}}});
    ASSERT_TRUE(top<TZDealDetailController>());
    EXPECT_EQ(top<TZDealDetailController>()->title(), "委托详情");
}

TEST_F(FlowTest, APushedMessageOverTheGuideLeavesTheGuideBelow)
{
    KRWindow fresh;
    AppRouter freshRouter(fresh);
    settings.values.remove(SettingsKeys::bundleVersion);
    AppDelegate first(fresh, freshRouter, [] {});
    first.didFinishLaunchingWithOptions({});
    kits.push({{"pageId", 2}, {"data", QVariantMap()}});
    EXPECT_TRUE(qobject_cast<TZMessageDetailController *>(fresh.topStack()->top()));
    fresh.dismiss(fresh.topStack());
    EXPECT_TRUE(qobject_cast<TZGuideController *>(fresh.root()));
}

TEST_F(FlowTest, TheRechargeGateOpensTheFirstStepThatIsMissing)
{
    signIn();
    const QString gate = "trade/recharge";
    const std::pair<QVariant, QString> cases[] = {
        {1, "手机验证"},     {"2", "设置昵称"},    {4, "开通资金托管账户"},
        {5, "绑定银行卡"},   {6, "充值"},          {0, "充值"},
        {7, "充值"},         {QVariant(), "充值"}, {QVariantMap(), "充值"},
        {3, "输入交易密码"},
    };
    for (const auto &[nextStep, title] : cases) {
        window.dismiss(window.topStack());
        router.openRechargeGate(*frame()->content()->root());
        EXPECT_EQ(window.presented()->count(), 0) << "not before the answer";
        http.answer(gate, succeeded(QVariantMap{{"next_step", nextStep}}));
        ASSERT_EQ(window.presented()->count(), 1);
        EXPECT_EQ(window.topStack()->top()->title(), title);
    }
    window.topStack()->top()->leftItemClick();
    ASSERT_EQ(window.dialogs()->count(), 1);
    qobject_cast<TZInfoAlertView *>(window.dialogs()->last())->rightBtnClick();
    EXPECT_EQ(window.presented()->count(), 0) << "the first password can be left";

    router.openRechargeGate(*frame()->content()->root());
    http.answer(gate, refused("请先登录"));
    EXPECT_EQ(window.presented()->count(), 0);
}

TEST_F(FlowTest, WhatACoveredScreenAsksForIsNotOpened)
{
    signIn();
    KRBaseController &home = *frame()->content()->root();
    const QString gate = "trade/recharge";
    router.openRechargeGate(home);
    router.openRechargeGate(home);
    http.answer(gate, succeeded());
    http.answer(gate, succeeded());
    EXPECT_EQ(window.presented()->count(), 1);
    router.openWithdraw(home);
    router.openSignIn(home, {});
    EXPECT_EQ(window.presented()->count(), 1);
    window.dismiss(window.topStack());

    router.openRechargeGate(home);
    router.openRealTrading(home);
    http.answer(gate, succeeded());
    router.openRealTrading(home);
    router.openStockCapital(home, {});
    router.openMessages(home);
    router.openPersonal(home);
    EXPECT_EQ(window.presented()->count(), 0);
    EXPECT_EQ(frame()->content()->depth(), 2);
}

TEST_F(FlowTest, AnIdleSignedInHomePageWakesNobody)
{
    signIn();
    router.showHome(*frame()->content()->root());
    for (FakeTransport::Sent &sent : http.sent) {
        if (!sent.answered)
            http.answer(sent, succeeded());
    }
    settle();
    runLoop.advance(15s);
    EXPECT_EQ(runLoop.activeTimers(), 0);
    const int requests = http.count();
    runLoop.advance(60s);
    EXPECT_EQ(http.count(), requests);
}

TEST_F(FlowTest, APlainPageGoesBackOrCloses)
{
    router.openFundRecords(*frame()->content()->root());
    ASSERT_TRUE(top<TZPlainPageController>());
    top<TZPlainPageController>()->leftItemClick();
    EXPECT_TRUE(top<TZHomeViewController>());
    router.openWithdraw(*frame()->content()->root());
    top<TZPlainPageController>()->rightItemClick();
    EXPECT_EQ(window.presented()->count(), 0);
}
