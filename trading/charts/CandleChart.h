#pragma once

#include "trading/charts/Series.h"
#include "trading/charts/StockChart.h"
#include "trading/charts/VisibleRange.h"

#include <array>

/// The days as candles (hollow for a rise, filled for a fall) with three moving averages and the volumes;
/// dragged through time and zoomed.
class CandleChart : public StockChart {
    Q_OBJECT
public:
    using StockChart::StockChart;

    void setCandles(QList<Candle> candles);
    /// The latest price of `day` (20260105), which is ignored when that day has no candle yet.
    void setPrice(double yuan, int day);

    bool isDraggable() const override { return true; }
    bool isEmpty() const override { return candles.isEmpty(); }
    QString sentence() const override;
    void drag(double distance) override;
    void zoom(double factor, double x) override;
    const VisibleRange &visibleRange() const { return range; }

protected:
    void draw(ChartPicture &picture, QList<ChartLabel> &texts) override;
    int count() const override { return static_cast<int>(candles.size()); }
    int indexAt(double x) const override;
    double middleOf(int index) const override;
    double priceOf(int index) const override { return candles.at(index).close; }
    QString timeOf(int index) const override;
    QList<StockFigure> figuresOf(int index) const override;
    QList<ChartLabel> legendOf(int index) const override;
    void reveal(int index) override;

private:
    struct Average {
        int days;
        ChartTone tone;
        QList<double> means;
    };
    /// The candles that are at least partly in sight: first and behind the last.
    struct Span {
        int first = 0;
        int end = 0;
    };
    Span visible() const;
    double slotWidth() const { return areas.width / range.count(); }
    double bodyWidth() const;
    int trendOfDay(int index) const;
    void average();
    PriceScale scaleOf(const Span &span) const;
    void drawGrid(const Span &span, ChartPicture &picture, QList<ChartLabel> &texts) const;
    void drawCandles(const Span &span, ChartPicture &picture, QList<ChartLabel> &texts) const;
    void drawAverages(const Span &span, ChartPicture &picture) const;
    void markExtremes(const Span &span, ChartPicture &picture, QList<ChartLabel> &texts) const;

    QList<Candle> candles;
    std::array<Average, 3> averages{
        {{5, ChartTone::Ma5, {}}, {10, ChartTone::Ma10, {}}, {20, ChartTone::Ma20, {}}}};
    VisibleRange range;
};
