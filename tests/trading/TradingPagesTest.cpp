#include "core/session/SettingsKeys.h"
#include "core/util/Text.h"
#include "tests/trading/TradingFixture.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZChooseSellStockController.h"
#include "trading/screens/TZDealAndEntrustController.h"
#include "trading/screens/TZDealDetailController.h"
#include "trading/screens/TZRealTradingController.h"
#include "trading/screens/TZStockDetailController.h"
#include "trading/screens/TZWithdrawalsController.h"

namespace {
QVariantMap holding(const QString &code, const QString &profit)
{
    return {{"stockCode", code},         {"stockName", "海天传媒"}, {"shares", "1500"},
            {"availableShares", "1200"}, {"costPerShare", 9.5},     {"currentPrice", "10.00"},
            {"profitMoney", profit},     {"profitRate", "5.26"}};
}

QVariantMap tradingPage(const QVariant &available, const QVariant &profit = "750",
                        const QVariantList &stocks = {})
{
    return succeeded(QVariantMap{{"availableMoney", available},
                                 {"stockValue", "15000"},
                                 {"frozenMoney", "0"},
                                 {"profit", profit},
                                 {"stocks", stocks}});
}

QVariantMap entrust(const QString &id)
{
    return {{"id", id},      {"stockCode", "600001"},  {"stockName", "海天传媒"}, {"type", "1"},
            {"status", "2"}, {"entrustPrice", "9.99"}, {"entrustShares", "300"}};
}

QStringList linesOf(TZDealDetailController &detail)
{
    QStringList lines;
    for (const DetailRow &row : detail.rows()->rows())
        lines.append(row.label + u' ' + row.value);
    return lines;
}
} // namespace

class TradingPageTest : public TradingFixture {
protected:
    TZRealTradingController *open(const QVariant &available = "1000.00")
    {
        auto *const opened = push<TZRealTradingController>(router);
        http.answer("zorvanePage", tradingPage(available));
        return opened;
    }
};

TEST_F(TradingPageTest, AFigureThatIsMissingIsDashes)
{
    for (const QVariant &missing : {QVariant(), QVariant(" "), QVariant("(null)")})
        EXPECT_EQ(open(missing)->availableMoney(), "--");
}

TEST_F(TradingPageTest, ItReadsItsPageWhenItAppearsAndPullsAQuarterOfASecondLater)
{
    auto *const page = push<TZRealTradingController>(router);
    EXPECT_EQ(page->title(), "Zorvane-实盘炒股");
    EXPECT_EQ(page->leftItemImage() + u' ' + page->rightItemImage(), "common_back_gray real_trade_Info");
    EXPECT_EQ(page->availableMoney(), "--");
    EXPECT_EQ(page->profitText(), "");
    http.answer("warnInfo", succeeded(QVariantMap{{"warnLine", "100"}}));
    EXPECT_EQ(page->warnInfoModel().warnLine, "100");
    EXPECT_EQ(alert(), nullptr);

    EXPECT_EQ(http.countOf("zorvanePage"), 1);
    EXPECT_FALSE(page->refreshing());
    runLoop.advance(250ms);
    EXPECT_EQ(http.countOf("zorvanePage"), 2);
    EXPECT_TRUE(page->refreshing());
    http.answer("zorvanePage",
                tradingPage("1234567.8", "-750.5", {holding("600001", "-750.5"), holding("000002", "")}));
    EXPECT_FALSE(page->refreshing());
    EXPECT_EQ(page->availableMoney(), "1,234,567.80");
    EXPECT_EQ(page->holdingsTitle(), "当前持仓(2)");
    EXPECT_EQ(page->profitText(), "持仓盈亏       -750.50");
    EXPECT_EQ(page->profitTrend(), -1);
    EXPECT_FALSE(page->noData());
    EXPECT_EQ(page->holdings()->at(0).sentence,
              "海天传媒 600001，成本9.5，现价10.00，持仓1500，可用1200，盈亏-750.50，5.26%");
    EXPECT_EQ(page->holdings()->at(0).trend, -1);
}

TEST_F(TradingPageTest, LessThanOneYuanIsNoMoneyToBuyWith)
{
    const std::pair<QVariant, bool> table[] = {
        {"0.99", false}, {"0", false}, {"", false},   {QVariant::fromValue(nullptr), false},
        {"abc", false},  {"1", true},  {0.99, false}, {1000.5, true},
        {"-5", true}};
    for (const auto &[available, canBuy] : table) {
        open(available)->actionBarClick(TZRealTradingController::BuyTag);
        EXPECT_EQ(top<TZBuyAndSellController>() != nullptr, canBuy) << qPrintable(available.toString());
        EXPECT_EQ(alert() == nullptr, canBuy);
        if (alert())
            alert()->cancel();
        stack().popToRoot();
        settle();
    }
}

