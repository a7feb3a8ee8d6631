#include "trading/screens/TZStockDetailController.h"

#include "tests/trading/TradingFixture.h"
#include "trading/screens/TZBuyAndSellController.h"

namespace {
const QString detailPath = "stockDetailPage";
const QString quotePath = "timelyInfo/timelyOrderForm";
constexpr qint64 halfPastNine = 1'795'224'600'000; // 2026-11-21 in Shanghai

QVariantList side(double first, double step)
{
    QVariantList levels;
    for (int i = 0; i < 10; ++i)
        levels.append(QVariantMap{{"price", QString::number(first + step * i, 'f', 2)}, {"volume", "100"}});
    return levels;
}

QVariantMap quoteAt(const QString &match, qint64 time = halfPastNine)
{
    return {{"match", match},
            {"previousClose", "10.00"},
            {"upperLimit", "11.00"},
            {"lowerLimit", "9.00"},
            {"time", QString::number(time)},
            {"buyPankou", side(9.99, -0.01)},
            {"sellPankou", side(10.01, 0.01)}};
}

QVariantMap detailAt(const QString &match)
{
    QVariantMap data = quoteAt(match);
    const QVariantMap prices{{"open", "10.05"}, {"high", "10.20"}, {"low", "9.90"}};
    const QVariantMap minute{{"time", halfPastNine}, {"price", match}, {"average", match}, {"volume", "100"}};
    QVariantMap day{{"day", "20261121"}, {"close", match}};
    day.insert(prices);
    data.insert(prices);
    data.insert({{"volume", "1234500"},
                 {"turnover", "12345000.00"},
                 {"minutes", QVariantList{minute}},
                 {"candles", QVariantList{day}}});
    return data;
}

TZZorvanePageStocksModel stock(const QString &shares = {})
{
    TZZorvanePageStocksModel model;
    model.stockCode = "600001";
    model.stockName = "海天传媒";
    model.shares = shares;
    model.availableShares = shares;
    return model;
}
} // namespace

class StockDetailTest : public TradingFixture {
protected:
    TZStockDetailController *open(const QString &shares = {})
    {
        return push<TZStockDetailController>(stock(shares));
    }
    static QStringList values(TZStockDetailController *page)
    {
        QStringList texts;
        for (const StockFigure &figure : page->figures()->rows())
            texts.append(figure.value);
        return texts;
    }
};

