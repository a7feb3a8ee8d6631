#include "trading/charts/StockChart.h"

#include "trading/charts/FigureTexts.h"
#include "trading/charts/Series.h"

#include <algorithm>

namespace {
constexpr double volumePart = 0.25;
/// A steady number of labels keeps the view's texts in being while the chart is dragged.
constexpr qsizetype labelRoom = 20;
} // namespace

int trendOf(double price, double base)
{
    return price > 0 && base > 0 ? (price > base) - (price < base) : 0;
}

ChartTone toneOf(int trend)
{
    return trend > 0 ? ChartTone::Rise : trend < 0 ? ChartTone::Fall : ChartTone::Flat;
}

void StockChart::resize(double width, double height, double labelHeight)
{
    size = {width, height};
    areas.width = width;
    areas.labelHeight = labelHeight;
    areas.volumeBottom = height;
    areas.volumeTop = height * (1 - volumePart) + labelHeight;
    areas.timeMiddle = height * (1 - volumePart) - labelHeight / 2;
    areas.priceTop = labelHeight;
    areas.priceBottom = areas.timeMiddle - labelHeight / 2;
    touch();
}

void StockChart::touch()
{
    stale = true;
    Q_EMIT changed();
}

void StockChart::layOut()
{
    if (!stale)
        return;
    stale = false;
    drawn = {};
    QList<ChartLabel> texts;
    if (cross && count() == 0)
        hideCross();
    else if (cross)
        cross->index = std::min(cross->index, count() - 1);
    if (areas.areDrawable())
        draw(drawn, texts);
    while (texts.size() < labelRoom)
        texts.append(ChartLabel());
    labelRows.setRows(std::move(texts));
    if (cross)
        showCross();
    else
        showLegend();
    Q_EMIT laidOut();
}

void StockChart::setCost(double yuan)
{
    cost = Series::isPrice(yuan) ? yuan : 0;
    touch();
}

void StockChart::drawCost(ChartPicture &picture, QList<ChartLabel> &texts) const
{
    if (cost == 0 || !scale.holds(cost))
        return;
    const double y = scale.y(cost);
    picture.lines.append({{{0, y}, {areas.width, y}}, ChartTone::Cost, true, 0});
    const bool roomAbove = y - areas.labelHeight > areas.priceTop;
    texts.append({QStringLiteral("成本 ") + FigureTexts::price(cost),
                  {areas.width, y + (roomAbove ? -0.5 : 0.5) * areas.labelHeight},
                  1,
                  ChartTone::Cost});
}

ChartPicture::Bar StockChart::volumeBar(double left, double width, double volume, double largest,
                                        ChartTone tone) const
{
    const double height = largest > 0 ? volume / largest * (areas.volumeBottom - areas.volumeTop) : 0;
    return {{left, areas.volumeBottom - height, width, height}, tone, false};
}

void StockChart::labelVolume(double largest, QList<ChartLabel> &texts) const
{
    if (largest > 0)
        texts.append({FigureTexts::volume(largest),
                      {0, areas.volumeTop - areas.labelHeight / 2},
                      -1,
                      ChartTone::Text});
}

QList<StockFigure> StockChart::changeFigures(double price, double base)
{
    const int trend = trendOf(price, base);
    const bool compared = base > 0;
    return {
        {QStringLiteral("涨跌"), compared ? FigureTexts::change(price - base) : FigureTexts::none, trend},
        {QStringLiteral("涨幅"), compared ? FigureTexts::rate(price - base, base) : FigureTexts::none, trend},
    };
}

// The cross-hair.

void StockChart::pointAt(double x, double y)
{
    layOut();
    if (count() == 0 || !areas.areDrawable())
        return;
    const bool besidePrices = y < areas.priceTop || y > areas.priceBottom;
    cross = Cross{indexAt(x), besidePrices ? std::nullopt : std::optional(y)};
    showCross();
}

void StockChart::step(int by)
{
    if (count() == 0)
        return;
    const int index = cross ? cross->index + by : count() - 1;
    cross = Cross{std::clamp(index, 0, count() - 1), std::nullopt};
    reveal(cross->index);
    layOut();
    showCross();
}

bool StockChart::pointAway()
{
    const bool was = isCrossed();
    hideCross();
    return was;
}

void StockChart::hideCross()
{
    if (!cross)
        return;
    cross.reset();
    showLegend();
    Q_EMIT crossHairChanged();
}

void StockChart::showCross()
{
    const double y = cross->y.value_or(scale.y(priceOf(cross->index)));
    shownCross = {std::clamp(middleOf(cross->index), 0.0, areas.width), y};
    readOutRows.setRows(figuresOf(cross->index));
    showLegend();
    Q_EMIT crossHairChanged();
}

void StockChart::showLegend()
{
    const int told = cross ? cross->index : count() - 1;
    legendRows.setRows(told < 0 ? QList<ChartLabel>() : legendOf(told));
}

QString StockChart::crossPrice() const
{
    return cross ? FigureTexts::price(scale.price(shownCross.y())) : QString();
}

QString StockChart::crossTime() const
{
    return cross ? timeOf(cross->index) : QString();
}

QString StockChart::readOutSentence() const
{
    if (!cross)
        return {};
    QStringList parts{timeOf(cross->index)};
    for (const StockFigure &figure : readOutRows.rows())
        parts.append(figure.label + figure.value);
    return parts.join(u'，');
}
