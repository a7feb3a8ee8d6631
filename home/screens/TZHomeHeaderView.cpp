#include "home/screens/TZHomeHeaderView.h"

#include "core/util/Service.h"
#include "core/util/Text.h"
#include "home/screens/AmountsSwitch.h"

namespace {
int trendOf(double figure)
{
    return figure > 0 ? 1 : figure < 0 ? -1 : 0;
}

QString filled(const QString &format, const QString &value)
{
    return format.arg(Service::whetherAnEmptyString(value) ? QString() : value);
}

/// A service may have written the plus already.
QString plusOf(int sign, const QString &money)
{
    return sign > 0 && !money.trimmed().startsWith(u'+') ? QStringLiteral("+") : QString();
}
} // namespace

void TZHomeHeaderView::setModels(const TZUserIndexModel &index, const TZUserIndexAssetModel &asset,
                                 const AmountsSwitch &amounts)
{
    const int sign = trendOf(doubleValue(asset.profitMoney));
    totalAsset = amounts.shown(labelAmount(asset.totalAsset));
    profitTrend = amounts.isHidden() ? 0 : sign;
    profit = amounts.shown(plusOf(sign, asset.profitMoney) + asset.profitMoney);
    midProfit = amounts.shown(filled(QStringLiteral("%1元"), asset.profitMoney));
    midRate = filled(QStringLiteral("%1%"), asset.profitRate);
    setRate(asset.profitRate);
    setStatus(index.userAccountStatus);
}

void TZHomeHeaderView::setRate(const QString &profitRate)
{
    rateTrend = 0;
    rate = QStringLiteral("--");
    if (!Service::whetherAnEmptyString(profitRate) && !holdsNumber(profitRate))
        return;
    const QString text = twoDecimals(doubleValue(profitRate));
    // The sign is that of the figure shown: what rounds to zero is neither gain nor loss.
    rateTrend = trendOf(text.toDouble());
    rate = rateTrend > 0   ? QStringLiteral("+%1%").arg(text)
           : rateTrend < 0 ? QStringLiteral("%1%").arg(text)
                           : QStringLiteral(" 0.00%");
}

void TZHomeHeaderView::setStatus(const QString &userAccountStatus)
{
    switch (integerValue(userAccountStatus)) {
    case 0:
        statusTitle.clear();
        break;
    case 1:
        statusTitle = QStringLiteral("  预警");
        statusImage = QStringLiteral("home_warning");
        atRisk = false;
        break;
    case 2:
        statusTitle = QStringLiteral("  风险");
        statusImage = QStringLiteral("home_risk");
        atRisk = true;
        break;
    default:
        break;
    }
}
