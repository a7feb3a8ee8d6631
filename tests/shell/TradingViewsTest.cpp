#include "tests/shell/RealWindow.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZDealAndEntrustController.h"

#include <QQuickItem>

using namespace std::chrono_literals;

/// What the views of trading show, and where.
using TradingViewsTest = RealWindowTest;

TEST_F(TradingViewsTest, SellLevelsStandAboveBuyLevelsAndEachQuickButtonWritesItsFraction)
{
    TZZorvanePageStocksModel stock;
    stock.stockCode = QStringLiteral("600001");
    stock.stockName = QStringLiteral("海天传媒");
    auto *const screen = present<TZBuyAndSellController>(OrderSide::Buy, stock);
    const QVariantList levels(10, QVariantMap{{"price", "12.34"}, {"volume", "100"}});
    http.answer(QStringLiteral("timelyInfo/timelyOrderForm"),
                succeeded(QVariantMap{{"match", "12.34"}, {"buyPankou", levels}, {"sellPankou", levels}}));
    http.answer(QStringLiteral("buyPage"), succeeded("10000.00"));
    screen->editPrice(QStringLiteral("12.34"));
    runLoop.advance(100ms);
    pass();

    const auto height = [this](const QString &title) {
        const QQuickItem *const level = item("title", title);
        return level ? level->mapToScene({}).y() : -1;
    };
    QList<qreal> heights;
    for (const QString title : {"卖5", "卖1", "卖10", "卖6", "买1", "买10"})
        heights.append(height(title));
    EXPECT_TRUE(std::is_sorted(heights.begin(), heights.end()));
    item("text", QStringLiteral("level2 盘口"));

    for (const auto &[title, quantity] :
         {std::pair("1/4", "200"), std::pair("1/2", "400"), std::pair("全部", "800")}) {
        tap(middleOf(item("text", title)));
        EXPECT_EQ(screen->quantity(), quantity) << title;
    }
}

TEST_F(TradingViewsTest, DealtAndWaitingEntrustsHaveTheirColours)
{
    present<TZDealAndEntrustController>();
    QVariantList entrusts;
    for (const QString status : {"2", "5", "7", "8"})
        entrusts.append(QVariantMap{{"id", status}, {"type", "1"}, {"status", status}});
    http.answer(QStringLiteral("entrustsToday"), succeeded(entrusts));
    pass();
    for (const auto &[text, colour] :
         {std::pair("委托中", "#60b6ff"), std::pair("部分成交", "#ff6c70"), std::pair("已成交", "#ff6c70")}) {
        const QQuickItem *const label = item("text", text);
        EXPECT_EQ(label ? label->property("color").toString() : QString(), colour) << text;
    }
}