TEST_F(TradingPageTest, BeforeAnAnswerNothingIsSaidOfTheMoney)
{
    auto *const page = push<TZRealTradingController>(router);
    http.answer("zorvanePage", refused("系统维护"));
    EXPECT_EQ(page->holdingsTitle(), "当前持仓(--)");
    page->actionBarClick(TZRealTradingController::BuyTag);
    EXPECT_EQ(alert(), nullptr);
    EXPECT_NE(top<TZBuyAndSellController>(), nullptr);
}

TEST_F(TradingPageTest, WithoutMoneyTheWaysLeadToFinancingAndRecharge)
{
    TZRealTradingController *const page = open("0");
    page->actionBarClick(TZRealTradingController::BuyTag);
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->titleText() + alert()->ensureText(),
              "您账户中没有可用资金，先去配资或者充值再来炒股吧。");
    EXPECT_EQ(alert()->leftTitle() + alert()->rightTitle(), "去配资去充值");
    alert()->rightBtnClick();
    page->actionBarClick(TZRealTradingController::BuyTag);
    alert()->leftBtnClick();
    settle();
    EXPECT_EQ(router.calls, (QStringList{"openRechargeGate", "openStockCapital"}));
    EXPECT_EQ(stack().depth(), 1);
}

TEST_F(TradingPageTest, TheActionBarOpensTheFourScreens)
{
    TZRealTradingController *const page = open();
    const std::pair<int, QString> table[] = {{10000, "买入"}, {10001, "选择卖出股票"}, {10002, "撤单"}};
    for (const auto &[tag, title] : table) {
        page->actionBarClick(tag);
        EXPECT_EQ(stack().top()->title(), title);
        stack().pop();
    }
    page->actionBarClick(10003);
    EXPECT_NE(top<TZDealAndEntrustController>(), nullptr);
}

TEST_F(TradingPageTest, OneTapOpensOneScreenAndNothingIsShownOverIt)
{
    auto *const page = push<TZRealTradingController>(router);
    http.answer("zorvanePage", tradingPage("0.99", "1", {holding("600001", "750")}));
    page->rightItemClick();
    page->actionBarClick(TZRealTradingController::SeeTag);
    page->actionBarClick(TZRealTradingController::BuyTag);
    page->actionBarClick(TZRealTradingController::SellTag);
    page->selectHolding(0);
    http.answer("warnInfo", succeeded(QVariantMap{{"warnLine", "100"}}));
    EXPECT_EQ(stack().depth(), 3);
    EXPECT_EQ(alert(), nullptr);

    stack().pop();
    page->actionBarClick(TZRealTradingController::SellTag);
    auto *const choose = top<TZChooseSellStockController>();
    http.answer("holding", succeeded(QVariantList{holding("600001", "5")}));
    choose->selectHolding(0);
    choose->selectHolding(0);
    EXPECT_EQ(stack().depth(), 4);
}

TEST_F(TradingPageTest, TheRightItemShowsTheWarningLinesAndTheRules)
{
    TZRealTradingController *const page = open();
    const std::pair<QVariantMap, QString> table[] = {
        {{}, "亏损警告线 --\n亏损平仓线 --"},
        {{{"warnLine", 9000}, {"closeOutLine", "8000"}}, "亏损警告线 9,000.00元\n亏损平仓线 8,000.00元"}};
    for (const auto &[data, text] : table) {
        page->rightItemClick();
        http.answer("warnInfo", succeeded(data));
        ASSERT_NE(alert(), nullptr);
        EXPECT_EQ(alert()->ensureText(), text);
        alert()->rightBtnClick();
    }
    page->rightItemClick();
    http.answer("warnInfo", succeeded());
    alert()->leftBtnClick();
    EXPECT_EQ(router.calls, QStringList{"openWeb https://service.test/mobile/stock_buy_rules.html"});

    settings.setValue(SettingsKeys::networkStatus, false);
    const int sent = http.count();
    page->rightItemClick();
    EXPECT_EQ(http.count(), sent);
    EXPECT_EQ(banners().constLast(), "网络异常");
}

