#pragma once

#include "trading/charts/StockChart.h"
#include "trading/charts/TradingHours.h"

/// The running day minute by minute: price, average price, volume; yesterday's close in the middle.
class IntradayChart : public StockChart {
    Q_OBJECT
public:
    using StockChart::StockChart;

    /// What the day is measured against, in yuan; 0 where unknown.
    struct Reference {
        double previousClose = 0;
        double upperLimit = 0;
        double lowerLimit = 0;
    };
    void setDay(QList<Minute> minutes, const Reference &reference);
    /// The latest price; moves the end of the line.
    void setPrice(double yuan);

    bool isEmpty() const override { return minutes.isEmpty(); }
    QString sentence() const override;

protected:
    void draw(ChartPicture &picture, QList<ChartLabel> &texts) override;
    int count() const override { return static_cast<int>(minutes.size()); }
    int indexAt(double x) const override;
    double middleOf(int index) const override;
    double priceOf(int index) const override { return minutes.at(index).price; }
    QString timeOf(int index) const override;
    QList<StockFigure> figuresOf(int index) const override;
    QList<ChartLabel> legendOf(int index) const override;

private:
    PriceScale scaleOfDay() const;
    void drawGrid(ChartPicture &picture, QList<ChartLabel> &texts) const;
    void drawLines(ChartPicture &picture) const;
    void drawVolumes(ChartPicture &picture, QList<ChartLabel> &texts) const;

    QList<Minute> minutes;
    Reference reference;
    TradingHours hours;
};
