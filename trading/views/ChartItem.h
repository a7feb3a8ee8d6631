#pragma once

#include "trading/charts/StockChart.h"

#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>

/// Draws a chart's rectangles and lines; its texts and cross-hair are items of the view.
///
/// Painted, and not made of scene-graph geometry, on purpose: the software renderer draws no custom geometry
/// and goes through thousands of rectangle nodes one by one, while painting a thousand candles takes a small
/// part of a frame, and one way of drawing gives the same smooth lines on every renderer.
class ChartItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(StockChart *chart READ chart WRITE setChart NOTIFY chartChanged)
    /// In the order of ChartTone.
    Q_PROPERTY(QVariantList colours READ colours WRITE setColours NOTIFY coloursChanged)
    Q_PROPERTY(double labelHeight READ labelHeight WRITE setLabelHeight NOTIFY labelHeightChanged)
public:
    using QQuickPaintedItem::QQuickPaintedItem;

    StockChart *chart() const { return drawnChart; }
    void setChart(StockChart *chart);
    QVariantList colours() const { return tones; }
    void setColours(const QVariantList &colours);
    double labelHeight() const { return heightOfLabels; }
    void setLabelHeight(double height);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void chartChanged();
    void coloursChanged();
    void labelHeightChanged();

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void updatePolish() override;

private:
    void resizeChart();
    void polishIfSeen();
    QColor colour(ChartTone tone) const;
    void paintBar(QPainter &painter, const ChartPicture::Bar &bar) const;
    void paintLine(QPainter &painter, const ChartPicture::Line &line) const;

    QPointer<StockChart> drawnChart;
    QVariantList tones;
    QList<QColor> palette;
    double heightOfLabels = 0;
};
