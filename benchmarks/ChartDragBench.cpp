#include "tests/support/TestPlatform.h"
#include "trading/charts/CandleChart.h"

#include <QCoreApplication>
#include <QImage>
#include <QMouseEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>
#include <benchmark/benchmark.h>
#include <cmath>

namespace {
constexpr QSize size(390, 320);

QList<Candle> days(int count)
{
    QList<Candle> candles;
    for (int day = 0; day < count; ++day) {
        const double open = 20 + 5 * std::sin(day / 40.0) + std::sin(day * 1.7);
        const double close = open + std::sin(day * 2.3);
        candles.append({20200101 + day, open, std::max(open, close) + 0.2, std::min(open, close) - 0.2, close,
                        1e6 * (2 + std::sin(day * 0.9)), 0});
    }
    return candles;
}

/// The platform of the tests, for the settings that the theme follows.
class QuietPlatform : public PlatformTest {
    void TestBody() override {}
};

/// The chart's view on a window of its own that is drawn when told, in software.
class ChartWindow {
public:
    explicit ChartWindow(StockChart &chart) : window(&control)
    {
        engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        QQmlComponent component(&engine,
                                QUrl(QStringLiteral("qrc:/qt/qml/Zorvane/Trading/StockChartView.qml")));
        view.reset(qobject_cast<QQuickItem *>(
            component.createWithInitialProperties({{QStringLiteral("chart"), QVariant::fromValue(&chart)}})));
        if (!view)
            qFatal("%s", qPrintable(component.errorString()));
        view->setParentItem(window.contentItem());
        view->setSize(size);
        window.setGeometry(QRect({}, size));
        window.contentItem()->setSize(size);
        window.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&picture));
        frame();
    }

    void mouse(QEvent::Type type, double x)
    {
        const QPointF point(x, size.height() / 2.0);
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, point, point, moves ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    }

    void frame()
    {
        control.polishItems();
        control.sync();
        control.render();
    }

private:
    QImage picture{size, QImage::Format_ARGB32_Premultiplied};
    QQuickRenderControl control;
    QQuickWindow window;
    QQmlEngine engine;
    std::unique_ptr<QQuickItem> view;
};

/// A finger going to and fro: each iteration is a move and the frame that shows it.
void drag(benchmark::State &state, int candles, double shown)
{
    const QuietPlatform platform;
    CandleChart chart;
    chart.setCandles(days(candles));
    ChartWindow window(chart);
    chart.zoom(shown / chart.visibleRange().count(), 1);
    // From the middle of the days, where there is room both ways.
    chart.drag(size.width() / 2.0);
    window.mouse(QEvent::MouseButtonPress, 100);
    int step = 0;
    for ([[maybe_unused]] const auto &iteration : state) {
        const int phase = ++step % 40;
        window.mouse(QEvent::MouseMove, 120 + 6 * std::min(phase, 40 - phase));
        window.frame();
    }
    window.mouse(QEvent::MouseButtonRelease, 100);
}
} // namespace

// The floor: the same view and moves with nothing to draw.
BENCHMARK_CAPTURE(drag, , 0, 60)
    ->Name("chart_drag_frame/60_of_1000_days/floor")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drag, , 1000, 60)
    ->Name("chart_drag_frame/60_of_1000_days/ours")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drag, , 0, 900)
    ->Name("chart_drag_frame/900_of_1000_days/floor")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drag, , 1000, 900)
    ->Name("chart_drag_frame/900_of_1000_days/ours")
    ->Unit(benchmark::kMillisecond);
