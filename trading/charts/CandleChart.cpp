#include "trading/charts/CandleChart.h"

#include "trading/charts/FigureTexts.h"
#include "trading/charts/MovingAverage.h"

#include <algorithm>
#include <cmath>

namespace {
/// Of the width that a candle has to itself.
constexpr double bodyPart = 0.72;
/// A narrower body has no inside.
constexpr double narrowestHollow = 3;
constexpr double leader = 14;
constexpr int priceLabels = 4;
} // namespace

void CandleChart::setCandles(QList<Candle> days)
{
    candles = std::move(days);
    range.setTotal(count());
    average();
    touch();
}

void CandleChart::setPrice(double yuan, int day)
{
    if (candles.isEmpty() || candles.constLast().day != day || candles.constLast().close == yuan ||
        !Series::isPrice(yuan))
        return;
    Candle &today = candles.last();
    today.close = yuan;
    today.high = std::max(today.high, yuan);
    today.low = std::min(today.low, yuan);
    average();
    touch();
}

void CandleChart::average()
{
    for (Average &line : averages)
        line.means = movingAverage(candles, line.days);
}

QString CandleChart::sentence() const
{
    if (candles.isEmpty())
        return QStringLiteral("日K线，暂无数据");
    const Candle &latest = candles.constLast();
    return QStringLiteral("日K线，共%1日，%2，开%3，高%4，低%5，收%6")
        .arg(QString::number(count()), FigureTexts::day(latest.day), FigureTexts::price(latest.open),
             FigureTexts::price(latest.high), FigureTexts::price(latest.low),
             FigureTexts::price(latest.close));
}

// What is in sight.

void CandleChart::drag(double distance)
{
    if (!areas.areDrawable())
        return;
    range.pan(-distance / slotWidth());
    touch();
}

void CandleChart::zoom(double factor, double x)
{
    if (!areas.areDrawable() || !(factor > 0))
        return;
    range.zoom(factor, std::clamp(x / areas.width, 0.0, 1.0));
    touch();
}

void CandleChart::reveal(int index)
{
    range.reveal(index);
    touch();
}

CandleChart::Span CandleChart::visible() const
{
    const int first = static_cast<int>(std::floor(range.first()));
    const int end = static_cast<int>(std::ceil(range.first() + range.count()));
    return {std::clamp(first, 0, count()), std::clamp(end, 0, count())};
}

int CandleChart::indexAt(double x) const
{
    const int index = static_cast<int>(std::floor(range.first() + x / slotWidth()));
    const Span span = visible();
    return std::clamp(index, span.first, std::max(span.first, span.end - 1));
}

double CandleChart::middleOf(int index) const
{
    return (index + 0.5 - range.first()) * slotWidth();
}

double CandleChart::bodyWidth() const
{
    // Odd, so that the wick is in the middle.
    const int width = static_cast<int>(slotWidth() * bodyPart);
    return std::max(1, width - (width + 1) % 2);
}

int CandleChart::trendOfDay(int index) const
{
    const Candle &candle = candles.at(index);
    const int ownTrend = trendOf(candle.close, candle.open);
    return ownTrend != 0 || index == 0 ? ownTrend : trendOf(candle.close, candles.at(index - 1).close);
}

PriceScale CandleChart::scaleOf(const Span &span) const
{
    PriceScale prices{candles.at(span.first).low, candles.at(span.first).high, areas.priceTop,
                      areas.priceBottom};
    for (int i = span.first; i < span.end; ++i) {
        prices.lowest = std::min(prices.lowest, candles.at(i).low);
        prices.highest = std::max(prices.highest, candles.at(i).high);
        for (const Average &line : averages) {
            if (const double mean = line.means.at(i); mean > 0) {
                prices.lowest = std::min(prices.lowest, mean);
                prices.highest = std::max(prices.highest, mean);
            }
        }
    }
    return prices.padded(0.06);
}

// The picture.

void CandleChart::draw(ChartPicture &picture, QList<ChartLabel> &texts)
{
    const Span span = visible();
    if (span.first >= span.end)
        return;
    scale = scaleOf(span);
    drawGrid(span, picture, texts);
    drawCandles(span, picture, texts);
    drawAverages(span, picture);
    markExtremes(span, picture, texts);
    drawCost(picture, texts);
}

