#include "core/session/NotificationNames.h"
#include "core/session/SettingsKeys.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "home/screens/TZHomeViewController.h"
#include "tests/support/RecordingRouter.h"
#include "tests/support/TestPlatform.h"

using namespace std::chrono_literals;
using Face = TZHomeViewController::Face;

namespace {
const QString userIndex = "userIndex";
const QString loanOverview = "loanOverview";
const QString recentLoans = "recentLoans";
const QString count = "msg/count";

QVariantMap overview()
{
    return succeeded(QVariantMap{{"loanUserAmount", "12683"}, {"totalLoanMoney", "386520000"}});
}

QVariantMap loans(int number)
{
    QVariantList rows;
    for (int i = 0; i < number; ++i)
        rows.append(QVariantMap{{"nick", QStringLiteral("用户%1").arg(i)}, {"borrowMoney", "50000"}});
    return succeeded(rows);
}

QVariantMap assets(const QString &status, const QString &profit, const QString &rate)
{
    return succeeded(QVariantMap{
        {"userAccountStatus", status},
        {"asset", QVariantMap{{"totalAsset", "1234567.8"}, {"profitMoney", profit}, {"profitRate", rate}}}});
}
} // namespace

class HomePageTest : public PlatformTest {
protected:
    void show()
    {
        auto screen = std::make_unique<TZHomeViewController>(router);
        home = screen.get();
        window.setRoot(
            std::make_unique<KRSideMenu>(std::make_unique<KRNavigationController>(std::move(screen)),
                                         std::make_unique<KRBaseController>()));
        window.makeKeyAndVisible();
    }
    void showSignedOut(int rows)
    {
        show();
        http.answer(loanOverview, overview());
        http.answer(recentLoans, loans(rows));
    }
    KRNavigationController *cover() { return window.present(std::make_unique<KRBaseController>()); }

    /// The rows the ticker stops at, tick by tick; -1 for a tick that moves nothing.
    QList<int> ticks(int number)
    {
        QList<int> rows;
        bool moved = false;
        const auto watch = QObject::connect(home, &TZHomeViewController::selectedBoardcastChanged,
                                            [&moved] { moved = true; });
        for (int i = 0; i < number; ++i) {
            moved = false;
            runLoop.advance(2s);
            rows.append(moved ? home->selectedBoardcast() : -1);
        }
        QObject::disconnect(watch);
        return rows;
    }

    RecordingRouter router;
    KRWindow window;
    TZHomeViewController *home = nullptr;
};

TEST_F(HomePageTest, SignedOutItShowsTheFiguresAndThenTheLoansOfOthers)
{
    show();
    EXPECT_EQ(home->face(), Face::SignedOut);
    EXPECT_EQ(http.count(), 1) << "the loans are read once the figures are there";
    home->beginRefreshing();
    EXPECT_FALSE(home->refreshing());
    EXPECT_EQ(http.countOf(userIndex), 0);
    EXPECT_EQ(home->overviewTitle(), UnitText());
    http.answer(loanOverview, overview());
    EXPECT_EQ(home->overviewTitle(), (UnitText{"12683位用户在操盘", "（元）"}));
    EXPECT_EQ(home->overviewAmount(), "386,520,000.00");
    http.answer(recentLoans, succeeded(QVariantList{QVariantMap{{"nick", "小李"}, {"borrowMoney", 50000}},
                                                    QVariantMap{{"nick", QVariant()}}}));
    EXPECT_EQ(home->boardcastArr()->at(0).nick + home->boardcastArr()->at(0).deed,
              "小李申请操盘资金50,000.00元");
    EXPECT_EQ(home->boardcastArr()->at(1).deed, "申请操盘资金");
    EXPECT_EQ(home->titleImage(), "home_nav");
    EXPECT_EQ(home->rightItemImage(), "no_message");
}

TEST_F(HomePageTest, TheTickerStartsAgainAtItsFourthRowAndAnEmptyOneSelectsNothing)
{
    showSignedOut(5);
    EXPECT_EQ(ticks(12), (QList<int>{0, 1, 2, 3, 4, -1, 3, 4, -1, 3, 4, -1}));
    showSignedOut(0);
    EXPECT_EQ(ticks(4), QList<int>(4, -1));
    EXPECT_EQ(home->selectedBoardcast(), -1);
}

