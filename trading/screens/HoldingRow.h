#pragma once

#include "trading/api/TZZorvanePageStocksModel.h"

/// A holding as the lists of holdings show it; the figures are the service's own.
struct HoldingRow {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString code MEMBER code)
    Q_PROPERTY(QString cost MEMBER cost)
    Q_PROPERTY(QString price MEMBER price)
    Q_PROPERTY(QString shares MEMBER shares)
    Q_PROPERTY(QString available MEMBER available)
    Q_PROPERTY(QString profit MEMBER profit)
    Q_PROPERTY(QString rate MEMBER rate)
    /// 1 gain, 0 neither, -1 loss.
    Q_PROPERTY(int trend MEMBER trend)
    /// The row as one sentence.
    Q_PROPERTY(QString sentence MEMBER sentence)
public:
    QString name;
    QString code;
    QString cost;
    QString price;
    QString shares;
    QString available;
    QString profit;
    QString rate;
    int trend = 0;
    QString sentence;

    QString identity() const { return code; }
    static HoldingRow of(const TZZorvanePageStocksModel &holding);
};

/// 1, 0 or -1.
int signOf(const QString &amount);
