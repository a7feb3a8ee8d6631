// What a view costs from its cause to the drawn frame, beside the same QML with constant data. Frames are
// drawn by the software renderer into an offscreen window when they are asked for.

#include "app/AppRouter.h"
#include "app/Views.h"
#include "core/session/SettingsKeys.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZLeftMenuController.h"
#include "core/shell/TZPlainPageController.h"
#include "tests/support/TestPlatform.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZDealAndEntrustController.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>
#include <benchmark/benchmark.h>

using namespace std::chrono_literals;

namespace {
const QString quotePath = QStringLiteral("timelyInfo/timelyOrderForm");
const QString entrustsPath = QStringLiteral("entrustsToday");
constexpr double scrollStep = 40;

void draw(QQuickWindow &window)
{
    QCoreApplication::sendPostedEvents();
    benchmark::DoNotOptimize(window.grabWindow());
}

QUrl tradingView(const QString &name)
{
    return QUrl(QStringLiteral("qrc:/qt/qml/Zorvane/Trading/%1.qml").arg(name));
}

QUrl constantView(const QString &name)
{
    return QUrl(QStringLiteral("qrc:/qt/qml/Zorvane/Bench/%1.qml").arg(name));
}

/// One QML document in a window of the client's size.
class Picture : public QQuickView {
public:
    explicit Picture(const QUrl &document, const QVariantMap &properties = {})
    {
        engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        setInitialProperties(properties);
        setResizeMode(SizeRootObjectToView);
        resize(390, 844);
        setSource(document);
        if (!rootObject())
            qFatal("%s cannot be shown", qPrintable(document.toString()));
        show();
        draw(*this);
    }
};

/// A platform of fakes and a window model with a stack, for screens that a `Picture` shows.
class World : public PlatformTest {
public:
    World()
    {
        signIn();
        settings.setValue(SettingsKeys::networkStatus, true);
        auto first = std::make_unique<TZPlainPageController>(QString(), QString());
        window.setRoot(
            std::make_unique<KRSideMenu>(std::make_unique<KRNavigationController>(std::move(first)),
                                         std::make_unique<TZLeftMenuController>(router)));
        window.makeKeyAndVisible();
    }

    template <typename Screen, typename... Arguments> Screen *push(Arguments &&...arguments)
    {
        auto screen = std::make_unique<Screen>(std::forward<Arguments>(arguments)...);
        Screen *const pushed = screen.get();
        window.topStack()->push(std::move(screen));
        return pushed;
    }

    using PlatformTest::http;
    using PlatformTest::overlays;
    using PlatformTest::runLoop;
    using PlatformTest::settle;
    KRWindow window;

private:
    AppRouter router{window};