TEST_F(TradingPageTest, ATappedHoldingOpensItsDetail)
{
    TZRealTradingController *const page = push<TZRealTradingController>(router);
    http.answer("zorvanePage", tradingPage("1000", "1", {holding("600001", "750")}));
    page->selectHolding(1);
    EXPECT_EQ(stack().top(), page);
    page->selectHolding(0);
    auto *const detail = top<TZStockDetailController>();
    ASSERT_NE(detail, nullptr);
    EXPECT_EQ(detail->price(), "10.00");
    detail->sell();
    EXPECT_EQ(top<TZBuyAndSellController>()->totalCount(), 1200);
}

TEST_F(TradingFixture, AListThatCouldNotBeReadSaysSoAndReadsAgainWhenAsked)
{
    auto *const screen = push<TZWithdrawalsController>();
    const QString path = "callBackPage";
    const auto state = [screen] {
        return QString(screen->refreshing() ? "reading " : "") + (screen->failed() ? "failed " : "") +
               (screen->noData() ? "empty" : "");
    };
    EXPECT_EQ(state(), "reading ");
    http.fail(path, HttpFailure::TimedOut);
    EXPECT_EQ(state(), "failed ");
    screen->noNet()->clickReloadBtn();
    EXPECT_EQ(state(), "reading ");
    http.answer(path, refused("系统维护中"));
    EXPECT_EQ(state(), "failed ");
    screen->noNet()->clickReloadBtn();
    http.answer(path, succeeded(QVariantList()));
    EXPECT_EQ(state(), "empty");
    screen->beginRefreshing();
    http.fail(path, HttpFailure::TimedOut);
    EXPECT_EQ(state(), "empty") << "what was read before goes on being shown";
}

TEST_F(TradingFixture, HoldingsToSellAreReadOnLoadingEachTimeTheyAppearAndAfterASale)
{
    settings.setValue(SettingsKeys::needTradePwd, false);
    auto *const list = push<TZChooseSellStockController>();
    EXPECT_TRUE(list->refreshing());
    EXPECT_EQ(http.countOf("holding"), 2);
    EXPECT_EQ(http.pending("holding").fields(), (QVariantMap{{"", ""}}));
    http.answer("holding", succeeded(QVariantList{holding("600001", "5"), 7, "x"}));
    EXPECT_EQ(list->holdings()->count(), 1);

    list->selectHolding(0);
    auto *const entry = top<TZBuyAndSellController>();
    ASSERT_NE(entry, nullptr);
    EXPECT_FALSE(entry->isBuyType());
    entry->editPrice("9.99");
    entry->editQuantity("1200");
    entry->submit();
    runLoop.advance(500ms);
    http.answer("entrust/createSell", succeeded(QVariantMap{{"id", "3"}}));
    EXPECT_EQ(http.countOf("holding"), 3);
    http.answer("holding", succeeded(QVariantList()));
    EXPECT_TRUE(list->noData());
}

/// What the five lists that are read from the service have in common.
class ReadListTest : public TradingFixture, public testing::WithParamInterface<const char *> {
protected:
    ReadListTest()
    {
        if (path == "zorvanePage")
            read(push<TZRealTradingController>(router));
        else if (path == "holding")
            read(push<TZChooseSellStockController>());
        else if (path == "callBackPage")
            read(push<TZWithdrawalsController>());
        else
            readToday(path == "detailsToday");
    }
    template <typename List> void read(List *opened)
    {
        list = opened;
        if constexpr (requires { opened->holdings(); })
            rows = opened->holdings();
        else
            rows = opened->rows();
    }
    void readToday(bool deals)
    {
        auto *const today = push<TZDealAndEntrustController>();
        today->showPage(deals);
        read(deals ? today->dealTableView() : today->entrustTableView());
    }
    QVariantMap answerOf(int count) const
    {
        const QVariantList all(count, holding("600001", "5"));
        return path == "zorvanePage" ? tradingPage("1000", "1", all) : succeeded(all);
    }
    /// Pulls, also while an earlier read is on its way.
    FakeTransport::Sent &pull()
    {
        cover()->dismiss();
        list->beginRefreshing();
        EXPECT_TRUE(list->refreshing());
        return http.pending(path);
    }

    const QString path = QString::fromUtf8(GetParam());
    TZBaseTableViewController *list = nullptr;
    GadgetListModel *rows = nullptr;
};

TEST_P(ReadListTest, ALateAnswerReplacesNothingNewerAndEndsNoNewerPull)
{
    FakeTransport::Sent &first = http.pending(path);
    FakeTransport::Sent &second = pull();
    http.answer(first, answerOf(1));
    EXPECT_EQ(rows->rowCount(), 1);
    EXPECT_TRUE(list->refreshing());
    FakeTransport::Sent &third = pull();
    http.answer(third, answerOf(3));
    EXPECT_FALSE(list->refreshing());
    http.answer(second, answerOf(2));
    EXPECT_EQ(rows->rowCount(), 3);
}

