#pragma once

#include <QObject>
#include <QString>

/// One holding of the sub-account; also the stock that order entry trades, which for buying has only
/// `stockCode` and `stockName`.
struct TZZorvanePageStocksModel {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString userId MEMBER userId)
    Q_PROPERTY(QString stockCode MEMBER stockCode)
    Q_PROPERTY(QString stockName MEMBER stockName)
    Q_PROPERTY(QString shares MEMBER shares)
    Q_PROPERTY(QString availableShares MEMBER availableShares)
    Q_PROPERTY(QString costPerShare MEMBER costPerShare)
    Q_PROPERTY(QString profitCostPerShare MEMBER profitCostPerShare)
    Q_PROPERTY(QString currentPrice MEMBER currentPrice)
    Q_PROPERTY(QString totalValue MEMBER totalValue)
    Q_PROPERTY(QString accumulatedBuyCost MEMBER accumulatedBuyCost)
    Q_PROPERTY(QString accumulatedBuyShares MEMBER accumulatedBuyShares)
    Q_PROPERTY(QString accumulatedSellIncome MEMBER accumulatedSellIncome)
    Q_PROPERTY(QString accumulatedSellShares MEMBER accumulatedSellShares)
    Q_PROPERTY(QString profitMoney MEMBER profitMoney)
    Q_PROPERTY(QString profitRate MEMBER profitRate)
    Q_PROPERTY(QString profitRatio MEMBER profitRatio)
    Q_PROPERTY(QString accumulatedProfitMoney MEMBER accumulatedProfitMoney)
    Q_PROPERTY(QString closeTrading MEMBER closeTrading)
    Q_PROPERTY(QString version MEMBER version)
    Q_PROPERTY(QString createdAt MEMBER createdAt)
    Q_PROPERTY(QString updatedAt MEMBER updatedAt)
public:
    QString id;
    QString userId;
    QString stockCode;
    QString stockName;
    QString shares;
    QString availableShares;
    QString costPerShare;
    QString profitCostPerShare;
    QString currentPrice;
    QString totalValue;
    QString accumulatedBuyCost;
    QString accumulatedBuyShares;
    QString accumulatedSellIncome;
    QString accumulatedSellShares;
    QString profitMoney;
    QString profitRate;
    QString profitRatio;
    QString accumulatedProfitMoney;
    QString closeTrading;
    QString version;
    QString createdAt;
    QString updatedAt;
};
