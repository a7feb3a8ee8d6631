#include "trading/views/ChartItem.h"

#include <QPainter>
#include <QPainterPath>

namespace {
constexpr double lineWidth = 1.25;
constexpr double areaOpacity = 0.12;
} // namespace

void ChartItem::setChart(StockChart *chart)
{
    if (drawnChart == chart)
        return;
    if (drawnChart)
        disconnect(drawnChart, nullptr, this, nullptr);
    drawnChart = chart;
    if (chart)
        connect(chart, &StockChart::changed, this, &ChartItem::polishIfSeen);
    resizeChart();
    Q_EMIT chartChanged();
}

void ChartItem::setColours(const QVariantList &colours)
{
    tones = colours;
    palette.clear();
    for (const QVariant &tone : colours)
        palette.append(tone.value<QColor>());
    update();
    Q_EMIT coloursChanged();
}

void ChartItem::setLabelHeight(double height)
{
    if (heightOfLabels == height)
        return;
    heightOfLabels = height;
    resizeChart();
    Q_EMIT labelHeightChanged();
}

void ChartItem::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickPaintedItem::geometryChange(now, before);
    if (now.size() != before.size())
        resizeChart();
}

void ChartItem::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickPaintedItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged)
        polishIfSeen();
}

void ChartItem::resizeChart()
{
    if (drawnChart)
        drawnChart->resize(width(), height(), heightOfLabels);
}

void ChartItem::polishIfSeen()
{
    if (isVisible())
        polish();
}

void ChartItem::updatePolish()
{
    if (drawnChart)
        drawnChart->layOut();
    update();
}

QColor ChartItem::colour(ChartTone tone) const
{
    return palette.value(static_cast<qsizetype>(tone));
}

void ChartItem::paint(QPainter *painter)
{
    if (!drawnChart)
        return;
    const ChartPicture &picture = drawnChart->picture();
    for (const ChartPicture::Line &line : picture.grid) {
        painter->setPen(QPen(colour(line.tone), 1, line.dashed ? Qt::DotLine : Qt::SolidLine));
        const auto whole = [](QPointF point) { return point.toPoint(); };
        painter->drawLine(whole(line.points.constFirst()), whole(line.points.constLast()));
    }
    for (const ChartPicture::Bar &bar : picture.bars)
        paintBar(*painter, bar);
    painter->setRenderHint(QPainter::Antialiasing);
    for (const ChartPicture::Line &line : picture.lines)
        paintLine(*painter, line);
}

void ChartItem::paintBar(QPainter &painter, const ChartPicture::Bar &bar) const
{
    const QPoint upperLeft = bar.place.topLeft().toPoint();
    const QPoint lowerRight = bar.place.bottomRight().toPoint();
    const int width = std::max(1, lowerRight.x() - upperLeft.x());
    const int height = std::max(1, lowerRight.y() - upperLeft.y());
    const QColor paint = colour(bar.tone);
    if (!bar.hollow) {
        painter.fillRect(upperLeft.x(), upperLeft.y(), width, height, paint);
        return;
    }
    painter.fillRect(upperLeft.x(), upperLeft.y(), width, 1, paint);
    painter.fillRect(upperLeft.x(), upperLeft.y() + height - 1, width, 1, paint);
    painter.fillRect(upperLeft.x(), upperLeft.y(), 1, height, paint);
    painter.fillRect(upperLeft.x() + width - 1, upperLeft.y(), 1, height, paint);
}

void ChartItem::paintLine(QPainter &painter, const ChartPicture::Line &line) const
{
    if (line.points.size() < 2)
        return;
    QColor paint = colour(line.tone);
    painter.setPen(
        QPen(paint, lineWidth, line.dashed ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
    painter.drawPolyline(line.points.constData(), static_cast<int>(line.points.size()));
    if (line.areaTo == 0)
        return;
    QPolygonF area(line.points);
    area << QPointF(line.points.constLast().x(), line.areaTo)
         << QPointF(line.points.constFirst().x(), line.areaTo);
    paint.setAlphaF(areaOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(paint);
    painter.drawPolygon(area);
    painter.setBrush(Qt::NoBrush);
}