TEST_F(HomePageTest, TheTickerRunsOnlyWhileThePageIsSeenAndReadsAfreshOnReturn)
{
    showSignedOut(5);
    KRNavigationController *const cover = this->cover();
    EXPECT_EQ(runLoop.activeTimers(), 0);
    notifications.post(NotificationNames::refreshHome);
    http.answer(loanOverview, overview());
    EXPECT_EQ(runLoop.activeTimers(), 0) << "figures that arrive while the page is covered start nothing";
    cover->dismiss();
    http.answer(loanOverview, overview());
    EXPECT_EQ(http.countOf(recentLoans), 2);
    http.answer(recentLoans, loans(5));
    EXPECT_EQ(runLoop.activeTimers(), 1);
    home->refreshHomeData();
    http.answer(loanOverview, overview());
    EXPECT_EQ(http.countOf(recentLoans), 2) << "it runs already";
}

TEST_F(HomePageTest, OfflineAtTheFirstLaunchItIsNotEmpty)
{
    settings.setValue(SettingsKeys::networkStatus, false);
    show();
    EXPECT_FALSE(home->overviewTitle() == UnitText());
    EXPECT_GE(home->boardcastArr()->count(), 5);
    EXPECT_EQ(ticks(2), (QList<int>{0, 1}));
    EXPECT_EQ(http.count(), 0);
}

TEST_F(HomePageTest, ComingIntoSightItTakesAwayWhatWasSaidBeforeAndOfflineSaysSo)
{
    Service::showErrorWithMsg("加载失败");
    show();
    EXPECT_TRUE(banners().isEmpty());
    settings.setValue(SettingsKeys::networkStatus, false);
    cover()->dismiss();
    EXPECT_EQ(banners(), QStringList("网络异常"));
}

TEST_F(HomePageTest, SignedInItShowsTheAssetsAndTheUnreadMessages)
{
    signIn();
    show();
    EXPECT_EQ(home->face(), Face::SignedIn);
    EXPECT_EQ(http.sent.front().path(), userIndex);
    http.answer(userIndex, assets("0", "88.50", "1.234"));
    const TZHomeHeaderView header = home->header();
    EXPECT_EQ(header.totalAsset, "1,234,567.80");
    EXPECT_EQ(header.profitPrefix + header.profit, "浮盈  +88.50");
    EXPECT_EQ(header.rate, "+1.23%");
    EXPECT_EQ(header.midProfit, "88.50元");
    EXPECT_EQ(header.midRate, "1.234%");
    EXPECT_FALSE(home->failed());
    http.answer(count, succeeded(2));
    EXPECT_EQ(home->rightItemImage(), "message");
    EXPECT_EQ(http.countOf(loanOverview), 0);
    EXPECT_EQ(home->leftItemImage(), "home_left");
    home->leftItemClick();
    EXPECT_TRUE(window.sideMenu()->isOpen());
}

TEST_F(HomePageTest, RatesAreSignedByTheFigureThatIsShownAndProfitsWhenAboveZero)
{
    const auto header = [](const char *name, const QString &value) {
        TZHomeHeaderView made;
        made.setModels({}, fromDictionary<TZUserIndexAssetModel>(QVariantMap{{name, value}}),
                       AmountsSwitch());
        return made;
    };
    const struct {
        QString rate;
        QString shown;
        int trend;
    } rates[] = {
        {"12.3", "+12.30%", 1},  {"-0.5", "-0.50%", -1}, {"0", " 0.00%", 0},     {"0.001", " 0.00%", 0},
        {"-0.001", " 0.00%", 0}, {"", " 0.00%", 0},      {"0.125", "+0.12%", 1}, {"0.375", "+0.38%", 1},
        {"+1.5", "+1.50%", 1},   {"abc", "--", 0},
    };
    for (const auto &[rate, shown, trend] : rates) {
        EXPECT_EQ(header("profitRate", rate).rate, shown) << rate.toStdString();
        EXPECT_EQ(header("profitRate", rate).rateTrend, trend) << rate.toStdString();
    }
    for (const auto &[money, shown] :
         {std::pair("0.01", "+0.01"), {"0", "0"}, {"-3.20", "-3.20"}, {"+88.5", "+88.5"}, {"", ""}}) {
        EXPECT_EQ(header("profitMoney", money).profit, shown);
        EXPECT_EQ(header("profitMoney", money).midProfit, QString(money) + "元");
    }
}

