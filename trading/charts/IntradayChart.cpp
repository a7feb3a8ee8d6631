#include "trading/charts/IntradayChart.h"

#include "trading/charts/FigureTexts.h"

#include <algorithm>
#include <cmath>

namespace {
/// Of the previous close: a quiet day does not look like a wild one.
constexpr double leastSwing = 0.005;
constexpr double leastSwingYuan = 0.02;
constexpr double headroom = 1.06;
} // namespace

void IntradayChart::setDay(QList<Minute> day, const Reference &dayReference)
{
    minutes = std::move(day);
    reference = dayReference;
    hours = TradingHours::of(minutes);
    touch();
}

void IntradayChart::setPrice(double yuan)
{
    if (minutes.isEmpty() || !Series::isPrice(yuan) || minutes.constLast().price == yuan)
        return;
    minutes.last().price = yuan;
    touch();
}

QString IntradayChart::sentence() const
{
    if (minutes.isEmpty())
        return QStringLiteral("分时图，暂无成交");
    const auto [low, high] = std::minmax_element(
        minutes.begin(), minutes.end(), [](const Minute &a, const Minute &b) { return a.price < b.price; });
    const Minute &latest = minutes.constLast();
    QString text = QStringLiteral("分时图，%1，价格%2")
                       .arg(FigureTexts::clock(latest.minute), FigureTexts::price(latest.price));
    if (latest.average > 0)
        text += QStringLiteral("，均价") + FigureTexts::price(latest.average);
    return text + QStringLiteral("，最高%1，最低%2")
                      .arg(FigureTexts::price(high->price), FigureTexts::price(low->price));
}

PriceScale IntradayChart::scaleOfDay() const
{
    double lowest = reference.previousClose;
    double highest = reference.previousClose;
    const auto include = [&](double price) {
        lowest = lowest > 0 ? std::min(lowest, price) : price;
        highest = std::max(highest, price);
    };
    for (const Minute &minute : minutes) {
        include(minute.price);
        if (minute.average > 0)
            include(minute.average);
    }
    const double middle = reference.previousClose;
    if (middle <= 0)
        return PriceScale{lowest, highest, areas.priceTop, areas.priceBottom}.padded(0.05);
    const double reached = std::max(highest - middle, middle - lowest);
    double swing = std::max({reached * headroom, middle * leastSwing, leastSwingYuan});
    const double limit = std::max(reference.upperLimit - middle, middle - reference.lowerLimit);
    if (reference.upperLimit > middle && reference.lowerLimit > 0)
        swing = std::max(reached, std::min(swing, limit));
    return {middle - swing, middle + swing, areas.priceTop, areas.priceBottom};
}

void IntradayChart::draw(ChartPicture &picture, QList<ChartLabel> &texts)
{
    scale = scaleOfDay();
    drawGrid(picture, texts);
    if (minutes.isEmpty())
        return;
    drawVolumes(picture, texts);
    drawLines(picture);
    drawCost(picture, texts);
}

void IntradayChart::drawGrid(ChartPicture &picture, QList<ChartLabel> &texts) const
{
    const double width = areas.width;
    for (int quarter = 0; quarter <= 4; ++quarter) {
        const double y = areas.priceTop + (areas.priceBottom - areas.priceTop) * quarter / 4;
        const double x = width * quarter / 4;
        picture.grid.append({{{0, y}, {width, y}}, ChartTone::Grid, quarter == 2, 0});
        picture.grid.append({{{x, areas.priceTop}, {x, areas.priceBottom}}, ChartTone::Grid, false, 0});
    }
    for (const TradingHours::Mark &mark : hours.marks()) {
        const int side = mark.position == 0 ? -1 : mark.position == 1 ? 1 : 0;
        texts.append({mark.text, {mark.position * width, areas.timeMiddle}, side, ChartTone::Text});
    }
    if (minutes.isEmpty() && reference.previousClose <= 0)
        return;
    for (const double price : {scale.highest, (scale.highest + scale.lowest) / 2, scale.lowest}) {
        const double inset = price == scale.highest ? 0.5 : price == scale.lowest ? -0.5 : 0;
        const double y = scale.y(price) + inset * areas.labelHeight;
        const bool isMiddle = inset == 0;
        const ChartTone tone = isMiddle ? ChartTone::Text : toneOf(trendOf(price, reference.previousClose));
        texts.append({FigureTexts::price(price), {0, y}, -1, tone});
        if (reference.previousClose > 0)
            texts.append({FigureTexts::rate(price - reference.previousClose, reference.previousClose),
                          {width, y},
                          1,
                          tone});
    }
}

void IntradayChart::drawLines(ChartPicture &picture) const
{
    ChartPicture::Line price{{}, ChartTone::Price, false, areas.priceBottom};
    ChartPicture::Line average{{}, ChartTone::Average, false, 0};
    for (const Minute &minute : minutes) {
        const double x = hours.position(minute.minute) * areas.width;
        price.points.append({x, scale.y(minute.price)});
        if (minute.average > 0)
            average.points.append({x, scale.y(minute.average)});
    }
    picture.lines.append(std::move(price));
    picture.lines.append(std::move(average));
}

void IntradayChart::drawVolumes(ChartPicture &picture, QList<ChartLabel> &texts) const
{
    double largest = 0;
    for (const Minute &minute : minutes)
        largest = std::max(largest, minute.volume);
    double before = reference.previousClose;
    for (const Minute &minute : minutes) {
        const double x = hours.position(minute.minute) * areas.width;
        picture.bars.append(
            volumeBar(x - 0.5, 1, minute.volume, largest, toneOf(trendOf(minute.price, before))));
        before = minute.price;
    }
    labelVolume(largest, texts);
}

int IntradayChart::indexAt(double x) const
{
    const auto distance = [this, x](const Minute &minute) {
        return std::abs(hours.position(minute.minute) * areas.width - x);
    };
    const auto nearest =
        std::min_element(minutes.begin(), minutes.end(),
                         [&](const Minute &a, const Minute &b) { return distance(a) < distance(b); });
    return static_cast<int>(nearest - minutes.begin());
}

double IntradayChart::middleOf(int index) const
{
    return hours.position(minutes.at(index).minute) * areas.width;
}

QString IntradayChart::timeOf(int index) const
{
    return FigureTexts::clock(minutes.at(index).minute);
}

QList<StockFigure> IntradayChart::figuresOf(int index) const
{
    const Minute &minute = minutes.at(index);
    const double base = reference.previousClose;
    return QList<StockFigure>{
               {QStringLiteral("价格"), FigureTexts::price(minute.price), trendOf(minute.price, base)},
               {QStringLiteral("均价"), FigureTexts::price(minute.average), trendOf(minute.average, base)},
           } +
           changeFigures(minute.price, base) +
           QList<StockFigure>{{QStringLiteral("成交量"), FigureTexts::volume(minute.volume), 0}};
}

QList<ChartLabel> IntradayChart::legendOf(int index) const
{
    const auto named = [](const QString &name, double price, ChartTone tone) {
        return ChartLabel{name + u' ' + FigureTexts::price(price), {}, -1, tone};
    };
    return {named(QStringLiteral("价格"), minutes.at(index).price, ChartTone::Price),
            named(QStringLiteral("均价"), minutes.at(index).average, ChartTone::Average)};
}
