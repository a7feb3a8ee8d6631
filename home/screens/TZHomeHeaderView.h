#pragma once

#include "home/api/TZUserIndexModel.h"

/// The asset summary of a signed-in user, as its view draws it.
class TZHomeHeaderView {
    Q_GADGET
    Q_PROPERTY(QString totalAsset MEMBER totalAsset)
    /// The line of the floating profit: the grey prefix, then the figure.
    Q_PROPERTY(QString profitPrefix MEMBER profitPrefix)
    Q_PROPERTY(QString profit MEMBER profit)
    Q_PROPERTY(QString rate MEMBER rate)
    Q_PROPERTY(Trend rateTrend MEMBER rateTrend)
    Q_PROPERTY(Status status MEMBER status)
    Q_PROPERTY(QString statusTitle MEMBER statusTitle)
    /// The figures below: the profit in yuan and the rate.
    Q_PROPERTY(QString midProfit MEMBER midProfit)
    Q_PROPERTY(QString midRate MEMBER midRate)
public:
    enum class Trend { Flat, Rise, Fall };
    Q_ENUM(Trend)
    enum class Status { Normal, Warning, Risk };
    Q_ENUM(Status)

    void setModels(const TZUserIndexModel &index, const TZUserIndexAssetModel &asset);

    QString totalAsset;
    QString profitPrefix = QStringLiteral("浮盈  ");
    QString profit;
    QString rate;
    Trend rateTrend = Trend::Flat;
    Status status = Status::Normal;
    QString statusTitle;
    QString midProfit;
    QString midRate;

private:
    void setRate(const QString &profitRate);
    void setStatus(const QString &userAccountStatus);
};