TEST_F(StockDetailTest, ShowsADayAndFollowsItsQuotes)
{
    TZStockDetailController *const page = open();
    EXPECT_EQ(page->price() + page->notice(), "--正在获取行情");
    EXPECT_EQ(http.pending(detailPath).fields().value("stockCode"), "600001");
    http.answer(detailPath, succeeded(detailAt("10.10")));
    EXPECT_EQ(page->notice(), "");
    EXPECT_EQ(page->price(), "10.10");
    EXPECT_EQ(page->change(), "+0.10  +1.00%");
    EXPECT_EQ(values(page), (QStringList{"10.05", "10.20", "1.23万手", "10.00", "9.90", "1234.50万"}));

    http.answer(quotePath, succeeded(quoteAt("9.80")));
    EXPECT_EQ(page->change(), "-0.20  -2.00%");
    EXPECT_EQ(page->trend(), -1);
    EXPECT_EQ(page->figures()->at(4).value, "9.80") << "a new low before the service says so";
    EXPECT_TRUE(page->intraday()->sentence().contains("价格9.80"));
    EXPECT_TRUE(page->candles()->sentence().contains("收9.80"));
    EXPECT_EQ(http.countOf(detailPath), 1);

    runLoop.advance(3s);
    http.answer(quotePath, succeeded(quoteAt("9.85", halfPastNine + 60'000)));
    EXPECT_EQ(http.countOf(detailPath), 2) << "another minute: the charts are read anew";
    EXPECT_FALSE(overlays.isWaiting()) << "silently";
    http.answer(detailPath, refused("x"));
    EXPECT_EQ(page->notice(), "") << "what was there stays";
}

TEST_F(StockDetailTest, BearsAnswersWithLessOrWithGarbage)
{
    TZStockDetailController *const page = open();
    http.answer(detailPath, succeeded(QVariantMap{{"currentPrice", "7.00"},
                                                  {"change", "-0.10"},
                                                  {"changeRate", "-1.41"},
                                                  {"candles", "x"},
                                                  {"minutes", QVariantMap{}},
                                                  {"volume", QVariant()}}));
    EXPECT_EQ(page->price(), "7.00");
    EXPECT_EQ(page->change(), "-0.10  -1.41%");
    EXPECT_EQ(page->trend(), -1);
    EXPECT_EQ(page->notice(), "暂无分时数据");
    page->selectChart(TZStockDetailController::Candles);
    EXPECT_EQ(page->notice(), "暂无历史行情");
    EXPECT_EQ(values(page), QStringList(6, "--"));
    for (const QVariant &data :
         {QVariant("x"), QVariant(QVariantList{1}), QVariant(QVariantMap{{"match", -1}})}) {
        runLoop.advance(3s);
        http.answer(quotePath, succeeded(data));
        EXPECT_EQ(page->price(), "7.00");
    }
    runLoop.advance(60s);
    EXPECT_EQ(http.countOf(detailPath), 1) << "only answered quotes count";
    for (int i = 0; i < 5; ++i) {
        runLoop.advance(3s);
        http.answer(quotePath, succeeded(quoteAt("7.10")));
    }
    EXPECT_EQ(http.countOf(detailPath), 2) << "once a minute, though the charts tell no time";
}

TEST_F(StockDetailTest, ChartsThatCouldNotBeHadAreReadAgain)
{
    TZStockDetailController *const page = open();
    http.fail(detailPath, HttpFailure::TimedOut);
    EXPECT_EQ(page->notice(), "加载失败");
    EXPECT_TRUE(page->canRetry());
    page->noNet()->clickReloadBtn();
    EXPECT_FALSE(page->canRetry());
    http.answer(detailPath, succeeded(detailAt("10.10")));
    EXPECT_FALSE(page->intraday()->isEmpty());
}

TEST_F(StockDetailTest, ALateQuoteIsDroppedAndAnOldOneIsSaidToBeOld)
{
    TZStockDetailController *const page = open();
    FakeTransport::Sent &first = http.pending(quotePath);
    runLoop.advance(3s);
    http.answer(quotePath, succeeded(quoteAt("10.30")));
    http.answer(first, succeeded(quoteAt("10.20")));
    EXPECT_EQ(page->price(), "10.30");
    runLoop.advance(9s);
    EXPECT_FALSE(page->quoteAge()->isStale());
    runLoop.advance(1s);
    EXPECT_TRUE(page->quoteAge()->isStale());
    http.answer(quotePath, succeeded(quoteAt("10.40")));
    EXPECT_FALSE(page->quoteAge()->isStale());
}

TEST_F(StockDetailTest, ASealedBoardAndASuspensionAreNamedAndLevelsThatAreNoneCannotBePicked)
{
    TZStockDetailController *const page = open();
    QVariantMap sealed = quoteAt("11.00");
    sealed.insert("sellPankou", QVariantList(10, QVariantMap{{"price", "0.00"}, {"volume", "0"}}));
    http.answer(quotePath, succeeded(sealed));
    EXPECT_EQ(page->tag(), "涨停");
    const auto row = [](TZHandicapView *view, int index) {
        return static_cast<RowListModel<HandicapRow> *>(view->rows())->at(index);
    };
    EXPECT_EQ(row(page->sellHandicapView(), 0).title, "卖1");
    EXPECT_EQ(row(page->sellHandicapView(), 0).price, "--");
    EXPECT_FALSE(row(page->sellHandicapView(), 0).selectable);
    page->sellHandicapView()->selectHandicap(0);
    EXPECT_EQ(stack().top(), page);
    sealed.insert("suspended", "1");
    runLoop.advance(3s);
    http.answer(quotePath, succeeded(sealed));
    EXPECT_EQ(page->tag(), "停牌");
}

TEST_F(StockDetailTest, ATappedLevelOpensBuyingAtItsPriceAndNothingRunsMeanwhile)
{
    auto *const below = push<TZBuyAndSellController>(OrderSide::Buy);
    TZStockDetailController *const page = open();
    http.answer(quotePath, succeeded(quoteAt("10.00")));
    page->sellHandicapView()->selectHandicap(2);
    auto *const entry = top<TZBuyAndSellController>();
    ASSERT_NE(entry, nullptr);
    EXPECT_TRUE(entry->isBuyType());
    EXPECT_EQ(entry->price(), "10.03");
    EXPECT_EQ(below->price(), "") << "the order entry further down is not meant";
    const int quotes = http.countOf(quotePath);
    runLoop.advance(3s);
    EXPECT_EQ(http.countOf(quotePath), quotes + 1) << "order entry's alone";
    page->buy();
    EXPECT_EQ(stack().top(), entry) << "not while covered";
    stack().pop();
    EXPECT_EQ(stack().top(), page);
    stack().pop();
    stack().pop();
    settle();
    EXPECT_EQ(runLoop.activeTimers(), 0);
}

TEST_F(StockDetailTest, TheHoldingIsReadEachTimeThePageAppears)
{
    TZStockDetailController *const page = open();
    EXPECT_FALSE(page->canSell());
    page->sell();
    EXPECT_EQ(stack().top(), page);
    const auto holding = [](const QString &code, const QString &shares, const QVariant &available) {
        return QVariantMap{
            {"stockCode", code},       {"shares", shares},       {"availableShares", available},
            {"costPerShare", "9.876"}, {"profitMoney", "-5.00"}, {"totalValue", "1"}};
    };
    const auto answer = [&](const QString &code, const QString &shares, const QVariant &available = "100") {
        const QVariantList stocks{holding("1", "9", "9"), holding(code, shares, available)};
        http.answer("zorvanePage", succeeded(QVariantMap{{"stocks", stocks}}));
    };
    answer("600001", "500");
    ASSERT_EQ(page->holdingFigures()->count(), 4);
    EXPECT_EQ(page->holdingFigures()->at(0).value, "500/100");
    EXPECT_EQ(page->holdingFigures()->at(3).trend, -1);
    page->sell();
    auto *const entry = top<TZBuyAndSellController>();
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->totalCount(), 100);
    EXPECT_EQ(entry->stockText(), "海天传媒(600001)");
    stack().pop();
    page->buy();
    EXPECT_EQ(top<TZBuyAndSellController>()->stockText(), "海天传媒(600001)");
    EXPECT_EQ(top<TZBuyAndSellController>()->zorvanePageStocksModel().availableShares, "");
    stack().pop();
    answer("600001", "500", "<null>");
    EXPECT_EQ(page->holdingFigures()->at(0).value, "500");
    page->sell();
    stack().pop();
    answer("600002", "500");
    EXPECT_EQ(page->holdingFigures()->count(), 0) << "all sold";
    EXPECT_FALSE(page->canSell());
}
