#include "home/screens/TZHomeHeaderView.h"

#include "core/util/Amount.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

namespace {
QString filled(const QString &format, const QString &value)
{
    return format.arg(Service::whetherAnEmptyString(value) ? QString() : value);
}
} // namespace

void TZHomeHeaderView::setModels(const TZUserIndexModel &index, const TZUserIndexAssetModel &asset)
{
    totalAsset = labelAmount(asset.totalAsset);
    profit = (doubleValue(asset.profitMoney) > 0 ? QStringLiteral("+") : QString()) + asset.profitMoney;
    midProfit = filled(QStringLiteral("%1元"), asset.profitMoney);
    midRate = filled(QStringLiteral("%1%"), asset.profitRate);
    setRate(asset.profitRate);
    setStatus(index.userAccountStatus);
}

void TZHomeHeaderView::setRate(const QString &profitRate)
{
    QString text = QString::number(doubleValue(profitRate), 'f', 2);
    // The sign is that of the figure shown: what rounds to zero is neither gain nor loss.
    const double shown = text.toDouble();
    if (shown > 0) {
        rateTrend = Trend::Rise;
        rate = QStringLiteral("+%1%").arg(text);
    } else if (shown < 0) {
        rateTrend = Trend::Fall;
        rate = QStringLiteral("%1%").arg(text);
    } else {
        rateTrend = Trend::Flat;
        rate = QStringLiteral(" 0.00%");
    }
}

void TZHomeHeaderView::setStatus(const QString &userAccountStatus)
{
    switch (integerValue(userAccountStatus)) {
    case 0:
        status = Status::Normal;
        statusTitle.clear();
        break;
    case 1:
        status = Status::Warning;
        statusTitle = QStringLiteral("  预警");
        break;
    case 2:
        status = Status::Risk;
        statusTitle = QStringLiteral("  风险");
        break;
    default:
        break;
    }
}
