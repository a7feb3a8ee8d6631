#include "core/net/Envelope.h"
#include "trading/screens/OrderBook.h"
#include "trading/screens/TZHandicapView.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <benchmark/benchmark.h>

namespace {
QJsonArray levels(double first, double step)
{
    QJsonArray side;
    for (int level = 0; level < OrderBook::depth; ++level)
        side.append(QJsonObject{{QStringLiteral("price"), QString::number(first + step * level, 'f', 2)},
                                {QStringLiteral("volume"), QString::number(1200 + 700 * level)}});
    return side;
}

HttpResponse answer()
{
    const QJsonObject data{{QStringLiteral("match"), QStringLiteral("12.34")},
                           {QStringLiteral("previousClose"), QStringLiteral("12.20")},
                           {QStringLiteral("buyPankou"), levels(12.33, -0.01)},
                           {QStringLiteral("sellPankou"), levels(12.35, 0.01)}};
    const QJsonObject envelope{{QStringLiteral("success"), true},
                               {QStringLiteral("message"), QString()},
                               {QStringLiteral("data"), data}};
    return {200, "application/json; charset=utf-8", QJsonDocument(envelope).toJson(QJsonDocument::Compact)};
}

void parseFloor(benchmark::State &state)
{
    const HttpResponse response = answer();
    for ([[maybe_unused]] const auto &iteration : state)
        benchmark::DoNotOptimize(QJsonDocument::fromJson(response.body));
}

/// From the bytes to both sides' rows as the view reads them.
void rowsOurs(benchmark::State &state)
{
    const HttpResponse response = answer();
    TZHandicapView buySide;
    TZHandicapView sellSide;
    for ([[maybe_unused]] const auto &iteration : state) {
        const QVariantMap data = decodeEnvelope(response)->value(QStringLiteral("data")).toMap();
        const QList<TZHandicapModel> buy =
            OrderBook::buyLevels(data.value(QStringLiteral("buyPankou")).toList());
        const QList<TZHandicapModel> sell =
            OrderBook::sellLevels(data.value(QStringLiteral("sellPankou")).toList());
        const auto scale = TZHandicapView::Scale::of(buy, sell, 12.20);
        buySide.setLevels(buy, scale);
        sellSide.setLevels(sell, scale);
    }
}
} // namespace

BENCHMARK(parseFloor)->Name("order_book_rows/floor")->Unit(benchmark::kMicrosecond);
BENCHMARK(rowsOurs)->Name("order_book_rows/ours")->Unit(benchmark::kMicrosecond);
