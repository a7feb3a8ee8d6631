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
const QString userIndex = QStringLiteral("userIndex");
const QString loanOverview = QStringLiteral("loanOverview");
const QString recentLoans = QStringLiteral("recentLoans");
const QString count = QStringLiteral("msg/count");

QVariantMap overview()
{
    return succeeded(QVariantMap{{QStringLiteral("loanUserAmount"), QStringLiteral("12683")},
                                 {QStringLiteral("totalLoanMoney"), QStringLiteral("386520000")}});
}

QVariantMap loans(int number)
{
    QVariantList rows;
    for (int i = 0; i < number; ++i)
        rows.append(QVariantMap{{QStringLiteral("nick"), QStringLiteral("用户%1").arg(i)},
                                {QStringLiteral("borrowMoney"), QStringLiteral("50000")}});
    return succeeded(rows);
}

QVariantMap assets(const QString &status, const QString &profit, const QString &rate)
{
    return succeeded(QVariantMap{
        {QStringLiteral("userAccountStatus"), status},
        {QStringLiteral("asset"), QVariantMap{{QStringLiteral("totalAsset"), QStringLiteral("1234567.8")},
                                              {QStringLiteral("profitMoney"), profit},
                                              {QStringLiteral("profitRate"), rate}}}});
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
    EXPECT_EQ(home->overviewTitle(), UnitText());
    http.answer(loanOverview, overview());
    EXPECT_EQ(home->overviewTitle(),
              (UnitText{QStringLiteral("12683位用户在操盘"), QStringLiteral("（元）")}));
    EXPECT_EQ(home->overviewAmount(), QStringLiteral("386,520,000.00"));
    http.answer(recentLoans,
                succeeded(QVariantList{QVariantMap{{QStringLiteral("nick"), QStringLiteral("小李")},
                                                   {QStringLiteral("borrowMoney"), 50000}},
                                       QVariantMap{{QStringLiteral("nick"), QVariant()}}}));
    EXPECT_EQ(home->boardcastArr()->at(0).nick + home->boardcastArr()->at(0).deed,
              QStringLiteral("小李申请操盘资金50,000.00元"));
    EXPECT_EQ(home->boardcastArr()->at(1).deed, QStringLiteral("申请操盘资金"));
    EXPECT_EQ(home->titleImage(), QStringLiteral("home_nav"));
    EXPECT_EQ(home->rightItemImage(), QStringLiteral("no_message"));
}

TEST_F(HomePageTest, TheTickerStartsAgainAtItsFourthRow)
{
    showSignedOut(5);
    EXPECT_EQ(ticks(12), (QList<int>{0, 1, 2, 3, 4, -1, 3, 4, -1, 3, 4, -1}));
}

TEST_F(HomePageTest, AnEmptyTickerSelectsNothing)
{
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
    Service::showErrorWithMsg(QStringLiteral("加载失败"));
    show();
    EXPECT_TRUE(banners().isEmpty());
    settings.setValue(SettingsKeys::networkStatus, false);
    cover()->dismiss();
    EXPECT_EQ(banners(), QStringList(QStringLiteral("网络异常")));
}

TEST_F(HomePageTest, SignedInItShowsTheAssetsAndTheUnreadMessages)
{
    signIn();
    show();
    EXPECT_EQ(home->face(), Face::SignedIn);
    EXPECT_EQ(http.sent.front().path(), userIndex);
    http.answer(userIndex, assets(QStringLiteral("0"), QStringLiteral("88.50"), QStringLiteral("1.234")));
    const TZHomeHeaderView header = home->header();
    EXPECT_EQ(header.totalAsset, QStringLiteral("1,234,567.80"));
    EXPECT_EQ(header.profitPrefix + header.profit, QStringLiteral("浮盈  +88.50"));
    EXPECT_EQ(header.rate, QStringLiteral("+1.23%"));
    EXPECT_EQ(header.midProfit, QStringLiteral("88.50元"));
    EXPECT_EQ(header.midRate, QStringLiteral("1.234%"));
    EXPECT_TRUE(header.statusTitle.isEmpty());
    EXPECT_FALSE(home->failed());
    http.answer(count, succeeded(2));
    EXPECT_EQ(home->rightItemImage(), QStringLiteral("message"));
    EXPECT_EQ(home->leftItemImage(), QStringLiteral("home_left"));
    EXPECT_EQ(http.countOf(loanOverview), 0);
}

TEST_F(HomePageTest, SignedInAndIdleNothingWakesUp)
{
    signIn();
    show();
    http.answer(userIndex, assets(QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("1")));
    http.answer(count, succeeded(0));
    EXPECT_EQ(runLoop.activeTimers(), 0);
}

TEST_F(HomePageTest, RatesAreSignedByTheFigureThatIsShown)
{
    const struct {
        QString rate;
        QString shown;
        int trend;
    } cases[] = {
        {"12.3", "+12.30%", 1},  {"-0.5", "-0.50%", -1}, {"0", " 0.00%", 0},     {"0.001", " 0.00%", 0},
        {"-0.001", " 0.00%", 0}, {"", " 0.00%", 0},      {"0.125", "+0.12%", 1}, {"0.375", "+0.38%", 1},
    };
    for (const auto &[rate, shown, trend] : cases) {
        TZHomeHeaderView header;
        header.setModels({}, fromDictionary<TZUserIndexAssetModel>(QVariantMap{{"profitRate", rate}}),
                         AmountsSwitch());
        EXPECT_EQ(header.rate, shown) << rate.toStdString();
        EXPECT_EQ(header.rateTrend, trend) << rate.toStdString();
    }
}

