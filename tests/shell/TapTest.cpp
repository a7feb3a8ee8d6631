#include "core/session/SettingsKeys.h"
#include "core/shell/KRNavigationController.h"
#include "core/util/Service.h"
#include "tests/shell/RealWindow.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZDealAndEntrustController.h"
#include "trading/screens/TZDealDetailController.h"
#include "trading/screens/TZRealTradingController.h"
#include "trading/screens/TZStockDetailController.h"
#include "trading/screens/TZWithdrawalsController.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace std::chrono_literals;

namespace {
/// A list that can be tapped: its screen, where its rows come from, and how that of the letter B is told.
struct TappedList {
    const char *name;
    std::function<std::unique_ptr<KRBaseController>(Router &)> make;
    const char *path;
    const char *property;
    const char *second;
    /// What is tapped: the whole row, or a button in it.
    const char *button;
};

/// What comes while the second of the rows ABC is pressed.
struct Change {
    const char *name;
    const char *rows;
    bool keepsB;
};

/// Entrusts, deals and holdings in one; each goes by a letter.
QVariantList rowsOf(const QString &letters)
{
    QVariantList rows;
    for (const QChar letter : letters)
        rows.append(QVariantMap{{"id", QString(letter)},
                                {"entrustNo", QString(letter)},
                                {"stockCode", QString(letter)},
                                {"stockName", QString(letter)},
                                {"type", "1"},
                                {"status", "2"},
                                {"shares", "100"}});
    return rows;
}

template <typename Screen> std::unique_ptr<KRBaseController> make(Router &)
{
    return std::make_unique<Screen>();
}
} // namespace

class TappedListTest : public RealWindowTest,
                       public testing::WithParamInterface<std::tuple<TappedList, Change>> {
protected:
    TappedListTest() { settings.setValue(SettingsKeys::networkStatus, true); }

    void answer(const QString &letters)
    {
        const QVariantList rows = rowsOf(letters);
        const QString path = std::get<0>(GetParam()).path;
        http.answer(path, succeeded(path == "zorvanePage" ? QVariant(QVariantMap{{"stocks", rows}}) : rows));
        draw();
    }
    /// The letter of what was acted on, "" for nothing.
    QString actedOn()
    {
        runLoop.advance(500ms);
        const QString cancel = QStringLiteral("entrust/createCancel");
        if (http.hasPending(cancel))
            return http.pending(cancel).fields().value("tradeEntrustNo").toString();
        KRBaseController *const top = window.topStack()->top();
        if (const auto *const stock = dynamic_cast<TZStockDetailController *>(top))
            return stock->stockCode();
        if (const auto *const order = dynamic_cast<TZBuyAndSellController *>(top))
            return order->zorvanePageStocksModel().stockCode;
        auto *const detail = dynamic_cast<TZDealDetailController *>(top);
        const auto rows = detail ? detail->rows()->rows() : QList<DetailRow>();
        return rows.isEmpty() ? QString() : rows.first().value;
    }
};

TEST_P(TappedListTest, ATapActsOnTheRowItBeganOnOrOnNone)
{
    const auto &[list, change] = GetParam();
    window.present(list.make(router));
    pass();
    runLoop.advance(250ms);
    answer("ABC");
    strike(Qt::Key_F5);
    // As of a read that goes on when another, or a cancellation, has ended the indicator.
    Service::hideWaitingProgressView();
    draw();
    const QQuickItem *const row = item(list.property, list.second);
    const QPointF place = middleOf(list.button ? item("text", list.button, row) : row);
    press(place);
    answer(change.rows);
    const QQuickItem *const first =
        item(list.property, QString(list.second).replace(u'B', QLatin1Char(change.rows[0])));
    const QQuickItem *const view = first->parentItem()->parentItem();
    EXPECT_GE(first->mapToItem(view, QPointF()).y(), 0) << "what came is in sight";
    release(place);
    EXPECT_EQ(actedOn(), change.keepsB ? "B" : "");
}

