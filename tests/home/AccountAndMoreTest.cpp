#include "core/platform/ShareService.h"
#include "core/session/NotificationNames.h"
#include "core/session/SettingsKeys.h"
#include "core/session/TZUserTool.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "home/screens/TZMoreViewController.h"
#include "home/screens/TZMyAccountController.h"
#include "tests/support/RecordingRouter.h"
#include "tests/support/TestPlatform.h"

class AccountTest : public PlatformTest {
protected:
    AccountTest()
    {
        signIn();
        auto screen = std::make_unique<TZMyAccountController>(router);
        account = screen.get();
        window.setRoot(
            std::make_unique<KRSideMenu>(std::make_unique<KRNavigationController>(std::move(screen)),
                                         std::make_unique<KRBaseController>()));
        window.makeKeyAndVisible();
    }
    TZMoreViewController *more()
    {
        account->rightItemClick();
        return qobject_cast<TZMoreViewController *>(account->navigationController()->top());
    }
    TZInfoAlertView *alert()
    {
        return window.dialogs()->count() == 0 ? nullptr
                                              : qobject_cast<TZInfoAlertView *>(window.dialogs()->at(0));
    }
    QStringList values()
    {
        QStringList texts;
        for (const AccountRow &row : account->assetRows()->rows())
            texts.append(row.title + row.value);
        return texts;
    }

    RecordingRouter router;
    KRWindow window;
    TZMyAccountController *account = nullptr;
};

TEST_F(AccountTest, ItShowsTheFiguresAsTheServiceWritesThemAndReadsThemAgainWhenTold)
{
    EXPECT_EQ(values(), (QStringList{"可用余额", "  冻结资金", " 借款总额", "持仓市值"}));
    http.answer("userIndex", succeeded(QVariantMap{{"asset", QVariantMap{{"availableMoney", "1000.5"},
                                                                         {"frozenMoney", 20},
                                                                         {"borrowMoney", QVariant()},
                                                                         {"stockValue", "3,000.00"}}}}));
    EXPECT_EQ(values(), (QStringList{"可用余额1000.5", "  冻结资金20", " 借款总额", "持仓市值3,000.00"}));
    notifications.post(NotificationNames::refreshAccount);
    EXPECT_TRUE(http.hasPending("userIndex"));
    http.answer("userIndex", refused(QString()));
    EXPECT_EQ(values().constFirst(), "可用余额1000.5");
    EXPECT_FALSE(account->failed()) << "the page has always something to show";
}

TEST_F(AccountTest, ANicknameThatIsSavedAfterItsScreenWasLeftIsShown)
{
    int changes = 0;
    QObject::connect(account, &TZMyAccountController::accountChanged, [&changes] { ++changes; });
    TZUserTool::setNickWithParam({{"nick", "小雨"}}, {}, {});
    http.answer("user/set_nick", succeeded());
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(account->nick(), "小雨");
}

TEST_F(AccountTest, HiddenAmountsAreHiddenOnEveryScreenAndAfterAStart)
{
    account->amounts()->toggle();
    http.answer("userIndex", succeeded(QVariantMap{{"asset", QVariantMap{{"availableMoney", "1000.5"}}}}));
    EXPECT_EQ(values().constFirst(), "可用余额****");
    AmountsSwitch another;
    EXPECT_TRUE(another.isHidden());
    another.toggle();
    EXPECT_EQ(values().constFirst(), "可用余额1000.5");
}

TEST_F(AccountTest, GarbledDisplaySettingsAreTheStandard)
{
    for (const QVariant &garbage :
         {QVariant(7), QVariant(QVariantMap{{"palette", 9}, {"trendColours", -1}, {"textSize", "x"}})}) {
        settings.setValue("display", garbage);
        const DisplaySettings read = DisplaySettings::stored();
        EXPECT_EQ(read.palette, DisplaySettings::Palette::System);
        EXPECT_EQ(read.trendColours, DisplaySettings::TrendColours::RedRises);
        EXPECT_EQ(read.textSize, DisplaySettings::TextSize::Standard);
    }
}