TEST_F(HomePageTest, TheProfitCarriesAPlusOnlyAboveZero)
{
    const struct {
        QString money;
        QString shown;
    } cases[] = {{"0.01", "+0.01"}, {"0", "0"}, {"-3.20", "-3.20"}, {"", ""}};
    for (const auto &[money, shown] : cases) {
        TZHomeHeaderView header;
        header.setModels({}, fromDictionary<TZUserIndexAssetModel>(QVariantMap{{"profitMoney", money}}),
                         AmountsSwitch());
        EXPECT_EQ(header.profit, shown);
        EXPECT_EQ(header.midProfit, money + QStringLiteral("元"));
    }
}

TEST_F(HomePageTest, TheAmountsHideAndComeBackAtOnceButTheRatesStay)
{
    signIn();
    show();
    http.answer(userIndex, assets(QStringLiteral("0"), QStringLiteral("88.50"), QStringLiteral("1.234")));
    const auto texts = [this] {
        const TZHomeHeaderView header = home->header();
        return QStringList{header.totalAsset, header.profit, header.midProfit, header.rate, header.midRate};
    };
    const QStringList shown = texts();
    const QString hidden = QStringLiteral("****");
    home->amounts()->toggle();
    EXPECT_EQ(texts(), (QStringList{hidden, hidden, hidden, shown.at(3), shown.at(4)}));
    EXPECT_EQ(home->header().profitTrend, 0) << "nor does the colour tell a gain";
    EXPECT_EQ(home->amounts()->title(), QStringLiteral("显示金额"));
    home->refreshHomeData();
    http.answer(userIndex, assets(QStringLiteral("0"), QStringLiteral("99.50"), QStringLiteral("1.234")));
    EXPECT_EQ(texts().constFirst(), hidden);
    home->amounts()->toggle();
    EXPECT_EQ(home->header().profit, QStringLiteral("+99.50"));
}

TEST_F(HomePageTest, TheBadgeFollowsTheStateOfTheAccountAndIgnoresUnknownOnes)
{
    const struct {
        QString status;
        QString title;
        bool atRisk;
    } cases[] = {{"1", "  预警", false}, {"3", "  预警", false}, {"2", "  风险", true},
                 {"3", "  风险", true},  {"-1", "  风险", true}, {"0", "", true}};
    TZHomeHeaderView header;
    for (const auto &[status, title, atRisk] : cases) {
        header.setModels({status}, {}, AmountsSwitch());
        EXPECT_EQ(header.statusTitle, title) << status.toStdString();
        if (!title.isEmpty()) {
            EXPECT_EQ(header.atRisk, atRisk) << status.toStdString();
        }
    }
    show();
    home->seeDetailStatus(QStringLiteral("  预警"));
    home->seeDetailStatus(QStringLiteral("  风险"));
    home->seeDetailStatus(QString());
    EXPECT_EQ(router.calls, (QStringList{QStringLiteral("openWarning"), QStringLiteral("openMarginTopUp")}));
}

TEST_F(HomePageTest, APullThatIsNeverAnsweredEndsAfterFifteenSeconds)
{
    signIn();
    show();
    home->beginRefreshing();
    EXPECT_EQ(http.countOf(userIndex), 2);
    http.answer(http.sent.front(), assets(QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("1")));
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
    const struct {
        void (TZHomeViewController::*tap)();
        QString door;
    } cases[] = {{&TZHomeViewController::capitalBtnDidClick, "openStockCapital"},
                 {&TZHomeViewController::transactionBtnClick, "openRealTrading"},
                 {&TZHomeViewController::rightItemClick, "openMessages"}};
    for (const auto &[tap, door] : cases) {
        router.calls.clear();
        (home->*tap)();
        EXPECT_EQ(router.calls, QStringList(QStringLiteral("openSignIn")));
        router.toSomeController();
        EXPECT_EQ(router.calls.constLast(), door);
    }
    signIn();
    for (const auto &[tap, door] : cases) {
        router.calls.clear();
        (home->*tap)();
        EXPECT_EQ(router.calls, QStringList(door));
    }
}

TEST_F(HomePageTest, TheFinancingOffersAreToldTheStateOfTheAccount)
{
    signIn();
    show();
    http.answer(userIndex, assets(QStringLiteral("2"), QStringLiteral("1"), QStringLiteral("1")));
    home->capitalBtnDidClick();
    EXPECT_EQ(router.accountStatus, QStringLiteral("2"));
}

TEST_F(HomePageTest, ASignInElsewhereTurnsThePageAndEndsTheTicker)
{
    showSignedOut(5);
    signIn();
    notifications.post(NotificationNames::refreshHome);
    EXPECT_EQ(home->face(), Face::SignedIn);
    http.answer(userIndex, assets(QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("1")));
    EXPECT_EQ(runLoop.activeTimers(), 0);
}

TEST_F(HomePageTest, TheLeftItemOpensTheMenu)
{
    show();
    home->leftItemClick();
    EXPECT_TRUE(window.sideMenu()->isOpen());
}
