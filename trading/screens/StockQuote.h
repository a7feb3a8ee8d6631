#pragma once

#include "trading/charts/IntradayChart.h"
#include "trading/charts/StockChart.h"

#include <QVariantMap>

/// What is known of a stock's running day, put together from the detail answer and the quotes.
class StockQuote {
public:
    /// "data" of either answer. What it does not have stays as it was.
    void take(const QVariantMap &data);
    /// A price from elsewhere, until an answer brings one.
    void setPrice(const QString &yuan);

    /// Yuan; 0 when unknown.
    double price() const { return latest; }
    double previousClose() const { return reference.previousClose; }
    const IntradayChart::Reference &measures() const { return reference; }

    QString priceText() const;
    /// "+0.12  +0.45%", against yesterday's close; "" when unknown. `trend` is its sign.
    QString changeText() const;
    int trend() const;
    /// "停牌", "涨停", "跌停" or "".
    QString tag() const;
    int tagTrend() const;
    /// 今开, 最高, 最低, 昨收, 成交量, 成交额; dashes for what is not known.
    QList<StockFigure> figures() const;

private:
    double latest = 0;
    IntradayChart::Reference reference;
    double open = 0;
    double high = 0;
    double low = 0;
    /// Shares and yuan; below 0 when unknown.
    double volume = -1;
    double turnover = -1;
    bool suspended = false;
    /// The service's own texts, for one that does not send yesterday's close.
    QString change;
    QString changeRate;
};
