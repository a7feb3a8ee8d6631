#include "trading/screens/HoldingRow.h"

#include "core/util/Amount.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

#include <QStringList>

namespace {
QString percent(const QString &rate)
{
    return Service::whetherAnEmptyString(rate) || rate.endsWith(u'%') ? rate : rate + u'%';
}
} // namespace

int signOf(const QString &amount)
{
    const double value = doubleValue(amount);
    return (value > 0) - (value < 0);
}

HoldingRow HoldingRow::of(const TZZorvanePageStocksModel &holding)
{
    HoldingRow row{holding.stockName,
                   holding.stockCode,
                   holding.costPerShare,
                   holding.currentPrice,
                   holding.shares,
                   holding.availableShares,
                   labelAmount(holding.profitMoney),
                   percent(holding.profitRate),
                   signOf(holding.profitMoney),
                   {}};
    row.sentence =
        QStringList{row.name, row.code, row.cost, row.price, row.shares, row.available, row.profit, row.rate}
            .join(QLatin1Char(' '));
    return row;
}