    void TestBody() override {}
};

TZZorvanePageStocksModel holding()
{
    TZZorvanePageStocksModel stock;
    stock.stockCode = QStringLiteral("600001");
    stock.stockName = QStringLiteral("海天传媒");
    stock.availableShares = QStringLiteral("1200");
    return stock;
}

QJsonArray levels(double first, double step, int volume)
{
    QJsonArray side;
    for (int level = 0; level < 10; ++level)
        side.append(QJsonObject{{QStringLiteral("price"), QString::number(first + step * level, 'f', 2)},
                                {QStringLiteral("volume"), QString::number(volume + 700 * level)}});
    return side;
}

/// A quote whose every level differs from that of the other turn.
HttpResponse quote(bool turn)
{
    const double best = turn ? 12.34 : 12.36;
    const QJsonObject data{{QStringLiteral("match"), QString::number(best, 'f', 2)},
                           {QStringLiteral("previousClose"), QStringLiteral("12.30")},
                           {QStringLiteral("buyPankou"), levels(best - 0.01, -0.01, turn ? 1200 : 900)},
                           {QStringLiteral("sellPankou"), levels(best + 0.01, 0.01, turn ? 800 : 1700)}};
    const QJsonObject envelope{{QStringLiteral("success"), true}, {QStringLiteral("data"), data}};
    return {200, "application/json", QJsonDocument(envelope).toJson(QJsonDocument::Compact)};
}

QVariantList manyEntrusts()
{
    QVariantList all;
    for (int i = 0; i < 10'000; ++i)
        all.append(
            QVariantMap{{QStringLiteral("id"), QString::number(i)},
                        {QStringLiteral("stockCode"), QString::number(600'000 + i % 900)},
                        {QStringLiteral("stockName"), QStringLiteral("海天传媒")},
                        {QStringLiteral("type"), QString::number(i % 2 + 1)},
                        {QStringLiteral("status"), QString::number(i % 10)},
                        {QStringLiteral("entrustPrice"), QString::number(10 + i % 300 / 100.0, 'f', 2)},
                        {QStringLiteral("entrustShares"), QString::number(100 + i % 50 * 100)},
                        {QStringLiteral("createdAt"), QString::number(1'795'261'158'653 - 1000LL * i)}});
    return all;
}

QQuickItem *listOf(QQuickItem *from)
{
    if (from->inherits("QQuickListView") && from->property("name").isValid())
        return from;
    const QList<QQuickItem *> children = from->childItems();
    for (QQuickItem *const child : children) {
        if (QQuickItem *const found = listOf(child))
            return found;
    }
    return nullptr;
}

void scroll(benchmark::State &state, QQuickWindow &window, QObject &list)
{
    double place = 0;
    for ([[maybe_unused]] const auto &iteration : state) {
        place += scrollStep;
        list.setProperty("contentY", place);
        draw(window);
    }
}

void scrollFloor(benchmark::State &state)
{
    World world;
    Picture picture(constantView(QStringLiteral("ConstantList")));
    scroll(state, picture, *picture.rootObject());
}

void scrollOurs(benchmark::State &state)
{
    World world;
    auto *const screen = world.push<TZDealAndEntrustController>();
    world.http.answer(entrustsPath, succeeded(manyEntrusts()));
    Picture picture(tradingView(QStringLiteral("TZDealAndEntrustView")),
                    {{QStringLiteral("controller"), QVariant::fromValue(screen)}});
    scroll(state, picture, *listOf(picture.rootObject()));
}

void bookFloor(benchmark::State &state)
{
    World world;
    Picture picture(constantView(QStringLiteral("ConstantBook")));
    bool turn = false;
    for ([[maybe_unused]] const auto &iteration : state) {
        turn = !turn;
        picture.rootObject()->setProperty("turn", turn);
        draw(picture);
    }
}

/// From the bytes of an answer to the drawn book.
void bookOurs(benchmark::State &state)
{
    World world;
    auto *const screen = world.push<TZBuyAndSellController>(OrderSide::Sell, holding());
    Picture picture(tradingView(QStringLiteral("TZBuyAndSellView")),
                    {{QStringLiteral("controller"), QVariant::fromValue(screen)}});
    const HttpResponse quotes[] = {quote(false), quote(true)};
    bool turn = false;
    for ([[maybe_unused]] const auto &iteration : state) {
        state.PauseTiming();
        turn = !turn;
        world.http.sent.clear();
        world.runLoop.advance(3s);
        state.ResumeTiming();
        world.http.answerRaw(world.http.pending(quotePath), quotes[turn ? 1 : 0]);
        draw(picture);
    }
}

void pushFloor(benchmark::State &state)
{
    World world;
    auto *const screen = world.push<TZBuyAndSellController>(OrderSide::Sell, holding());
    Picture picture(constantView(QStringLiteral("Nothing")));
    QQmlComponent component(picture.engine(), tradingView(QStringLiteral("TZBuyAndSellView")));
    for ([[maybe_unused]] const auto &iteration : state) {
        const std::unique_ptr<QObject> view(component.createWithInitialProperties(
            {{QStringLiteral("controller"), QVariant::fromValue(screen)}}));
        auto *const item = qobject_cast<QQuickItem *>(view.get());
        item->setSize(picture.size());
        // Where a screen that slides in begins.
        item->setX(picture.width());
        item->setParentItem(picture.rootObject());
        draw(picture);
    }
}

/// From the tap that opens order entry to its first frame.
void pushOurs(benchmark::State &state)
{
    World world;
    Views views;
    QQuickWindow *const window = views.show(world.window, world.overlays);
    draw(*window);
    KRNavigationController *const stack = world.window.topStack();
    stack->setProperty("animated", false);
    for ([[maybe_unused]] const auto &iteration : state) {
        world.push<TZBuyAndSellController>(OrderSide::Sell, holding());
        draw(*window);
        state.PauseTiming();
        stack->pop();
        world.settle();
        world.http.sent.clear();
        state.ResumeTiming();
    }
}
} // namespace

BENCHMARK(pushFloor)->Name("push_order_entry/floor")->Iterations(30)->Unit(benchmark::kMicrosecond);
BENCHMARK(pushOurs)->Name("push_order_entry/ours")->Iterations(30)->Unit(benchmark::kMicrosecond);
BENCHMARK(bookFloor)->Name("quote_to_redrawn_book/floor")->Unit(benchmark::kMicrosecond);
BENCHMARK(bookOurs)->Name("quote_to_redrawn_book/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(scrollFloor)->Name("scroll_10000_entrusts/floor")->Unit(benchmark::kMicrosecond);
BENCHMARK(scrollOurs)->Name("scroll_10000_entrusts/ours")->Unit(benchmark::kMicrosecond);