INSTANTIATE_TEST_SUITE_P(
    Client, TappedListTest,
    testing::Combine(
        testing::Values(
            TappedList{"CancelOrder", make<TZWithdrawalsController>, "callBackPage", "stock", "B(B)", "撤单"},
            TappedList{"Entrusts", make<TZDealAndEntrustController>, "entrustsToday", "stock", "B(B)",
                       nullptr},
            TappedList{"Holdings",
                       [](Router &router) { return std::make_unique<TZRealTradingController>(router); },
                       "zorvanePage", "code", "B", nullptr}),
        testing::Values(Change{"OneGoneAbove", "BC", true}, Change{"OneMoreAbove", "DABC", true},
                        Change{"AllOneFurther", "DAB", true}, Change{"BroughtForward", "BCA", true},
                        Change{"AnotherInItsPlace", "ADC", false}, Change{"AllOthers", "DEF", false})),
    [](const auto &test) {
        return std::string(std::get<0>(test.param).name) + std::get<1>(test.param).name;
    });

/// A stock's order entry, used with the fingers.
class FingersTest : public RealWindowTest {
protected:
    FingersTest()
    {
        settings.setValue(SettingsKeys::networkStatus, true);
        TZZorvanePageStocksModel stock;
        stock.stockCode = QStringLiteral("600001");
        stock.stockName = QStringLiteral("海天传媒");
        screen = present<TZBuyAndSellController>(OrderSide::Buy, stock);
        quote(10);
        http.answer(QStringLiteral("buyPage"), succeeded("10000.00"));
        screen->editPrice(QStringLiteral("12.34"));
        runLoop.advance(100ms);
        pass();
    }

    /// Prices of 1 for the best levels to `levels` for the worst, of the buy side above 100.
    void quote(int levels)
    {
        QVariantList buys;
        QVariantList sells;
        for (int level = 1; level <= levels; ++level) {
            buys.append(QVariantMap{{"price", QString::number(100 + level)}, {"volume", "100"}});
            sells.append(QVariantMap{{"price", QString::number(level)}, {"volume", "100"}});
        }
        http.answer(QStringLiteral("timelyInfo/timelyOrderForm"),
                    succeeded(QVariantMap{{"match", "12.34"}, {"buyPankou", buys}, {"sellPankou", sells}}));
    }
    QPoint button(const QString &title) const { return middleOf(item("text", title)).toPoint(); }

    TZBuyAndSellController *screen = nullptr;
    const std::unique_ptr<QPointingDevice> touch{QTest::createTouchDevice()};
};

TEST_F(FingersTest, OfTwoAtOnceOneActs)
{
    QTest::touchEvent(shown, touch.get()).press(0, button("1/4")).press(1, button("1/2"));
    QTest::touchEvent(shown, touch.get()).release(0, button("1/4")).release(1, button("1/2"));
    EXPECT_EQ(screen->quantity(), "200");
    QTest::touchEvent(shown, touch.get()).press(0, button("1/2"));
    QTest::touchEvent(shown, touch.get()).stationary(0).press(1, button("全部"));
    QTest::touchEvent(shown, touch.get()).stationary(0).release(1, button("全部"));
    EXPECT_EQ(screen->quantity(), "200") << "the second does nothing while the first is down";
    QTest::touchEvent(shown, touch.get()).release(0, button("1/2"));
    EXPECT_EQ(screen->quantity(), "400");
}

TEST_F(FingersTest, ASecondTapRightAfterAnotherActsToo)
{
    for (const auto &[title, quantity] : {std::pair("1/4", "200"), std::pair("1/2", "400")}) {
        QTest::touchEvent(shown, touch.get()).press(0, button(title));
        QTest::touchEvent(shown, touch.get()).release(0, button(title));
        EXPECT_EQ(screen->quantity(), quantity);
    }
    screen->editQuantity({});
    QTest::touchEvent(shown, touch.get()).press(0, button("1/2"));
    QTest::touchEvent(shown, touch.get()).release(0, button("1/2"));
    EXPECT_EQ(screen->quantity(), "400") << "on the same place";
}

TEST_F(FingersTest, ALevelOfTheBookKeepsTheFingerWhenTheBookChanges)
{
    const QPointF third = middleOf(item("title", QStringLiteral("买3")));
    for (const int levels : {5, 10, 3}) {
        screen->editPrice({});
        press(third);
        runLoop.advance(3s);
        quote(levels);
        draw();
        release(third);
        EXPECT_EQ(screen->price(), "103") << levels;
    }
    screen->editPrice({});
    press(third);
    runLoop.advance(3s);
    quote(2);
    draw();
    release(third);
    EXPECT_EQ(screen->price(), "") << "it is gone";
}