void CandleChart::drawGrid(const Span &span, ChartPicture &picture, QList<ChartLabel> &texts) const
{
    for (const double y : {areas.priceTop, areas.priceBottom})
        picture.grid.append({{{0, y}, {areas.width, y}}, ChartTone::Grid, false, 0});
    for (const double price : scale.roundPrices(priceLabels)) {
        const double y = scale.y(price);
        picture.grid.append({{{0, y}, {areas.width, y}}, ChartTone::Grid, true, 0});
        const double room = areas.labelHeight;
        if (y - room > areas.priceTop)
            texts.append({FigureTexts::price(price), {0, y - room / 2}, -1, ChartTone::Text});
    }
    const int middle = (span.first + span.end - 1) / 2;
    texts.append({FigureTexts::day(candles.at(span.first).day), {0, areas.timeMiddle}, -1, ChartTone::Text});
    // Few days at the left leave no room for more dates.
    if (middleOf(span.end - 1) < areas.width * 0.8)
        return;
    texts.append(
        {FigureTexts::day(candles.at(middle).day), {middleOf(middle), areas.timeMiddle}, 0, ChartTone::Text});
    texts.append({FigureTexts::day(candles.at(span.end - 1).day),
                  {areas.width, areas.timeMiddle},
                  1,
                  ChartTone::Text});
}

void CandleChart::drawCandles(const Span &span, ChartPicture &picture, QList<ChartLabel> &texts) const
{
    double largest = 0;
    for (int i = span.first; i < span.end; ++i)
        largest = std::max(largest, candles.at(i).volume);
    const double width = bodyWidth();
    picture.bars.reserve(4 * static_cast<qsizetype>(span.end - span.first));
    for (int i = span.first; i < span.end; ++i) {
        const Candle &candle = candles.at(i);
        const int trend = trendOfDay(i);
        const ChartTone tone = toneOf(trend);
        const bool hollow = trend > 0 && width >= narrowestHollow;
        const double left = std::round(middleOf(i) - width / 2);
        const double bodyTop = scale.y(std::max(candle.open, candle.close));
        const double bodyBottom = scale.y(std::min(candle.open, candle.close));
        const auto wick = [&](double from, double to) {
            if (to > from)
                picture.bars.append({{left + (width - 1) / 2, from, 1, to - from}, tone, false});
        };
        wick(scale.y(candle.high), bodyTop);
        wick(bodyBottom, scale.y(candle.low));
        const double body = std::max(1.0, bodyBottom - bodyTop);
        picture.bars.append({{left, bodyTop, width, body}, tone, hollow && body >= narrowestHollow});
        ChartPicture::Bar volume = volumeBar(left, width, candle.volume, largest, tone);
        volume.hollow = hollow && volume.place.height() >= narrowestHollow;
        picture.bars.append(volume);
    }
    labelVolume(largest, texts);
}

void CandleChart::drawAverages(const Span &span, ChartPicture &picture) const
{
    // One point a pixel is enough.
    const int step = std::max(1, static_cast<int>(1 / slotWidth()));
    for (const Average &line : averages) {
        ChartPicture::Line points{{}, line.tone, false, 0};
        for (int i = std::max(0, span.first - 1); i < std::min(count(), span.end + 1); i += step) {
            if (line.means.at(i) > 0)
                points.points.append({middleOf(i), scale.y(line.means.at(i))});
        }
        picture.lines.append(std::move(points));
    }
}

void CandleChart::markExtremes(const Span &span, ChartPicture &picture, QList<ChartLabel> &texts) const
{
    int highest = span.first;
    int lowest = span.first;
    for (int i = span.first; i < span.end; ++i) {
        if (candles.at(i).high > candles.at(highest).high)
            highest = i;
        if (candles.at(i).low < candles.at(lowest).low)
            lowest = i;
    }
    const auto mark = [&](int index, double price) {
        const double x = middleOf(index);
        const double y = scale.y(price);
        const int away = x < areas.width / 2 ? 1 : -1;
        picture.lines.append({{{x, y}, {x + away * leader, y}}, ChartTone::Text, false, 0});
        texts.append({FigureTexts::price(price), {x + away * (leader + 2), y}, -away, ChartTone::Text});
    };
    mark(highest, candles.at(highest).high);
    mark(lowest, candles.at(lowest).low);
}

QString CandleChart::timeOf(int index) const
{
    return FigureTexts::day(candles.at(index).day);
}

QList<StockFigure> CandleChart::figuresOf(int index) const
{
    const Candle &candle = candles.at(index);
    const double base = index > 0 ? candles.at(index - 1).close : 0;
    const auto price = [base](const QString &label, double yuan) {
        return StockFigure{label, FigureTexts::price(yuan), trendOf(yuan, base)};
    };
    return QList<StockFigure>{
               price(QStringLiteral("开"), candle.open),
               price(QStringLiteral("高"), candle.high),
               price(QStringLiteral("低"), candle.low),
               price(QStringLiteral("收"), candle.close),
           } +
           changeFigures(candle.close, base) +
           QList<StockFigure>{{QStringLiteral("成交量"), FigureTexts::volume(candle.volume), 0}};
}

QList<ChartLabel> CandleChart::legendOf(int index) const
{
    QList<ChartLabel> texts;
    for (const Average &line : averages)
        texts.append({QStringLiteral("MA%1 %2").arg(QString::number(line.days),
                                                    FigureTexts::price(line.means.at(index))),
                      {},
                      -1,
                      line.tone});
    return texts;
}