TEST_P(ReadListTest, ARefreshAlwaysEnds)
{
    const QList<std::function<void()>> ends{
        [this] { http.answer(path, refused("系统维护")); },
        [this] { http.fail(path, HttpFailure::Connection); },
        [this] { runLoop.advance(15s); },
        [this] { http.answer(path, succeeded("text")); },
    };
    for (const auto &end : ends) {
        pull();
        end();
        EXPECT_FALSE(list->refreshing());
    }
}

TEST_P(ReadListTest, WithoutANetworkTheStoredCopyIsShownOnce)
{
    http.answer(path, answerOf(2));
    settings.setValue(SettingsKeys::networkStatus, false);
    const int sent = http.count();
    list->beginRefreshing();
    EXPECT_FALSE(list->refreshing());
    if (qobject_cast<TodayList *>(list))
        list->beginLoadingMore();
    EXPECT_FALSE(list->loadingMore());
    EXPECT_EQ(rows->rowCount(), 2);
    EXPECT_EQ(http.count(), sent);
}

INSTANTIATE_TEST_SUITE_P(Lists, ReadListTest,
                         testing::Values("zorvanePage", "holding", "callBackPage", "entrustsToday",
                                         "detailsToday"));

class TodayTest : public TradingFixture {
protected:
    TodayTest() { screen = push<TZDealAndEntrustController>(); }
    QVariantList models(int count, int first = 0)
    {
        QVariantList all;
        for (int i = 0; i < count; ++i)
            all.append(entrust(QString::number(first + i)));
        return all;
    }
    static inline const QString entrustsPath = "entrustsToday";
    static inline const QString dealsPath = "detailsToday";
    TZDealAndEntrustController *screen = nullptr;
};

TEST_F(TodayTest, TheDealsAreReadOnTheFirstSwitchOnly)
{
    EXPECT_EQ(http.pending(entrustsPath).fields(), QVariantMap());
    http.answer(entrustsPath, succeeded(models(2)));
    EXPECT_EQ(screen->entrustArr().size(), 2);
    EXPECT_EQ(http.countOf(dealsPath), 0);
    screen->titleBtnClick(10001);
    EXPECT_EQ(http.pending(dealsPath).fields(), (QVariantMap{{"page", "0"}}));
    http.answer(dealsPath, succeeded(QVariantList()));
    EXPECT_TRUE(screen->dealTableView()->noData());
    EXPECT_FALSE(screen->entrustTableView()->noData());
    screen->showPage(0);
    screen->showPage(1);
    EXPECT_EQ(http.countOf(dealsPath), 1);
    EXPECT_EQ(http.countOf(entrustsPath), 1);
}

TEST_F(TodayTest, CoveredItWaitsForNoAnswer)
{
    TodayList *const list = screen->entrustTableView();
    EXPECT_TRUE(list->refreshing());
    cover();
    EXPECT_FALSE(list->refreshing());
    EXPECT_EQ(runLoop.activeTimers(), 0);
    http.answer(entrustsPath, succeeded(models(2)));
    EXPECT_EQ(screen->entrustArr().size(), 2) << "one that comes all the same is shown";
}

TEST_F(TodayTest, FurtherPagesAreAppendedAndARefreshBeginsAnew)
{
    TodayList *const list = screen->entrustTableView();
    http.answer(entrustsPath, succeeded(models(20)));
    list->beginLoadingMore();
    EXPECT_EQ(screen->currentEntructPage(), 1);
    EXPECT_EQ(http.pending(entrustsPath).fields(), (QVariantMap{{"page", "1"}}));
    http.answer(entrustsPath, succeeded(models(3, 19)));
    EXPECT_EQ(screen->entrustArr().size(), 22) << "what a new entrust has shifted is there already";
    EXPECT_EQ(list->rows()->rowCount(), 22);
    EXPECT_FALSE(list->loadingMore());

    list->beginLoadingMore();
    http.fail(entrustsPath, HttpFailure::TimedOut);
    list->beginLoadingMore();
    runLoop.advance(15s);
    EXPECT_FALSE(list->loadingMore());
    list->beginLoadingMore();
    EXPECT_EQ(http.pending(entrustsPath).fields(), (QVariantMap{{"page", "2"}}));
    FakeTransport::Sent &stale = http.last();
    list->beginRefreshing();
    http.answer(entrustsPath, succeeded(models(1)));
    EXPECT_EQ(screen->currentEntructPage(), 0);
    list->beginLoadingMore();
    FakeTransport::Sent &next = http.last();
    http.answer(stale, succeeded(models(5)));
    EXPECT_EQ(screen->entrustArr().size(), 1) << "a page of the list before the refresh";

    cover()->dismiss();
    list->beginLoadingMore();
    EXPECT_EQ(http.last().fields(), (QVariantMap{{"page", "1"}})) << "none is left out";
    http.answer(next, succeeded(models(4, 1)));
    http.answer(http.last(), succeeded(models(4, 5)));
    EXPECT_EQ(screen->entrustArr().size(), 5) << "nor shown twice";
}