TEST_F(HomePageTest, TheAmountsHideAndComeBackAtOnceButTheRatesStay)
{
    signIn();
    show();
    http.answer(userIndex, assets("0", "88.50", "1.234"));
    const auto texts = [this] {
        const TZHomeHeaderView header = home->header();
        return QStringList{header.totalAsset, header.profit, header.midProfit, header.rate, header.midRate};
    };
    const QStringList shown = texts();
    const QString hidden = "****";
    home->amounts()->toggle();
    EXPECT_EQ(texts(), (QStringList{hidden, hidden, hidden, shown.at(3), shown.at(4)}));
    EXPECT_EQ(home->header().profitTrend, 0) << "nor does the colour tell a gain";
    EXPECT_EQ(home->amounts()->title(), "显示金额");
    home->refreshHomeData();
    http.answer(userIndex, assets("0", "99.50", "1.234"));
    EXPECT_EQ(texts().constFirst(), hidden);
    home->amounts()->toggle();
    EXPECT_EQ(home->header().profit, "+99.50");
}

TEST_F(HomePageTest, TheBadgeFollowsTheStateOfTheAccountAndIgnoresUnknownOnes)
{
    const struct {
        QString status;
        QString title;
        bool atRisk;
    } cases[] = {{"1", "  预警", false},
                 {"3", "  预警", false},
                 {"2", "  风险", true},
                 {"3", "  风险", true},
                 {"-1", "  风险", true}};
    TZHomeHeaderView header;
    for (const auto &[status, title, atRisk] : cases) {
        header.setModels({status}, {}, AmountsSwitch());
        EXPECT_EQ(header.statusTitle, title) << status.toStdString();
        EXPECT_EQ(header.atRisk, atRisk) << status.toStdString();
    }
    header.setModels({"0"}, {}, AmountsSwitch());
    EXPECT_EQ(header.statusTitle, QString());
    show();
    for (const QString title : {"  预警", "  风险", ""})
        home->seeDetailStatus(title);
    EXPECT_EQ(router.calls, (QStringList{"openWarning", "openMarginTopUp"}));
}

TEST_F(HomePageTest, APullThatIsNeverAnsweredEndsAfterFifteenSeconds)
{
    signIn();
    show();
    home->beginRefreshing();
    EXPECT_EQ(http.countOf(userIndex), 2);
    http.answer(http.sent.front(), assets("0", "1", "1"));
    EXPECT_TRUE(home->refreshing()) << "the answer was to the reading before";
    runLoop.advance(14s);
    EXPECT_TRUE(home->refreshing());
    runLoop.advance(1s);
    EXPECT_FALSE(home->refreshing());

    home->beginRefreshing();
    http.answer(userIndex, refused(QString()));
    EXPECT_FALSE(home->refreshing()) << "a refusal ends it too";
    EXPECT_FALSE(home->failed()) << "the page has always something to show";
}

TEST_F(HomePageTest, EachWayInAsksForASignInFirstAndThenGoesOn)
{
    show();
    const std::pair<void (TZHomeViewController::*)(), QString> cases[] = {
        {&TZHomeViewController::capitalBtnDidClick, "openStockCapital"},
        {&TZHomeViewController::transactionBtnClick, "openRealTrading"},
        {&TZHomeViewController::rightItemClick, "openMessages"}};
    for (const auto &[tap, door] : cases) {
        router.calls.clear();
        (home->*tap)();
        EXPECT_EQ(router.calls, QStringList("openSignIn"));
        router.toSomeController();
        EXPECT_EQ(router.calls.constLast(), door);
    }
    signIn();
    notifications.post(NotificationNames::refreshHome);
    http.answer(userIndex, assets("2", "1", "1"));
    for (const auto &[tap, door] : cases) {
        router.calls.clear();
        (home->*tap)();
        EXPECT_EQ(router.calls, QStringList(door));
    }
    EXPECT_EQ(router.accountStatus, "2") << "the offers are told the state of the account";
}

TEST_F(HomePageTest, ASignInElsewhereTurnsThePageAndEndsTheTicker)
{
    showSignedOut(5);
    signIn();
    notifications.post(NotificationNames::refreshHome);
    EXPECT_EQ(home->face(), Face::SignedIn);
    http.answer(userIndex, assets("0", "1", "1"));
    EXPECT_EQ(runLoop.activeTimers(), 0);
}
