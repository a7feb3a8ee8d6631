#include "core/shell/KRNavigationController.h"
#include "tests/shell/RealWindow.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZDealAndEntrustController.h"

#include <QQuickItem>
#include <QQuickWindow>

using namespace std::chrono_literals;

/// What the views of trading show, and where.
class TradingViewsTest : public RealWindowTest {
protected:
    template <typename Screen, typename... Arguments> Screen *present(Arguments &&...arguments)
    {
        auto screen = std::make_unique<Screen>(std::forward<Arguments>(arguments)...);
        Screen *const presented = screen.get();
        window.present(std::move(screen));
        return presented;
    }

    /// What is seen with `value` as its `property`; null, and a failed test, when there is none.
    QQuickItem *item(const char *property, const QString &value) const
    {
        QQuickItem *const found = itemIn(*shown->contentItem(), property, value);
        EXPECT_NE(found, nullptr) << value.toStdString();
        return found;
    }

private:
    static QQuickItem *itemIn(QQuickItem &area, const char *property, const QString &value)
    {
        for (QQuickItem *const child : area.childItems()) {
            if (!child->isVisible())
                continue;
            if (child->property(property).toString() == value)
                return child;
            if (QQuickItem *const found = itemIn(*child, property, value))
                return found;
        }
        return nullptr;
    }
};

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
        if (const QQuickItem *const button = item("text", title))
            tap(button->mapToScene(button->boundingRect().center()));
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