TEST_F(TodayTest, ATappedRowPresentsItsDetailWhichItsItemCloses)
{
    http.answer(entrustsPath, succeeded(models(1)));
    screen->selectEntrust(1);
    EXPECT_EQ(window.presented()->count(), 0);
    screen->selectEntrust(0);
    screen->selectEntrust(0);
    ASSERT_EQ(window.presented()->count(), 1);
    EXPECT_EQ(stack().top()->title(), "委托详情");
    EXPECT_EQ(top<TZDealDetailController>()->rows()->at(0).value, "海天传媒");
    stack().top()->leftItemClick();
    EXPECT_EQ(window.presented()->count(), 0);

    screen->showPage(1);
    http.answer(dealsPath, succeeded(models(1)));
    screen->selectDeal(0);
    screen->selectDeal(0);
    ASSERT_EQ(window.presented()->count(), 1);
    EXPECT_EQ(stack().top()->title(), "成交详情");
}

TEST_F(TodayTest, StatesAreReadAsWholeNumbersAndHaveTheirColours)
{
    QVariantList all;
    const QVariantList statuses{0, 1, 2,  3,  4,  5,      6,     7,
                                8, 9, 10, -1, "", "已报", "8.0", "99999999999999999999"};
    for (const QVariant &status : statuses) {
        QVariantMap each = entrust("1");
        each.insert("status", status);
        all.append(each);
    }
    http.answer(entrustsPath, succeeded(all));
    const auto *const rows = static_cast<RowListModel<TodayRow> *>(screen->entrustTableView()->rows());
    QStringList seen;
    for (const TodayRow &row : rows->rows())
        seen.append(row.result + (row.dealt ? "!" : row.waiting ? "?" : ""));
    EXPECT_EQ(seen, (QStringList{"委托中?", "委托中?", "委托中?", "撤单中", "撤单中", "已撤单", "已撤单",
                                 "部分成交!", "已成交!", "废单", "", "", "", "", "已成交!", ""}));
}

TEST_F(TradingFixture, TheTitleDecidesWhichRowsAreShown)
{
    const QVariantMap deal{
        {"stockName", "海天传媒"},    {"stockCode", "600001"},      {"type", "1"},
        {"entrustPrice", "10.00"},    {"businessPrice", "9.99"},    {"businessShares", "300"},
        {"businessMoney", "2997.00"}, {"updatedAt", "not a stamp"}, {"exchangeType", "上海"}};
    const qint64 nineOhFive = QDateTime(QDate(2026, 11, 21), QTime(9, 5)).toMSecsSinceEpoch();
    const QVariantMap entrusted{{"stockName", "东方钢铁"},
                                {"type", "buy"},
                                {"status", "7"},
                                {"entrustShares", "500"},
                                {"errorMsg", "价格超出涨跌幅限制"},
                                {"createdAt", nineOhFive}};
    TZDealDetailController detail("成交详情");
    detail.setDetailsTodayModel(fromDictionary<TZDetailsTodayModel>(deal));
    detail.setEntrustsTodayModel(fromDictionary<TZEntrustsTodayModel>(entrusted));
    EXPECT_EQ(detail.reason(), "");
    EXPECT_EQ(linesOf(detail), (QStringList{"证券名称 海天传媒", "证券代码 600001", "委托类型 买入",
                                            "委托价格 10.00", "成交价格 9.99", "成交数量 300",
                                            "成交总额 2997.00", "成交时间 not a stamp", "市场类别 上海"}));
    for (const QString title : {"委托详情", "别的"}) {
        detail.setTitle(title);
        EXPECT_EQ(linesOf(detail),
                  (QStringList{"证券名称 东方钢铁", "证券代码 ", "委托类型 卖出", "委托价格 ", "委托数量 500",
                               "委托时间 2026-11-21 09:05", "当前状态 部分成交"}));
        EXPECT_TRUE(detail.rows()->at(2).isSell) << "every type but one is a sale";
        EXPECT_EQ(detail.reason(), "价格超出涨跌幅限制");
    }
}