TEST_F(AccountTest, TheAvailableBalanceExplainsItself)
{
    account->clickAvailableBtn();
    EXPECT_EQ(alert()->titleText(), "可用于购买股票的金额");
    EXPECT_EQ(alert()->ensureText(), "您的充值金额、配资保证金及配资借款金额未使用的部分");
    EXPECT_EQ(alert()->leftTitle() + alert()->rightTitle(), "知道了");
}

TEST_F(AccountTest, ItsButtonsOpenWhatTheySay)
{
    account->rechargeBtnClick();
    account->withdrawalsBtnClick();
    account->seePersonalInfo();
    account->seeFundRecords();
    EXPECT_EQ(router.calls,
              (QStringList{"openRechargeGate", "openWithdraw", "openPersonal", "openFundRecords"}));
}

TEST_F(AccountTest, MoreOpensTheStoreFeedbackAndShare)
{
    TZMoreViewController *const screen = more();
    ASSERT_TRUE(screen);
    kits.calls.clear();
    screen->didSelectRow(0);
    EXPECT_TRUE(kits.calls.constLast().contains("itms-apps://itunes.apple.com/app/i000000000"));
    screen->didSelectRow(2);
    EXPECT_EQ(kits.calls.size(), 2);
    screen->didSelectRow(3);
    EXPECT_EQ(kits.shared.title, "Zorvane--一站式杠杆炒股");
    EXPECT_EQ(kits.shared.text, "推荐#Zorvane#炒股，配资＋炒股一站式解决，一份资金四倍收益，佣金低至万三。");
    EXPECT_EQ(kits.shared.image, "common_logo");
    EXPECT_EQ(kits.shared.link, "https://www.zorvane.example/");
    screen->didSelectRow(7);
    EXPECT_EQ(kits.calls.size(), 3);
}

TEST_F(AccountTest, TheServiceIsCalledOnlyAfterAQuestion)
{
    TZMoreViewController *const screen = more();
    kits.calls.clear();
    screen->didSelectRow(1);
    EXPECT_EQ(alert()->titleText(), "联系客服");
    EXPECT_EQ(alert()->ensureText(), "客服电话：400-000-0000 \n每天9:00-18:00");
    alert()->leftBtnClick();
    EXPECT_TRUE(kits.calls.isEmpty());
    screen->didSelectRow(1);
    alert()->rightBtnClick();
    EXPECT_TRUE(kits.calls.join(u' ').contains("tel://400-000-0000"));
    EXPECT_TRUE(router.calls.isEmpty()) << "its answer is not that of the question about signing out";
}

TEST_F(AccountTest, SigningOutForgetsTheUserStartsOverAndKeepsHowTheClientLooks)
{
    TZMoreViewController *const screen = more();
    EXPECT_EQ(screen->palettes().at(screen->palette()), "跟随系统");
    EXPECT_EQ(screen->trendColourPairs().at(screen->trendColours()), "红涨绿跌");
    EXPECT_EQ(screen->textSizes().at(screen->textSize()), "标准");
    screen->setPalette(2);
    screen->setTrendColours(1);
    screen->setTextSize(1);

    screen->clickLogoutBtn();
    EXPECT_EQ(alert()->titleText(), "提示");
    EXPECT_EQ(alert()->ensureText(), "确定要退出当前账号？");
    alert()->leftBtnClick();
    EXPECT_TRUE(settings.values.contains(SettingsKeys::user));
    EXPECT_TRUE(router.calls.isEmpty());

    screen->clickLogoutBtn();
    alert()->rightBtnClick();
    EXPECT_EQ(router.calls, QStringList("setupSideMenuController"));
    EXPECT_FALSE(router.rebuiltSignedIn);
    const DisplaySettings kept = DisplaySettings::stored();
    EXPECT_EQ(kept.palette, DisplaySettings::Palette::Dark);
    EXPECT_EQ(kept.trendColours, DisplaySettings::TrendColours::GreenRises);
    EXPECT_EQ(kept.textSize, DisplaySettings::TextSize::Large);
}
