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
        top<TZCheckCellController>()->setCell(QStringLiteral("13812345678"));
        top<TZCheckCellController>()->clickNextStepBtn();
        QVariantMap known = succeeded();
        known.insert(QStringLiteral("bizCode"), QStringLiteral("1002"));
        http.answer(QStringLiteral("user/start"), known);
        ASSERT_TRUE(top<TZLoginController>());
        top<TZLoginController>()->textFiledEditChanged(QStringLiteral("123456"));
        top<TZLoginController>()->clickNextStepBtn();
        http.answer(QStringLiteral("user/verify"),
                    succeeded(QVariantMap{{QStringLiteral("api_token"), QStringLiteral("fresh")}}));
    }

    KRWindow window;
    AppRouter router{window};
    AppDelegate shell{window, router, [] {}};
};

TEST_F(FlowTest, SignedOutTheHomePageIsShownAndNobodyIsAskedToSignIn)
{
    EXPECT_TRUE(top<TZHomeViewController>());
    EXPECT_EQ(window.presented()->count(), 0);
}

TEST_F(FlowTest, AnOfflineStartSaysSo)
{
    reachability.status = NetworkStatus::NotReachable;
    KRWindow fresh;
    AppRouter freshRouter(fresh);
    AppDelegate offline(fresh, freshRouter, [] {});
    offline.didFinishLaunchingWithOptions({});
    EXPECT_EQ(banners(), QStringList(QStringLiteral("网络异常")));
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
    EXPECT_TRUE(kits.calls.contains(QStringLiteral("setAlias fresh api_token")));
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
    EXPECT_EQ(kits.calls.filter(QStringLiteral("beginLogPageView")).size(), 3);
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
    EXPECT_EQ(window.topStack()->top()->title(), QStringLiteral("超级合伙人"));
    EXPECT_FALSE(frame()->isOpen());
    window.topStack()->top()->leftItemClick();
    EXPECT_TRUE(frame()->isOpen()) << "a root of the frame opens the menu";
}

TEST_F(FlowTest, APushedMessageOpensOverWhateverIsOnScreen)
{
    chooseRow(1);
    kits.push(
        {{QStringLiteral("pageId"), 2},
         {QStringLiteral("data"), QStringLiteral(R"({"id":"9","title":"系统升级","content":"今晚维护"})")}});
    ASSERT_TRUE(top<TZMessageDetailController>());
    EXPECT_EQ(top<TZMessageDetailController>()->content(), QStringLiteral("今晚维护"));
    EXPECT_EQ(window.presented()->count(), 2) << "over the sign-in";
    EXPECT_FALSE(top<TZMessageDetailController>()->showBackButton());
    top<TZMessageDetailController>()->rightItemClick();
    EXPECT_TRUE(top<TZCheckCellController>());

    kits.push(
        {{QStringLiteral("pageId"), 3},
         {QStringLiteral("data"), QVariantMap{{QStringLiteral("stockName"), QStringLiteral("平安银行")}}}});
    ASSERT_TRUE(top<TZDealDetailController>());
    EXPECT_EQ(top<TZDealDetailController>()->title(), QStringLiteral("委托详情"));
}

TEST_F(FlowTest, APushedMessageOverTheGuideLeavesTheGuideBelow)
{
    KRWindow fresh;
    AppRouter freshRouter(fresh);
    settings.values.remove(SettingsKeys::bundleVersion);
    AppDelegate first(fresh, freshRouter, [] {});
    first.didFinishLaunchingWithOptions({});
    kits.push({{QStringLiteral("pageId"), 2}, {QStringLiteral("data"), QVariantMap()}});
    EXPECT_TRUE(qobject_cast<TZMessageDetailController *>(fresh.topStack()->top()));
    fresh.dismiss(fresh.topStack());
    EXPECT_TRUE(qobject_cast<TZGuideController *>(fresh.root()));
}

TEST_F(FlowTest, TheRechargeGateOpensTheFirstStepThatIsMissing)
{
    signIn();
    struct Case {
        QVariant nextStep;
        QString title;
    };
    const QString recharge = QStringLiteral("充值");
    const Case cases[] = {
        {1, QStringLiteral("手机验证")},
        {QStringLiteral("2"), QStringLiteral("设置昵称")},
        {3, QStringLiteral("输入交易密码")},
        {4, QStringLiteral("开通资金托管账户")},
        {5, QStringLiteral("绑定银行卡")},
        {6, recharge},
        {0, recharge},
        {7, recharge},
        {QVariant(), recharge},
        {QVariantMap(), recharge},
    };
    for (const Case &step : cases) {
        router.openRechargeGate(*frame()->content()->root());
        EXPECT_EQ(window.presented()->count(), 0) << "not before the answer";
        http.answer(QStringLiteral("trade/recharge"),
                    succeeded(QVariantMap{{QStringLiteral("next_step"), step.nextStep}}));
        ASSERT_EQ(window.presented()->count(), 1);
        EXPECT_EQ(window.topStack()->top()->title(), step.title);
        window.dismiss(window.topStack());
    }
    router.openRechargeGate(*frame()->content()->root());
    http.answer(QStringLiteral("trade/recharge"), refused(QStringLiteral("请先登录")));
    EXPECT_EQ(window.presented()->count(), 0);
}

TEST_F(FlowTest, TheFirstPasswordOfTheRechargeGateCanBeLeft)
{
    signIn();
    router.openRechargeGate(*frame()->content()->root());
    http.answer(QStringLiteral("trade/recharge"), succeeded(QVariantMap{{QStringLiteral("next_step"), 3}}));
    window.topStack()->top()->leftItemClick();
    ASSERT_EQ(window.dialogs()->count(), 1);
    qobject_cast<TZInfoAlertView *>(window.dialogs()->last())->rightBtnClick();
    EXPECT_EQ(window.presented()->count(), 0);
}

TEST_F(FlowTest, WhatACoveredScreenAsksForIsNotOpened)
{
    signIn();
    KRBaseController &home = *frame()->content()->root();
    const QString gate = QStringLiteral("trade/recharge");
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
