#pragma once

#include "core/util/Amount.h"
#include "home/api/TZUserIndexModel.h"

class AmountsSwitch;

/// The asset summary of a signed-in user, as its view draws it.
class TZHomeHeaderView {
    Q_GADGET
    Q_PROPERTY(UnitText assetTitle MEMBER assetTitle)
    Q_PROPERTY(QString totalAsset MEMBER totalAsset)
    /// The line of the floating profit: the grey prefix, then the figure.
    Q_PROPERTY(QString profitPrefix MEMBER profitPrefix)
    Q_PROPERTY(QString profit MEMBER profit)
    Q_PROPERTY(QString rate MEMBER rate)
    /// 1 a gain, -1 a loss, 0 neither.
    Q_PROPERTY(int profitTrend MEMBER profitTrend)
    Q_PROPERTY(int rateTrend MEMBER rateTrend)
    /// The badge of an account in danger; no title, no badge.
    Q_PROPERTY(QString statusTitle MEMBER statusTitle)
    Q_PROPERTY(QString statusImage MEMBER statusImage)
    Q_PROPERTY(bool atRisk MEMBER atRisk)
    /// The figures below: the profit in yuan and the rate.
    Q_PROPERTY(QString midProfit MEMBER midProfit)
    Q_PROPERTY(QString midRate MEMBER midRate)
public:
    /// The rates are shown also while the amounts are hidden.
    void setModels(const TZUserIndexModel &index, const TZUserIndexAssetModel &asset,
                   const AmountsSwitch &amounts);

    UnitText assetTitle = setAttributeWithText(QStringLiteral("总资产（元）"));
    QString totalAsset;
    QString profitPrefix = QStringLiteral("浮盈  ");
    QString profit;
    QString rate;
    int profitTrend = 0;
    int rateTrend = 0;
    QString statusTitle;
    QString statusImage;
    bool atRisk = false;
    QString midProfit;
    QString midRate;

private:
    void setRate(const QString &profitRate);
    void setStatus(const QString &userAccountStatus);
};
